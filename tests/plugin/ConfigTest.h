#ifndef CONFIGTEST_H
#define CONFIGTEST_H

#include "PluginTest.h"

#include <QFile>
#include <QXmlStreamReader>

#include "CommonUtils.h"
#include "OddFiles.h"
#include "requests/USSDLogic.h"
#include "windows/USSDSMSDlg.h"

using namespace Formats;

const int PREPAID = 0;
const int POSTPAID = 1;
const int BALANCE = 0;
const int CHARGE = 1;
const int ONLINE_CHARGE = 2;
const int MSISDN = 3;

const int UNUSED_ATTRIBUTES[] = {-1, 3, 4, 11};

inline QByteArray balanceItem(const QByteArray &attributes, const QByteArray &command = "*100#")
{
    return "<item name='Balance' " + attributes + "><command>" + command + "</command></item>";
}

inline QByteArray chargeItem(const QByteArray &command = "*101#")
{
    return "<item name='Charge' value='true' pos='11'><command>" + command +
           "</command><length>16</length><minlenth>12</minlenth><ReturnStyle>3</ReturnStyle>"
           "<LimitText>0-9</LimitText></item>";
}

inline QByteArray onlineItem(const QByteArray &url = "www.example.com")
{
    return "<item name='OnlineCharge' value='true' pos='12'><URL>" + url + "</URL></item>";
}

inline QByteArray msisdnItem(const QByteArray &command = "*102#")
{
    return "<item name='MSISDN' value='true' pos='13'><command>" + command +
           "</command><UpdateButton>7</UpdateButton></item>";
}

inline QByteArray fourItems()
{
    return balanceItem("value='true' pos='10'") + chargeItem() + onlineItem() + msisdnItem();
}

const char DIFFER[] = "<PrePostDiffer value='true'><command>*103#</command>"
                      "<ReturnPattern>post</ReturnPattern><style>1</style></PrePostDiffer>";

/// Returns the text nested in 100,000 elements. If `hasEnd` is false, the end tags are missing.
inline QByteArray nested(const QByteArray &text, bool hasEnd = true)
{
    const int levels = 100000;
    return QByteArray("<a>").repeated(levels) + text +
           (hasEnd ? QByteArray("</a>").repeated(levels) : QByteArray());
}

/// Returns a configuration. Its root element has a different name from the one in completeConfig(),
/// because any name is permitted.
inline QByteArray config(const QByteArray &prepaid, const QByteArray &postpaid,
                         const QByteArray &rest = QByteArray())
{
    return QByteArray("<anything>") + DIFFER + "<Prepaid>" + prepaid + "</Prepaid><Postpaid>" +
           postpaid + "</Postpaid>" + rest + "</anything>";
}

inline QByteArray charSection(const char *name, const char *yHeight, const char *colour)
{
    return QByteArray("<") + name + "><yHeight>" + yHeight + "</yHeight><yOffset>2</yOffset>" +
           "<color " + colour + "/></" + name + ">";
}

/// Returns the sections between "Postpaid" and "autoUSSD". They are needed because the parser, when
/// it does not find a section, skips the rest of the file.
inline QByteArray looks()
{
    return charSection("send", "20", "") + charSection("recevie", "20", "") +
           "<cmdEdit><readonlycolor/><commoncolor/><headcolor/></cmdEdit>";
}

inline QByteArray autoUSSD(const QByteArray &items, const QByteArray &valid = "true")
{
    return config(fourItems(), fourItems(),
                  looks() + "<autoUSSD valid='" + valid + "'>" + items + "</autoUSSD>");
}

inline QByteArray imsiItem(const QByteArray &imsi, const QByteArray &windows)
{
    return "<item imsi='" + imsi + "' ussd='" + windows + "'/>";
}

class ConfigTest : public PluginTest
{
    Q_OBJECT

protected:
    static USSDLogic *logic() { return USSDLogic::GetUSSDLogicInstance(); }
    static int number(int paidType, int component, int attr);
    static QString text(int paidType, int component, int attr);
    static Char look(_CHAR_SET_COLOR which);
    static ClearHistory clearSetting();
    static CmdEdit editSetting();
    static PrePostDiffer differ();
    /// Returns the flags for the longest matching prefix, or -1 if no prefix matches. In this case,
    /// also checks that the flags are 0.
    static int flagsOf(const QString &imsi);
};

#endif
