#ifndef PLUGINCONFIG_H
#define PLUGINCONFIG_H

#include <QHash>
#include <QString>

class QXmlStreamReader;

/*
 * What USSDPluginConfig.xml says, as plain values, and the functions that read it. They know
 * nothing of files, windows or the singleton. Each reads forward from where the reader stands; what
 * is missing, does not parse or stands behind a fault of the document becomes false, 0 or empty.
 */

/** Look of one kind of line in the transcript. */
struct Char {
    int yHeight = 0; // a twentieth of a point
    int yOffset = 0;
    int red = 0;
    int green = 0;
    int blue = 0;
};

/** The clear button of the general dialog. */
struct ClearHistory {
    bool visible = false;
    bool showConfirmDialog = false;
};

/** The profile editor: whether it is offered, and the colours of its cells. */
struct CmdEdit {
    int readonlyRed = 0, readonlyGreen = 0, readonlyBlue = 0;
    int commonRed = 0, commonGreen = 0, commonBlue = 0;
    int headRed = 0, headGreen = 0, headBlue = 0;
    bool visible = false;
};

/** How a prepaid SIM is told from a postpaid one. */
struct PrePostDiffer {
    bool value = false; // whether to ask at all
    QString command;
    QString returnPattern;
    int style = 0;
};

/** Which windows go with which SIM. */
struct AutoUSSD {
    bool valid = false;
    QHash<QString, int> imsiMap; // IMSI prefix to a set of WindowFlag
};

/** Windows that go with a SIM; a set of them is an int. */
enum WindowFlag {
    WINDOW_PREPAID = 1,
    WINDOW_POSTPAID = 2,
    WINDOW_COMMONPAID = 4,
    WINDOW_ADVANCED = 8
};

/** Own number. */
struct ConfigMSISDN {
    bool value = false;
    int pos = 0;
    QString command;
    int updateButton = 0;
};

/** Web page for top-ups. */
struct ConfigOnlineCharge {
    bool value = false;
    int pos = 0;
    QString url;
};

/** Top-up by a number. */
struct ConfigCharge {
    bool value = false;
    int pos = 0;
    int length = 0;
    int minlenth = 0;
    int returnStyle = 0;
    QString command;
    QString limitText;
};

struct ConfigBalance {
    bool value = false;
    int pos = 0;
    QString command;
};

/** The whole file but for its USSD-SMS section. Tables are indexed 0 prepaid, 1 postpaid. */
struct PluginConfig {
    static const int PAID_TYPES = 2;

    ConfigMSISDN msisdn[PAID_TYPES];
    ConfigOnlineCharge onlineCharge[PAID_TYPES];
    ConfigCharge charge[PAID_TYPES];
    ConfigBalance balance[PAID_TYPES];
    PrePostDiffer prePostDiffer;
    Char sentChar;
    Char receivedChar;
    CmdEdit cmdEdit;
    ClearHistory clearHistory;
    AutoUSSD autoUSSD;
};

/// Reads all sections but "clearHistory", in the binding order. "clearHistory" may stand anywhere:
/// readClearHistory() needs a reader that stands at the start of the document.
void readConfiguration(QXmlStreamReader &reader, PluginConfig &config);

/// A section with a fault in it is off.
void readPrePostDiffer(QXmlStreamReader &reader, PrePostDiffer &differ);
/// The "Prepaid" (0) or "Postpaid" (1) section: always four items, wherever the fourth one stands.
void readPaidSection(QXmlStreamReader &reader, int paidType, PluginConfig &config);
/// Reads XmlName::SENT_CHAR or XmlName::RECEIVED_CHAR.
void readCharSection(QXmlStreamReader &reader, const char *section, Char &look);
void readCmdEdit(QXmlStreamReader &reader, CmdEdit &edit);
void readClearHistory(QXmlStreamReader &reader, ClearHistory &clear);
/// Reads to the end of the document: every "item" behind "autoUSSD" counts. A section with a fault
/// in it is off and has no items.
void readAutoUSSD(QXmlStreamReader &reader, AutoUSSD &autoUSSD);

/// The window flags in a "/"-separated list such as "Prepaid/Advanced"; unknown parts are ignored.
int windowFlags(const QString &list);

/// Whether a prefix of `imsi` is in the map; `flags` is then that of the longest one, otherwise 0.
bool matchImsi(const QHash<QString, int> &prefixes, const QString &imsi, int &flags);

#endif
