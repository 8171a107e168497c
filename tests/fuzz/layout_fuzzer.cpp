/* Fuzzes the USSD-SMS section. Checks the limits of its parser and the values that it returns. */
#include "FuzzSupport.h"

#include <QXmlStreamReader>

#include "SmsLayout.h"

using namespace Formats;

namespace
{

const int MOST_GROUPS = 500;
const int MOST_CONTROLS = 6;
const int MOST_COMPLAINTS = 21; // twenty for the content, and one for the XML syntax

void checkGeometry(const QRect &rect)
{
    FUZZ_REQUIRE(rect.width() >= 0 && rect.height() >= 0);
    FUZZ_REQUIRE(rect.width() < (1 << 25) && rect.height() < (1 << 25));
    FUZZ_REQUIRE(qAbs(rect.x()) < (1 << 27) && qAbs(rect.y()) < (1 << 27));
}

void checkControl(const CWidgetItemInfo &control, int dialogWidth)
{
    checkGeometry(SmsLayoutFile::geometry(control, dialogWidth, false));
    checkGeometry(SmsLayoutFile::geometry(control, dialogWidth, true));
    const QRegExp pattern = SmsLayoutFile::inputPattern(control);
    FUZZ_REQUIRE(pattern.isValid());
    const QString tooLong(SmsLayoutFile::MAX_INPUT_LENGTH + 1, QLatin1Char('1'));
    FUZZ_REQUIRE(!pattern.exactMatch(tooLong));
    FUZZ_REQUIRE(pattern.exactMatch(QString()));
}

void checkGroup(const CWidget &group, int dialogWidth)
{
    FUZZ_REQUIRE(group.controls.count() <= MOST_CONTROLS);
    for (const CWidgetItemInfo *control : group.controls)
        checkControl(*control, dialogWidth);
}

/// Checks that the tree has two levels and does not have too many entries.
void checkTree(const SmsLayout &layout)
{
    FUZZ_REQUIRE(layout.ordinaryEntries <= SmsLayoutFile::MAX_ORDINARY_ENTRIES);
    FUZZ_REQUIRE(layout.entries.count() <= layout.ordinaryEntries + 1);
    for (const CTreeItem *entry : layout.entries) {
        FUZZ_REQUIRE(entry != nullptr);
        FUZZ_REQUIRE(entry->isChild == 0 || entry->parent == layout.rootNumber);
    }
}

void check(const SmsLayout &layout)
{
    const QSize size = SmsLayoutFile::windowSize(layout.dialog);
    FUZZ_REQUIRE(size.width() >= 0 && size.width() <= SmsLayoutFile::MAX_WINDOW_SIDE);
    FUZZ_REQUIRE(size.height() >= 0 && size.height() <= SmsLayoutFile::MAX_WINDOW_SIDE);
    checkGeometry(SmsLayoutFile::geometry(layout.tree, size.width(), true));
    FUZZ_REQUIRE(layout.groups.count() <= MOST_GROUPS);
    FUZZ_REQUIRE(layout.complaints.count() <= MOST_COMPLAINTS);
    checkTree(layout);
    for (const CWidget *group : layout.groups)
        checkGroup(*group, size.width());
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray file(reinterpret_cast<const char *>(data), static_cast<int>(size));
    SmsLayout layout, again;
    QXmlStreamReader reader(file), secondReader(file);
    const bool whole = SmsLayoutFile::read(reader, layout);
    check(layout);
    FUZZ_REQUIRE(whole || !layout.complaints.isEmpty());
    FUZZ_REQUIRE(SmsLayoutFile::read(secondReader, again) == whole);
    FUZZ_REQUIRE(again.complaints == layout.complaints);
    FUZZ_REQUIRE(again.entries.keys() == layout.entries.keys());
    return 0;
}
