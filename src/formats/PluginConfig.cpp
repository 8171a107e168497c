#include "PluginConfig.h"

#include <QXmlStreamReader>

#include "ForwardXml.h"
#include "XmlName.h"

namespace Formats
{

namespace
{

const int ITEMS_IN_PAID_SECTION = 4;

QString textOf(QXmlStreamReader &reader, const char *element)
{
    ForwardXml::skipTo(reader, QLatin1String(element));
    return ForwardXml::text(reader);
}

int numberOf(QXmlStreamReader &reader, const char *element)
{
    ForwardXml::skipTo(reader, QLatin1String(element));
    return ForwardXml::number(reader);
}

template <typename Component>
void readShownAndPosition(const QXmlStreamReader &reader, Component &component)
{
    component.value = ForwardXml::boolAttribute(reader, QLatin1String(XmlName::VALUE));
    component.pos = ForwardXml::numberAttribute(reader, QLatin1String(XmlName::POSITION));
}

void readBalance(QXmlStreamReader &reader, ConfigBalance &balance)
{
    readShownAndPosition(reader, balance);
    balance.command = textOf(reader, XmlName::COMMAND);
}

void readCharge(QXmlStreamReader &reader, ConfigCharge &charge)
{
    readShownAndPosition(reader, charge);
    charge.command = textOf(reader, XmlName::COMMAND);
    charge.length = numberOf(reader, XmlName::LENGTH);
    charge.minlenth = numberOf(reader, XmlName::MIN_LENGTH);
    charge.returnStyle = numberOf(reader, XmlName::RETURN_STYLE);
    charge.limitText = textOf(reader, XmlName::LIMIT_TEXT);
}

void readOnlineCharge(QXmlStreamReader &reader, ConfigOnlineCharge &online)
{
    readShownAndPosition(reader, online);
    online.url = textOf(reader, XmlName::URL);
}

void readMSISDN(QXmlStreamReader &reader, ConfigMSISDN &msisdn)
{
    readShownAndPosition(reader, msisdn);
    msisdn.command = textOf(reader, XmlName::COMMAND);
    msisdn.updateButton = numberOf(reader, XmlName::UPDATE_BUTTON);
}

void readItem(QXmlStreamReader &reader, int paidType, PluginConfig &config)
{
    ForwardXml::skipTo(reader, QLatin1String(XmlName::ITEM));
    const QString name = ForwardXml::attribute(reader, QLatin1String(XmlName::NAME));
    if (name == QLatin1String(XmlName::BALANCE))
        readBalance(reader, config.balance[paidType]);
    else if (name == QLatin1String(XmlName::CHARGE))
        readCharge(reader, config.charge[paidType]);
    else if (name == QLatin1String(XmlName::ONLINE_CHARGE))
        readOnlineCharge(reader, config.onlineCharge[paidType]);
    else if (name == QLatin1String(XmlName::MSISDN))
        readMSISDN(reader, config.msisdn[paidType]);
}

void readColour(const QXmlStreamReader &reader, int &red, int &green, int &blue)
{
    red = ForwardXml::numberAttribute(reader, QLatin1String(XmlName::RED));
    green = ForwardXml::numberAttribute(reader, QLatin1String(XmlName::GREEN));
    blue = ForwardXml::numberAttribute(reader, QLatin1String(XmlName::BLUE));
}

void readColourOf(QXmlStreamReader &reader, const char *element, int &red, int &green, int &blue)
{
    ForwardXml::skipTo(reader, QLatin1String(element));
    readColour(reader, red, green, blue);
}

int windowFlag(const QString &name)
{
    if (name == QLatin1String(XmlName::PREPAID))
        return WINDOW_PREPAID;
    if (name == QLatin1String(XmlName::POSTPAID))
        return WINDOW_POSTPAID;
    if (name == QLatin1String(XmlName::COMMONPAID))
        return WINDOW_COMMONPAID;
    return name == QLatin1String(XmlName::ADVANCED) ? WINDOW_ADVANCED : 0;
}

void readSim(const QXmlStreamReader &reader, AutoUSSD &autoUSSD)
{
    autoUSSD.imsiMap.insert(
        ForwardXml::attribute(reader, QLatin1String(XmlName::IMSI)),
        windowFlags(ForwardXml::attribute(reader, QLatin1String(XmlName::USSD))));
}

} // namespace

void readConfiguration(QXmlStreamReader &reader, PluginConfig &config)
{
    readPrePostDiffer(reader, config.prePostDiffer);
    for (int paidType = 0; paidType < PluginConfig::PAID_TYPES; ++paidType)
        readPaidSection(reader, paidType, config);
    readCharSection(reader, XmlName::SENT_CHAR, config.sentChar);
    readCharSection(reader, XmlName::RECEIVED_CHAR, config.receivedChar);
    readCmdEdit(reader, config.cmdEdit);
    readAutoUSSD(reader, config.autoUSSD);
}

void readPrePostDiffer(QXmlStreamReader &reader, PrePostDiffer &differ)
{
    ForwardXml::skipTo(reader, QLatin1String(XmlName::PRE_POST_DIFFER));
    differ.value = ForwardXml::boolAttribute(reader, QLatin1String(XmlName::VALUE));
    differ.command = textOf(reader, XmlName::COMMAND);
    differ.returnPattern = textOf(reader, XmlName::RETURN_PATTERN);
    differ.style = numberOf(reader, XmlName::STYLE);
    if (reader.hasError())
        differ.value = false; // an incomplete pattern would misinterpret every reply
}

void readPaidSection(QXmlStreamReader &reader, int paidType, PluginConfig &config)
{
    static const char *const sections[PluginConfig::PAID_TYPES] = {XmlName::PREPAID,
                                                                   XmlName::POSTPAID};
    ForwardXml::skipTo(reader, QLatin1String(sections[paidType]));
    for (int i = 0; i < ITEMS_IN_PAID_SECTION; ++i)
        readItem(reader, paidType, config);
}

void readCharSection(QXmlStreamReader &reader, const char *section, Char &look)
{
    ForwardXml::skipTo(reader, QLatin1String(section));
    look.yHeight = numberOf(reader, XmlName::Y_HEIGHT);
    look.yOffset = numberOf(reader, XmlName::Y_OFFSET);
    readColourOf(reader, XmlName::COLOR, look.red, look.green, look.blue);
}

void readCmdEdit(QXmlStreamReader &reader, CmdEdit &edit)
{
    ForwardXml::skipTo(reader, QLatin1String(XmlName::CMD_EDIT));
    edit.visible = ForwardXml::boolAttribute(reader, QLatin1String(XmlName::VISIBLE));
    readColourOf(reader, XmlName::READONLY_COLOR, edit.readonlyRed, edit.readonlyGreen,
                 edit.readonlyBlue);
    readColourOf(reader, XmlName::COMMON_COLOR, edit.commonRed, edit.commonGreen, edit.commonBlue);
    readColourOf(reader, XmlName::HEAD_COLOR, edit.headRed, edit.headGreen, edit.headBlue);
}

void readClearHistory(QXmlStreamReader &reader, ClearHistory &clear)
{
    ForwardXml::skipTo(reader, QLatin1String(XmlName::CLEAR_HISTORY));
    clear.visible = ForwardXml::boolAttribute(reader, QLatin1String(XmlName::VISIBLE));
    clear.showConfirmDialog =
        ForwardXml::boolAttribute(reader, QLatin1String(XmlName::SHOW_CONFIRM_DIALOG));
}

void readAutoUSSD(QXmlStreamReader &reader, AutoUSSD &autoUSSD)
{
    ForwardXml::skipTo(reader, QLatin1String(XmlName::AUTO_USSD));
    autoUSSD.valid = ForwardXml::boolAttribute(reader, QLatin1String(XmlName::VALID));
    if (!autoUSSD.valid)
        return;
    const QString item = QLatin1String(XmlName::ITEM);
    while (ForwardXml::skipToBefore(reader, item, QLatin1String(XmlName::AUTO_USSD)))
        readSim(reader, autoUSSD);
    if (reader.hasError()) {
        autoUSSD = AutoUSSD(); // with only some of the prefixes, a wrong entry could match
        return;
    }
    while (ForwardXml::skipTo(reader, item))
        readSim(reader, autoUSSD);
}

int windowFlags(const QString &list)
{
    int flags = 0;
    int start = 0;
    while (start <= list.length()) {
        const int slash = list.indexOf(QLatin1Char('/'), start);
        const int end = slash < 0 ? list.length() : slash;
        flags |= windowFlag(list.mid(start, end - start));
        start = end + 1;
    }
    return flags;
}

bool matchImsi(const QHash<QString, int> &prefixes, const QString &imsi, int &flags)
{
    flags = 0;
    // Look up each prefix of the IMSI, starting with the longest. The time of the search therefore
    // does not depend on the size of the map.
    for (int length = imsi.length(); length > 0; --length) {
        const QHash<QString, int>::const_iterator found = prefixes.constFind(imsi.left(length));
        if (found != prefixes.constEnd()) {
            flags = found.value();
            return true;
        }
    }
    return false;
}

} // namespace Formats
