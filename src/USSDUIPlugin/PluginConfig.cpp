#include "PluginConfig.h"

#include <QXmlStreamReader>

#include "ForwardXml.h"

const char kSentCharSection[] = "send";
const char kReceivedCharSection[] = "recevie";

namespace
{

const int kItemsInPaidSection = 4;

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
    component.value = ForwardXml::boolAttribute(reader, QLatin1String("value"));
    component.pos = ForwardXml::numberAttribute(reader, QLatin1String("pos"));
}

void readBalance(QXmlStreamReader &reader, ConfigBalance &balance)
{
    readShownAndPosition(reader, balance);
    balance.command = textOf(reader, "command");
}

void readCharge(QXmlStreamReader &reader, ConfigCharge &charge)
{
    readShownAndPosition(reader, charge);
    charge.command = textOf(reader, "command");
    charge.length = numberOf(reader, "length");
    charge.minlenth = numberOf(reader, "minlenth");
    charge.returnStyle = numberOf(reader, "ReturnStyle");
    charge.limitText = textOf(reader, "LimitText");
}

void readOnlineCharge(QXmlStreamReader &reader, ConfigOnlineCharge &online)
{
    readShownAndPosition(reader, online);
    online.url = textOf(reader, "URL");
}

void readMSISDN(QXmlStreamReader &reader, ConfigMSISDN &msisdn)
{
    readShownAndPosition(reader, msisdn);
    msisdn.command = textOf(reader, "command");
    msisdn.updateButton = numberOf(reader, "UpdateButton");
}

void readItem(QXmlStreamReader &reader, int paidType, PluginConfig &config)
{
    ForwardXml::skipTo(reader, QLatin1String("item"));
    const QString name = ForwardXml::attribute(reader, QLatin1String("name"));
    if (name == QLatin1String("Balance"))
        readBalance(reader, config.balance[paidType]);
    else if (name == QLatin1String("Charge"))
        readCharge(reader, config.charge[paidType]);
    else if (name == QLatin1String("OnlineCharge"))
        readOnlineCharge(reader, config.onlineCharge[paidType]);
    else if (name == QLatin1String("MSISDN"))
        readMSISDN(reader, config.msisdn[paidType]);
}

void readColour(const QXmlStreamReader &reader, int &red, int &green, int &blue)
{
    red = ForwardXml::numberAttribute(reader, QLatin1String("red"));
    green = ForwardXml::numberAttribute(reader, QLatin1String("green"));
    blue = ForwardXml::numberAttribute(reader, QLatin1String("blue"));
}

void readColourOf(QXmlStreamReader &reader, const char *element, int &red, int &green, int &blue)
{
    ForwardXml::skipTo(reader, QLatin1String(element));
    readColour(reader, red, green, blue);
}

int windowFlag(const QStringRef &name)
{
    if (name == QLatin1String("Prepaid"))
        return WINDOW_PREPAID;
    if (name == QLatin1String("Postpaid"))
        return WINDOW_POSTPAID;
    if (name == QLatin1String("Commonpaid"))
        return WINDOW_COMMONPAID;
    return name == QLatin1String("Advanced") ? WINDOW_ADVANCED : 0;
}

void readSim(const QXmlStreamReader &reader, AutoUSSD &autoUSSD)
{
    autoUSSD.imsiMap.insert(ForwardXml::attribute(reader, QLatin1String("imsi")),
                            windowFlags(ForwardXml::attribute(reader, QLatin1String("ussd"))));
}

} // namespace

void readPrePostDiffer(QXmlStreamReader &reader, PrePostDiffer &differ)
{
    ForwardXml::skipTo(reader, QLatin1String("PrePostDiffer"));
    differ.value = ForwardXml::boolAttribute(reader, QLatin1String("value"));
    differ.command = textOf(reader, "command");
    differ.returnPattern = textOf(reader, "ReturnPattern");
    differ.style = numberOf(reader, "style");
    if (reader.hasError())
        differ.value = false; // half a section would make a wrong answer of any reply
}

void readPaidSection(QXmlStreamReader &reader, int paidType, PluginConfig &config)
{
    static const char *const sections[PluginConfig::kPaidTypes] = {"Prepaid", "Postpaid"};
    ForwardXml::skipTo(reader, QLatin1String(sections[paidType]));
    for (int i = 0; i < kItemsInPaidSection; ++i)
        readItem(reader, paidType, config);
}

void readCharSection(QXmlStreamReader &reader, const char *section, Char &look)
{
    ForwardXml::skipTo(reader, QLatin1String(section));
    look.yHeight = numberOf(reader, "yHeight");
    look.yOffset = numberOf(reader, "yOffset");
    readColourOf(reader, "color", look.red, look.green, look.blue);
}

void readCmdEdit(QXmlStreamReader &reader, CmdEdit &edit)
{
    ForwardXml::skipTo(reader, QLatin1String("cmdEdit"));
    edit.visible = ForwardXml::boolAttribute(reader, QLatin1String("visible"));
    readColourOf(reader, "readonlycolor", edit.readonlyRed, edit.readonlyGreen, edit.readonlyBlue);
    readColourOf(reader, "commoncolor", edit.commonRed, edit.commonGreen, edit.commonBlue);
    readColourOf(reader, "headcolor", edit.headRed, edit.headGreen, edit.headBlue);
}

void readClearHistory(QXmlStreamReader &reader, ClearHistory &clear)
{
    ForwardXml::skipTo(reader, QLatin1String("clearHistory"));
    clear.visible = ForwardXml::boolAttribute(reader, QLatin1String("visible"));
    clear.showConfirmDialog = ForwardXml::boolAttribute(reader, QLatin1String("showConfirmDialog"));
}

void readAutoUSSD(QXmlStreamReader &reader, AutoUSSD &autoUSSD)
{
    ForwardXml::skipTo(reader, QLatin1String("autoUSSD"));
    autoUSSD.valid = ForwardXml::boolAttribute(reader, QLatin1String("valid"));
    if (!autoUSSD.valid)
        return;
    const QString item = QLatin1String("item");
    while (ForwardXml::skipToBefore(reader, item, QLatin1String("autoUSSD")))
        readSim(reader, autoUSSD);
    if (reader.hasError()) {
        autoUSSD = AutoUSSD(); // with half of the prefixes, a SIM could get the windows of another
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
        flags |= windowFlag(list.midRef(start, end - start));
        start = end + 1;
    }
    return flags;
}

bool matchImsi(const QHash<QString, int> &prefixes, const QString &imsi, int &flags)
{
    flags = 0;
    // One look-up for each length, longest first: the time does not grow with the map.
    for (int length = imsi.length(); length > 0; --length) {
        const QHash<QString, int>::const_iterator found = prefixes.constFind(imsi.left(length));
        if (found != prefixes.constEnd()) {
            flags = found.value();
            return true;
        }
    }
    return false;
}
