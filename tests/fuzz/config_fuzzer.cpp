/*
 * Fuzzes USSDPluginConfig.xml through USSDLogic: loading the file, all getters, and IMSI matching.
 */
#include "FuzzSupport.h"

#include <QDir>
#include <QXmlStreamReader>

#include "requests/USSDLogic.h"

using namespace Formats;

namespace
{

const int ATTRIBUTES = ATTR_URL + 1;
const int COMPONENTS = COMPONENT_MSISDN + 1;

bool same(const Char &a, const Char &b)
{
    return a.yHeight == b.yHeight && a.yOffset == b.yOffset && a.red == b.red &&
           a.green == b.green && a.blue == b.blue;
}

/// Checks that the getters return a value only for known attributes, and that ATTR_VALUE is 0 or 1.
void checkAttribute(USSDLogic &logic, int paidType, int component, int attribute)
{
    const int number = logic.GetComponentAttrInt(paidType, component, attribute);
    QString text = QString::fromLatin1("untouched");
    logic.GetComponentAttrStr(paidType, component, attribute, text);
    const bool known = paidType >= 0 && paidType < 2 && component <= COMPONENT_MSISDN;
    if (!known || attribute == 3 || attribute == 4 || attribute > ATTR_URL)
        FUZZ_REQUIRE(number == -1 && text == QLatin1String("untouched"));
    else if (attribute == ATTR_VALUE)
        FUZZ_REQUIRE(number == 0 || number == 1);
}

/// Checks all known attributes. Unknown attributes do not depend on the file, so they are checked
/// only for some inputs.
void checkAttributes(USSDLogic &logic, bool alsoUnknown)
{
    const int beyond = alsoUnknown ? 1 : 0;
    for (int paidType = 0 - beyond; paidType <= 1 + beyond; ++paidType)
        for (int component = 0; component < COMPONENTS + beyond; ++component)
            for (int attribute = 0; attribute < ATTRIBUTES + beyond; ++attribute)
                checkAttribute(logic, paidType, component, attribute);
}

/// Checks that two calls to the getters of the sections return the same values for an unchanged
/// file.
void checkSections(USSDLogic &logic)
{
    for (const _CHAR_SET_COLOR which : {CHAR_SET_SEND, CHAR_SET_RECEIVE}) {
        Char first, again;
        logic.GetCharSet(which, first);
        logic.GetCharSet(which, again);
        FUZZ_REQUIRE(same(first, again));
    }
    ClearHistory clear, clearAgain;
    logic.GetClearBtnSetting(clear);
    logic.GetClearBtnSetting(clearAgain);
    FUZZ_REQUIRE(clear.visible == clearAgain.visible &&
                 clear.showConfirmDialog == clearAgain.showConfirmDialog);
    CmdEdit edit, editAgain;
    logic.GetCmdEditSetting(edit);
    logic.GetCmdEditSetting(editAgain);
    FUZZ_REQUIRE(edit.visible == editAgain.visible && edit.headBlue == editAgain.headBlue);
    PrePostDiffer differ;
    logic.GetPrePostDiffer(differ);
}

/// Returns the length of the longest prefix that matches, or 0. Tries all prefixes.
int longestPrefix(const QHash<QString, int> &prefixes, const QString &imsi)
{
    int longest = 0;
    for (auto it = prefixes.constBegin(); it != prefixes.constEnd(); ++it)
        if (imsi.startsWith(it.key()) && it.key().length() > longest)
            longest = it.key().length();
    return longest;
}

void checkImsi(USSDLogic &logic, const AutoUSSD &section, const QString &imsi)
{
    int flags = -1;
    const bool matched = logic.CheckImsiIsValid(imsi, flags);
    FUZZ_REQUIRE(flags >= 0 && flags <= 15 && (matched || flags == 0));
    const int length = longestPrefix(section.imsiMap, imsi);
    FUZZ_REQUIRE(matched == (length > 0));
    FUZZ_REQUIRE(!matched || flags == section.imsiMap.value(imsi.left(length)));
}

/// Reads the section with a separate parser, for comparison with the values in `logic`.
AutoUSSD autoUSSDBehindTheOthers(const QByteArray &file)
{
    QXmlStreamReader reader(file);
    PluginConfig config;
    readConfiguration(reader, config);
    return config.autoUSSD;
}

void checkImsis(USSDLogic &logic, const QByteArray &file)
{
    const AutoUSSD section = autoUSSDBehindTheOthers(file);
    FUZZ_REQUIRE(logic.IsImsiDynamicMatch() == section.valid);
    checkImsi(logic, section, QString::fromLatin1("001012345678901"));
    checkImsi(logic, section, QString());
    const QStringList prefixes = section.imsiMap.keys();
    for (const QString &prefix : prefixes.mid(0, 10))
        checkImsi(logic, section, prefix + QLatin1Char('7'));
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    FuzzSupport::dropMessages();
    qputenv("USSD_PLUGIN_LIBRARY_PATH", FuzzSupport::folder().toLocal8Bit());
    QDir().mkpath(FuzzSupport::folder() + QLatin1String("/plugins/USSDUIPlugin"));
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray file(reinterpret_cast<const char *>(data), static_cast<int>(size));
    FuzzSupport::writeFile(
        FuzzSupport::folder() + QLatin1String("/plugins/USSDUIPlugin/USSDPluginConfig.xml"), file);
    USSDLogic &logic = *USSDLogic::GetUSSDLogicInstance();
    checkAttributes(logic, size % 64 == 0);
    checkImsis(logic, file.replace("\r\n", "\n")); // `logic` reads the file in text mode
    checkSections(logic);
    USSDLogic::Destroy();
    return 0;
}
