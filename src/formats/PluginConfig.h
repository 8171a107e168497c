#ifndef PLUGINCONFIG_H
#define PLUGINCONFIG_H

#include <QHash>
#include <QString>

class QXmlStreamReader;

namespace Formats
{

/*
 * The contents of USSDPluginConfig.xml as plain values, and the functions that read them. This code
 * does not depend on files or windows. Each function reads forward from the current position of the
 * reader. A value is false, 0 or an empty string if it is missing, invalid, or preceded by an error
 * in the document.
 */

/** The appearance of sent or received lines in the transcript. */
struct Char {
    int yHeight = 0; // in twentieths of a point
    int yOffset = 0;
    int red = 0;
    int green = 0;
    int blue = 0;
};

/** The clear button of the general window. */
struct ClearHistory {
    bool visible = false;
    bool showConfirmDialog = false;
};

/** The settings of the profile editor: its availability and its cell colours. */
struct CmdEdit {
    int readonlyRed = 0, readonlyGreen = 0, readonlyBlue = 0;
    int commonRed = 0, commonGreen = 0, commonBlue = 0;
    int headRed = 0, headGreen = 0, headBlue = 0;
    bool visible = false;
};

/** The settings for the prepaid/postpaid detection. */
struct PrePostDiffer {
    bool value = false; // true if the detection is enabled
    QString command;
    QString returnPattern;
    int style = 0;
};

/** The windows that are available for each SIM. */
struct AutoUSSD {
    bool valid = false;
    QHash<QString, int> imsiMap; // maps an IMSI prefix to a combination of WindowFlag
};

/** A window that is available for a SIM. Flags are combined in an int. */
enum WindowFlag {
    WINDOW_PREPAID = 1,
    WINDOW_POSTPAID = 2,
    WINDOW_COMMONPAID = 4,
    WINDOW_ADVANCED = 8
};

/** The settings of the component that shows the subscriber's own phone number. */
struct ConfigMSISDN {
    bool value = false;
    int pos = 0;
    QString command;
    int updateButton = 0;
};

/** The settings of the component that links to the top-up page. */
struct ConfigOnlineCharge {
    bool value = false;
    int pos = 0;
    QString url;
};

/** The settings of the component that tops up the balance with a code entered by the user. */
struct ConfigCharge {
    bool value = false;
    int pos = 0;
    int length = 0;
    int minlenth = 0;
    int returnStyle = 0;
    QString command;
    QString limitText;
};

/** The settings of the component that shows the balance. */
struct ConfigBalance {
    bool value = false;
    int pos = 0;
    QString command;
};

/**
 * The contents of the file without its USSD-SMS section. In each array, index 0 is for prepaid and
 * index 1 is for postpaid SIMs.
 */
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

/// Reads all sections except "clearHistory" in their required order. Because "clearHistory" may be
/// anywhere in the file, readClearHistory() must be called with a reader at the start of the
/// document.
void readConfiguration(QXmlStreamReader &reader, PluginConfig &config);

/// Reads the settings for the prepaid/postpaid detection. An error in the section disables the
/// detection.
void readPrePostDiffer(QXmlStreamReader &reader, PrePostDiffer &differ);
/// Reads the "Prepaid" section (if `paidType` is 0) or the "Postpaid" section (if it is 1). The
/// section should contain four items. If it contains fewer, the next items of the document are read
/// instead.
void readPaidSection(QXmlStreamReader &reader, int paidType, PluginConfig &config);
/// Reads the section with this name: XmlName::SENT_CHAR or XmlName::RECEIVED_CHAR.
void readCharSection(QXmlStreamReader &reader, const char *section, Char &look);
void readCmdEdit(QXmlStreamReader &reader, CmdEdit &edit);
void readClearHistory(QXmlStreamReader &reader, ClearHistory &clear);
/// Reads the "autoUSSD" section. Every "item" up to the end of the document belongs to this
/// section. An error in the section disables the section and discards its items.
void readAutoUSSD(QXmlStreamReader &reader, AutoUSSD &autoUSSD);

/// Returns the flags for a list of window names such as "Prepaid/Advanced". Unknown names are
/// ignored.
int windowFlags(const QString &list);

/// Returns true if the map contains a prefix of `imsi`. Sets `flags` to the flags of the longest
/// matching prefix, or to 0 if there is none.
bool matchImsi(const QHash<QString, int> &prefixes, const QString &imsi, int &flags);

} // namespace Formats

#endif
