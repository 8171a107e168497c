#include "LayoutCheck.h"

#include <QRegExp>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include "ElementCheck.h"
#include "ForwardXml.h"
#include "SmsLayout.h"
#include "XmlName.h"

using namespace Formats;

namespace Tools
{

namespace
{

const int INPUT = 2;  // index of the input field in a group
const int BUTTON = 3; // index of the button, which contains the command, in a group

/// Returns the column of the last element that starts in the line. The result is approximate,
/// because the layout parser reports only line numbers.
qint64 columnOn(const XmlElements &elements, qint64 line)
{
    qint64 column = 0;
    for (int i = 0; i < elements.list.count(); ++i) {
        if (elements.list.at(i).line == line)
            column = elements.list.at(i).column;
    }
    return column;
}

void takeComplaint(const XmlElements &elements, const QString &complaint, CheckReport &report)
{
    QRegExp pattern(QLatin1String("line (\\d+): (.*)"));
    if (!pattern.exactMatch(complaint))
        return addFinding(report, 0, 0, "layout", complaint);
    const qint64 line = pattern.cap(1).toLongLong();
    const bool isCount = pattern.cap(2).contains(QLatin1String("controls; shown are"));
    addFinding(report, line, columnOn(elements, line), isCount ? "controls" : "layout",
               pattern.cap(2));
}

/// Returns the indexes of all elements with this name in the section, at any depth.
QList<int> allNamed(const XmlElements &elements, int section, const char *name)
{
    QList<int> found;
    for (int i = section; i < elements.list.at(section).behind; ++i) {
        if (elements.list.at(i).name == QLatin1String(name))
            found << i;
    }
    return found;
}

/// Returns the complaint with its line number but without any other numbers. Complaints for which
/// the function returns the same string are combined into one finding.
QString kindOfComplaint(const QString &complaint)
{
    const int colon = complaint.indexOf(QLatin1Char(':'));
    QString rest = complaint.mid(colon);
    return complaint.left(colon) + rest.remove(QRegularExpression(QLatin1String("\\d+")));
}

/// Returns true if the complaint occurs only because the root is not the first entry.
bool isAboutRoot(const QString &complaint)
{
    return complaint.contains(QLatin1String("it stands before the root")) ||
           complaint.contains(QLatin1String("the tree has no entry"));
}

/// Converts the complaints of the plug-in's own parser to findings. Complaints about the same line
/// that differ only in their numbers are combined into one finding with their count.
void takeComplaints(const XmlElements &elements, const QStringList &complaints, CheckReport &report)
{
    QStringList kinds;
    for (int i = 0; i < complaints.count(); ++i)
        kinds << kindOfComplaint(complaints.at(i));
    for (int i = 0; i < complaints.count(); ++i) {
        const int more = kinds.count(kinds.at(i)) - 1;
        const QString count = QString::fromLatin1(" (and %1 more of this kind)").arg(more);
        if (kinds.indexOf(kinds.at(i)) == i)
            takeComplaint(elements, complaints.at(i) + (more == 0 ? QString() : count), report);
    }
}

/// Checks that the first entry of the tree is the root. If it is not, adds a finding and returns
/// false.
bool checkRoot(ElementCheck &check)
{
    for (int i = 0; i < check.elements().list.count(); ++i) {
        if (check.at(i).name != QLatin1String(XmlName::TREE))
            continue;
        const int first = check.elements().childrenOf(i, XmlName::ITEM).value(0, -1);
        if (first < 0 ||
            check.at(first).attribute(XmlName::TYPE) == QLatin1String(XmlName::TREE_ROOT))
            continue;
        check.find(first, "layout",
                   QString::fromLatin1("the first entry does not have the type \"%1\"; all entries "
                                       "before the root are left out")
                       .arg(QLatin1String(XmlName::TREE_ROOT)));
        return false;
    }
    return true;
}

/// Adds findings for the complaints of the plug-in's own parser.
void checkWithReader(ElementCheck &check, const QByteArray &xml, CheckReport &report)
{
    SmsLayout layout;
    QXmlStreamReader reader;
    ForwardXml::start(reader, xml);
    SmsLayoutFile::read(reader, layout);
    const XmlElements &elements = check.elements();
    const bool isWhole = elements.error.isEmpty(); // if false, the error has already been reported
    const bool hasRoot = checkRoot(check);
    QStringList complaints;
    for (int i = isWhole ? 0 : 1; i < layout.complaints.count(); ++i) {
        if (hasRoot || !isAboutRoot(layout.complaints.at(i)))
            complaints << layout.complaints.at(i);
    }
    takeComplaints(elements, complaints, report);
    if (hasRoot && layout.furtherComplaints > 0)
        check.find(elements.list.count() - 1, "layout",
                   QString::fromLatin1("%1 more faults of %2 are not listed")
                       .arg(layout.furtherComplaints)
                       .arg(QLatin1String(XmlName::SMS_USSD)));
}

void checkKeys(ElementCheck &check, int section)
{
    for (const char *name : {XmlName::ITEM, XmlName::CONTROL}) {
        const QList<int> places = allNamed(check.elements(), section, name);
        for (int i = 0; i < places.count(); ++i) {
            if (check.at(places.at(i)).attribute(XmlName::VISIBLE) != QLatin1String(XmlName::OFF))
                check.key(places.at(i), check.at(places.at(i)).attribute(XmlName::ID));
        }
    }
}

QString childText(const XmlElements &elements, int place, const char *name)
{
    const QList<int> found = elements.childrenOf(place, name);
    return found.isEmpty() ? QString() : elements.list.at(found.last()).text;
}

void checkButton(ElementCheck &check, int button, int input)
{
    const XmlElement &element = check.at(button);
    const QString type = element.attribute(XmlName::TYPE);
    const QString command = childText(check.elements(), button, XmlName::COMMAND);
    if (!element.has(XmlName::TYPE))
        return check.find(button, "type",
                          QLatin1String("the button has no type and sends nothing"));
    if (type != QLatin1String(XmlName::USSD) && type != QLatin1String(XmlName::SMS))
        check.find(button, "type",
                   QString::fromLatin1("type %1 is not \"ussd\" and sends a short message")
                       .arg(quotedPart(type)));
    if (command.isEmpty())
        check.find(button, "command", QLatin1String("the button has no command and sends nothing"));
    if (type == QLatin1String(XmlName::USSD) && !command.isEmpty())
        check.command(button, command, childText(check.elements(), input, XmlName::LENGTH).toInt());
    if (type != QLatin1String(XmlName::USSD) &&
        childText(check.elements(), button, XmlName::NUMBER).isEmpty())
        check.find(button, "command", QLatin1String("the short message has no number"));
}

void checkInput(ElementCheck &check, int input)
{
    if (check.at(input).attribute(XmlName::VISIBLE) != QLatin1String(XmlName::OFF) &&
        childText(check.elements(), input, XmlName::LENGTH).toInt() <= 0)
        check.find(input, "length",
                   QLatin1String("length is 0 or missing: nothing can be entered"));
}

/// Returns the geometry of an element. The result is not a QRect, whose calculations could
/// overflow.
CTreeInfo geometryOf(const XmlElement &element)
{
    CTreeInfo geometry;
    geometry.posx = element.attribute(XmlName::POS_X).toInt();
    geometry.posy = element.attribute(XmlName::POS_Y).toInt();
    geometry.width = element.attribute(XmlName::WIDTH).toInt();
    geometry.height = element.attribute(XmlName::HEIGHT).toInt();
    return geometry;
}

/// Returns the size of the services window, or an empty size if the section does not contain a
/// valid size.
QSize windowSizeOf(const ElementCheck &check, int section)
{
    const QList<int> sizes = check.elements().childrenOf(section, XmlName::MAIN_SIZE);
    if (sizes.isEmpty())
        return QSize();
    CDlgInfo dialog;
    dialog.width = geometryOf(check.at(sizes.last())).width;
    dialog.height = geometryOf(check.at(sizes.last())).height;
    return SmsLayoutFile::windowSize(dialog);
}

void checkSizes(ElementCheck &check, int section)
{
    for (const char *name : {XmlName::MAIN_SIZE, XmlName::TREE_SIZE}) {
        const QList<int> found = check.elements().childrenOf(section, name);
        if (!found.isEmpty() && name == XmlName::MAIN_SIZE &&
            windowSizeOf(check, section).isEmpty())
            check.find(found.last(), "outside", QLatin1String("the window has no size"));
        if (found.isEmpty())
            check.find(
                section, "missing",
                QString::fromLatin1("<%1> is missing: every side is 0").arg(QLatin1String(name)));
    }
}

/// Checks that the control or the tree is inside the window. The calculations use 64 bits, because
/// the coordinates can be any 32-bit numbers.
void checkPlace(ElementCheck &check, int place, const QSize &window)
{
    const CTreeInfo own = geometryOf(check.at(place));
    const qint64 right = qint64(own.posx) + own.width;
    const qint64 bottom = qint64(own.posy) + own.height;
    const bool isHidden =
        right <= 0 || bottom <= 0 || own.posx >= window.width() || own.posy >= window.height();
    const bool isCut =
        own.posx < 0 || own.posy < 0 || right > window.width() || bottom > window.height();
    if (own.width <= 0 || own.height <= 0)
        check.find(place, "outside",
                   QString::fromLatin1("a size of %1 x %2 pixels cannot be seen")
                       .arg(own.width)
                       .arg(own.height));
    else if (isHidden || isCut)
        check.find(place, "outside",
                   QString::fromLatin1("the area from %1, %2 to %3, %4 is %5 the window of %6 x %7")
                       .arg(QString::number(own.posx), QString::number(own.posy),
                            QString::number(right), QString::number(bottom),
                            QLatin1String(isHidden ? "outside" : "partly outside"),
                            QString::number(window.width()), QString::number(window.height())));
}

void checkGeometry(ElementCheck &check, int section)
{
    const QSize window = windowSizeOf(check, section);
    if (window.isEmpty()) // an invalid MainSize has its own finding
        return;
    const QList<int> places = check.elements().childrenOf(section, XmlName::TREE_SIZE) +
                              allNamed(check.elements(), section, XmlName::CONTROL);
    for (int i = 0; i < places.count(); ++i) {
        if (check.at(places.at(i)).attribute(XmlName::VISIBLE) != QLatin1String(XmlName::OFF))
            checkPlace(check, places.at(i), window);
    }
}

void checkGroups(ElementCheck &check, int section)
{
    const QList<int> items = allNamed(check.elements(), section, XmlName::ITEM);
    for (int i = 0; i < items.count(); ++i) {
        const QList<int> controls = check.elements().childrenOf(items.at(i), XmlName::CONTROL);
        if (controls.count() != SmsLayoutFile::CONTROLS_OF_GROUP)
            continue; // the missing controls have already been reported
        checkInput(check, controls.at(INPUT));
        if (check.at(controls.at(BUTTON)).attribute(XmlName::VISIBLE) !=
            QLatin1String(XmlName::OFF))
            checkButton(check, controls.at(BUTTON), controls.at(INPUT));
    }
}

CheckTable servicesTable(const SmsLayout &layout)
{
    CheckTable table;
    table.title = QLatin1String(XmlName::SMS_USSD);
    table.rows << (QStringList() << QLatin1String(XmlName::MAIN_SIZE)
                                 << QString::fromLatin1("%1 x %2")
                                        .arg(layout.dialog.width)
                                        .arg(layout.dialog.height));
    const QList<int> numbers = layout.entries.keys();
    for (int i = 0; i < numbers.count(); ++i) {
        const CTreeItem *entry = layout.entries.value(numbers.at(i));
        const CWidget *group = layout.groups.value(numbers.at(i));
        const bool whole = group && group->controls.count() == SmsLayoutFile::CONTROLS_OF_GROUP;
        const CWidgetItemInfo *button = whole ? group->controls.at(BUTTON) : nullptr;
        table.rows << (QStringList()
                       << QString::number(numbers.at(i)) << entry->textId
                       << (!button ? QString::fromLatin1(entry->isChild ? "nothing"
                                                                        : XmlName::TREE_ROOT)
                           : button->kind == CONTROL_KIND_SMS
                               ? button->command + QLatin1String(" to ") + button->number
                               : button->command));
    }
    return table;
}

} // namespace

void checkLayout(const XmlElements &elements, const QByteArray &xml, CheckReport &report)
{
    ElementCheck check(elements, report);
    checkWithReader(check, xml, report);
    for (int i = 0; i < elements.list.count(); ++i) {
        if (elements.list.at(i).name != QLatin1String(XmlName::SMS_USSD))
            continue;
        checkSizes(check, i);
        checkKeys(check, i);
        checkGroups(check, i);
        checkGeometry(check, i);
    }
}

CheckTable layoutTable(const QByteArray &xml)
{
    SmsLayout layout;
    QXmlStreamReader reader;
    ForwardXml::start(reader, xml);
    SmsLayoutFile::read(reader, layout);
    return servicesTable(layout);
}

} // namespace Tools
