#include "ProfilesCheck.h"

#include <QMap>
#include <QXmlStreamReader>

#include "ElementCheck.h"
#include "ForwardXml.h"
#include "ProfileXml.h"
#include "UssdCode.h"
#include "XmlName.h"

using namespace Formats;

namespace Tools
{

namespace
{

const int BUTTONS = 11;
const int PAYMENT_BUTTONS = 2; // the last two buttons are payment buttons

QList<USSDProfile> readAll(const QByteArray &xml)
{
    QList<USSDProfile> profiles;
    QXmlStreamReader reader;
    ForwardXml::start(reader, xml);
    USSDProfile profile;
    while (ProfileXml::readNext(reader, profile))
        profiles << profile;
    return profiles;
}

QStringList childNames(const XmlElements &elements, int item)
{
    QStringList names;
    for (int i = item + 1; i < elements.list.at(item).behind; ++i) {
        if (elements.list.at(i).parent == item)
            names << elements.list.at(i).name;
    }
    return names;
}

QString textOf(const XmlElements &elements, int item, const char *name)
{
    const QList<int> found = elements.childrenOf(item, name);
    return found.isEmpty() ? QString() : elements.list.at(found.first()).text;
}

bool isPlaceholder(const XmlElements &elements, int item)
{
    return textOf(elements, item, XmlName::VALUE).isEmpty() &&
           textOf(elements, item, XmlName::NAME) == placeholderName();
}

void checkFields(ElementCheck &check, int item)
{
    const QStringList names = childNames(check.elements(), item);
    QStringList known;
    for (int i = 0; i < names.count(); ++i) {
        if (profileFields().contains(names.at(i)))
            known << names.at(i);
    }
    if (known != profileFields())
        check.find(item, "order",
                   QString::fromLatin1("an item has %1, in this order; this one has %2. The "
                                       "reader takes the rest from the next item, which is lost")
                       .arg(profileFields().join(QLatin1String(", ")),
                            known.isEmpty() ? QString::fromLatin1("none of them")
                                            : known.join(QLatin1String(", "))));
}

void checkValues(ElementCheck &check, int item)
{
    const XmlElements &elements = check.elements();
    for (const char *name : {XmlName::READONLY, XmlName::SHOW_BUTTON}) {
        const QList<int> found = elements.childrenOf(item, name);
        if (!found.isEmpty())
            check.boolText(found.first(), QLatin1String(name), check.at(found.first()).text);
    }
    check.key(item, textOf(elements, item, XmlName::LANG_ID));
    check.key(item, textOf(elements, item, XmlName::DESCRIPTION_LANG_ID));
    const QString value = textOf(elements, item, XmlName::VALUE);
    if (isPlaceholder(elements, item))
        return;
    if (value.isEmpty())
        return check.find(item, "command", QLatin1String("the code is empty"));
    check.command(item, value, 0);
    if (value != value.trimmed())
        check.find(item, "command",
                   quotedPart(value) + QLatin1String(" has blanks around it, which are sent too"));
}

void checkTwins(ElementCheck &check, const QList<int> &items)
{
    QMap<QString, int> seen;
    for (int i = 0; i < items.count(); ++i) {
        const QString value = textOf(check.elements(), items.at(i), XmlName::VALUE);
        if (value.isEmpty())
            continue;
        if (seen.contains(value))
            check.find(
                items.at(i), "twice",
                QString::fromLatin1("%1 was already given in line %2; in a user's file this one "
                                    "is dropped")
                    .arg(quotedPart(value))
                    .arg(check.at(seen.value(value)).line));
        else
            seen.insert(value, items.at(i));
    }
}

QList<int> shownItems(const ElementCheck &check, const QList<int> &items)
{
    QList<int> shown;
    for (int i = 0; i < items.count() && i < BUTTONS; ++i) {
        if (textOf(check.elements(), items.at(i), XmlName::SHOW_BUTTON) ==
            QLatin1String(XmlName::ON))
            shown << items.at(i);
    }
    return shown;
}

bool takesNumber(const ElementCheck &check, int item)
{
    return textOf(check.elements(), item, XmlName::VALUE).contains(INPUT_PLACEHOLDER);
}

/// Checks that each button can send its code. The payment buttons, which are the last two, replace
/// "%s" with a number. The other buttons send their codes unchanged.
void checkButtons(ElementCheck &check, const QList<int> &shown)
{
    for (int i = 0; i < shown.count(); ++i) {
        const bool pays = i >= shown.count() - PAYMENT_BUTTONS;
        const QString code = quotedPart(textOf(check.elements(), shown.at(i), XmlName::VALUE));
        if (isPlaceholder(check.elements(), shown.at(i)))
            continue;
        if (pays && !takesNumber(check, shown.at(i)))
            check.find(shown.at(i), "button",
                       code + QLatin1String(" is one of the last two buttons and has no \"%s\": it "
                                            "is sent only after a number was entered, without "
                                            "it"));
        else if (!pays && takesNumber(check, shown.at(i)))
            check.find(shown.at(i), "button",
                       code + QLatin1String(" is not one of the last two buttons: its \"%s\" is "
                                            "sent unchanged"));
    }
}

/// Checks the effect of a profile that the user adds in the editor. Its button becomes the last one
/// if there is a free slot. The first payment button then becomes an ordinary button, which sends
/// "%s" unchanged.
void checkOneMore(ElementCheck &check, const QList<int> &items, const QList<int> &shown)
{
    const int first = shown.value(shown.count() - PAYMENT_BUTTONS, -1);
    if (items.count() >= BUTTONS || first < 0 || !takesNumber(check, first))
        return;
    const QString code = quotedPart(textOf(check.elements(), first, XmlName::VALUE));
    const QString last = quotedPart(textOf(check.elements(), shown.last(), XmlName::VALUE));
    check.find(first, "button",
               QString::fromLatin1("with one more code the last two buttons would be %1 and that "
                                   "code: %2 would be sent with its \"%s\" unchanged")
                   .arg(last, code));
}

void checkMissingButtons(ElementCheck &check, const QList<int> &items)
{
    for (int i = BUTTONS; i < items.count(); ++i) {
        if (textOf(check.elements(), items.at(i), XmlName::SHOW_BUTTON) ==
            QLatin1String(XmlName::ON))
            check.find(items.at(i), "button",
                       QString::fromLatin1("there are %1 buttons at most; this profile gets none")
                           .arg(BUTTONS));
    }
}

CheckTable table(const QList<USSDProfile> &profiles)
{
    CheckTable table;
    table.title = QLatin1String("Profiles");
    for (int i = 0; i < profiles.count(); ++i) {
        const USSDProfile &profile = profiles.at(i);
        table.rows << (QStringList()
                       << profile.name << profile.value
                       << QString::fromLatin1(profile.readonly ? XmlName::READONLY : "")
                       << QString::fromLatin1(profile.showButton && i < BUTTONS ? "button" : "")
                       << profile.langID << profile.desLangID);
    }
    return table;
}

QString effectOf(const USSDProfile &profile, bool pays)
{
    if (profile.value.isEmpty())
        return QLatin1String("sends nothing");
    return QLatin1String(pays ? "sends after a number was entered" : "sends at once");
}

/// Returns a table of the buttons. The table also shows which buttons would be the last two after
/// the user has added a code.
CheckTable buttonTable(const QList<USSDProfile> &profiles)
{
    CheckTable table;
    table.title = QLatin1String("Buttons");
    QList<USSDProfile> shown;
    for (int i = 0; i < profiles.count() && i < BUTTONS; ++i) {
        if (profiles.at(i).showButton)
            shown << profiles.at(i);
    }
    for (int i = 0; i < shown.count(); ++i)
        table.rows << (QStringList()
                       << shown.at(i).name << shown.at(i).value
                       << effectOf(shown.at(i), i >= shown.count() - PAYMENT_BUTTONS));
    if (profiles.count() < BUTTONS)
        table.rows << (QStringList()
                       << QLatin1String("with one more code")
                       << (shown.isEmpty()
                               ? QString::fromLatin1("it would be the only button")
                               : QString::fromLatin1("the last two buttons would be %1 and that "
                                                     "code")
                                     .arg(quotedPart(shown.last().name))));
    return table;
}

} // namespace

QStringList profileFields()
{
    QStringList names;
    for (const char *name : {XmlName::NAME, XmlName::VALUE, XmlName::READONLY, XmlName::SHOW_BUTTON,
                             XmlName::LANG_ID, XmlName::DESCRIPTION_LANG_ID})
        names << QLatin1String(name);
    return names;
}

void checkProfiles(const XmlElements &elements, CheckReport &report)
{
    ElementCheck check(elements, report);
    QList<int> items;
    for (int i = 0; i < elements.list.count(); ++i) {
        if (elements.list.at(i).name == QLatin1String(XmlName::ITEM))
            items << i;
    }
    for (int i = 0; i < items.count(); ++i) {
        checkFields(check, items.at(i));
        checkValues(check, items.at(i));
    }
    const QList<int> shown = shownItems(check, items);
    checkTwins(check, items);
    checkButtons(check, shown);
    checkOneMore(check, items, shown);
    checkMissingButtons(check, items);
}

QList<CheckTable> profileTables(const QByteArray &xml)
{
    const QList<USSDProfile> profiles = readAll(xml);
    return QList<CheckTable>() << table(profiles) << buttonTable(profiles);
}

} // namespace Tools
