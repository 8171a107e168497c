#include "ProfilesCheck.h"

#include <QMap>
#include <QXmlStreamReader>

#include "ElementCheck.h"
#include "ProfileXml.h"
#include "UssdCode.h"
#include "XmlName.h"

using namespace Formats;

namespace Tools
{

namespace
{

const int BUTTONS = 11;
const int PAYMENT_BUTTONS = 2; // the payment buttons are the last two buttons

QStringList fields()
{
    QStringList names;
    for (const char *name : {XmlName::NAME, XmlName::VALUE, XmlName::READONLY, XmlName::SHOW_BUTTON,
                             XmlName::LANG_ID, XmlName::DESCRIPTION_LANG_ID})
        names << QLatin1String(name);
    return names;
}

QList<USSDProfile> readAll(const QByteArray &xml)
{
    QList<USSDProfile> profiles;
    QXmlStreamReader reader(xml);
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

void checkFields(ElementCheck &check, int item)
{
    const QStringList names = childNames(check.elements(), item);
    QStringList known;
    for (int i = 0; i < names.count(); ++i) {
        if (fields().contains(names.at(i)))
            known << names.at(i);
    }
    if (known != fields())
        check.find(item, "order",
                   QString::fromLatin1("an item has %1, in this order; this one has %2. The "
                                       "reader takes the rest from the next item, which is lost")
                       .arg(fields().join(QLatin1String(", ")),
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
    check.command(item, value, 0);
    if (value.isEmpty())
        check.find(item, "command", QLatin1String("the code is empty"));
    else if (value != value.trimmed())
        check.find(item, "command",
                   quotedPart(value) + QLatin1String(" has blanks around it, which are sent too"));
}

void checkTwins(ElementCheck &check, const QList<int> &items)
{
    QMap<QString, int> seen;
    for (int i = 0; i < items.count(); ++i) {
        const QString value = textOf(check.elements(), items.at(i), XmlName::VALUE);
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

/// Checks the buttons. The last two buttons require a number, which replaces "%s" in their codes.
/// The other buttons send their codes unchanged.
void checkButtons(ElementCheck &check, const QList<int> &items)
{
    const QList<int> shown = shownItems(check, items);
    for (int i = 0; i < shown.count(); ++i) {
        const bool pays = i >= shown.count() - PAYMENT_BUTTONS;
        const QString code = textOf(check.elements(), shown.at(i), XmlName::VALUE);
        if (pays && !code.contains(INPUT_PLACEHOLDER))
            check.find(shown.at(i), "button",
                       quotedPart(code) +
                           QLatin1String(" is one of the last two buttons and has no "
                                         "\"%s\": it is sent only after a number "
                                         "was entered, without it"));
        else if (!pays && code.contains(INPUT_PLACEHOLDER))
            check.find(shown.at(i), "button",
                       quotedPart(code) + QLatin1String(" is not one of the last two buttons: its "
                                                        "\"%s\" is sent unchanged"));
    }
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

} // namespace

void checkProfiles(const XmlElements &elements, const QByteArray &xml, CheckReport &report)
{
    ElementCheck check(elements, report);
    check.names(fields() << QLatin1String(XmlName::ITEM));
    QList<int> items;
    for (int i = 0; i < elements.list.count(); ++i) {
        if (elements.list.at(i).name == QLatin1String(XmlName::ITEM))
            items << i;
    }
    for (int i = 0; i < items.count(); ++i) {
        checkFields(check, items.at(i));
        checkValues(check, items.at(i));
    }
    checkTwins(check, items);
    checkButtons(check, items);
    report.tables << table(readAll(xml));
}

} // namespace Tools
