#ifndef SMSLAYOUT_H
#define SMSLAYOUT_H

#include <QList>
#include <QMap>
#include <QRect>
#include <QRegExp>
#include <QString>
#include <QStringList>

class QTreeWidgetItem;
class QWidget;
class QXmlStreamReader;

/*
 * How the USSD-SMS dialog looks and what its services send, as its section of the configuration
 * file says, and the functions that read it. They know nothing of files, windows or the singleton.
 * What they cannot use they drop or replace, and say so in SmsLayout::complaints.
 */

/** The dialog's size in pixels, as written. */
struct CDlgInfo {
    int width = 0;
    int height = 0;
};

/** Geometry of the tree, in pixels relative to the dialog, as written. */
struct CTreeInfo {
    int posx = 0;
    int posy = 0;
    int width = 0;
    int height = 0;
};

/** One entry of the tree of services. */
struct CTreeItem {
    int number = 0;
    int parent = 0;
    QString textId;                            // key of its text
    int isChild = 1;                           // 0 for the root
    QTreeWidgetItem *treeWidgetItem = nullptr; // the row, owned by the tree; null until it is built
};

/** What a control sends; the value of CWidgetItemInfo::kind and CCommandWidget::kind. */
enum SmsControlKind {
    CONTROL_KIND_NONE = 0, // no "type"
    CONTROL_KIND_SMS = 1,  // any other "type"
    CONTROL_KIND_USSD = 2  // "type" is exactly "ussd"
};

/** One control of a service. */
struct CWidgetItemInfo {
    QWidget *widget = nullptr; // what shows it, owned by the dialog; null until it is shown
    int kind = CONTROL_KIND_NONE;
    bool visible = true;
    QString id; // key of its text
    int posx = 0;
    int posy = 0;
    int width = 0;
    int height = 0;
    QString limitText; // allowed characters, as inside the brackets of a regular expression
    int length = 0;    // most characters that can be entered
    int minLength = 0;
    QString command; // USSD code or text of the short message
    QString number;  // where the short message goes
};

/** The controls that stand beside the tree while one of its entries is selected. */
struct CWidget {
    CWidget() = default;
    ~CWidget() { qDeleteAll(controls); }
    Q_DISABLE_COPY(CWidget)

    int number = 0;
    QList<CWidgetItemInfo *> controls; // in the file's order; owned
};

/** The whole section. Owns its records. */
struct SmsLayout {
    SmsLayout() = default;
    ~SmsLayout() { clear(); }
    Q_DISABLE_COPY(SmsLayout)

    /// Deletes every record; everything is then as in a new one.
    void clear();

    CDlgInfo dialog;
    CTreeInfo tree;
    bool hasRoot = false;
    int rootNumber = 0;             // meaningful once there is a root
    int ordinaryEntries = 0;        // accepted so far, also those that replaced another
    QMap<int, CTreeItem *> entries; // by number
    QMap<int, CWidget *> groups;    // by the number of the entry that shows it
    QStringList complaints;         // what was wrong, each with its line; the first few only
    int furtherComplaints = 0;      // how many more there were
};

namespace SmsLayoutFile
{

/// Controls of a group that can be shown; a group with more or fewer is kept, but never is.
const int CONTROLS_OF_GROUP = 5;
const int MAX_ORDINARY_ENTRIES = 25;
/// The highest count that QRegExp knows, and so the most that an input field takes.
const int MAX_INPUT_LENGTH = 1024;
/// A longer "LimitText" is not used.
const int MAX_LIMIT_TEXT = 1000;
/// The largest side of the dialog, in pixels: its window needs memory for each of them.
const int MAX_WINDOW_SIDE = 4096;

/// Reads on to the end of the document. False when it is not well-formed; what was read up to there
/// is kept.
bool read(QXmlStreamReader &reader, SmsLayout &layout);

/// Reads one "Dialog" element, whose start element the reader stands on.
void readDialogElement(QXmlStreamReader &reader, SmsLayout &layout);

/// What can be entered in this control. A limit text that is no character class is left out, and
/// the length kept within what can be counted.
QRegExp inputPattern(const CWidgetItemInfo &control);

/// Whether the text between "[" and "]" is one class of characters and nothing else.
bool isCharacterClass(const QString &limitText);

/// The dialog's size, kept within 0 and MAX_WINDOW_SIDE.
QSize windowSize(const CDlgInfo &dialog);

/// Where a control or the tree stands in a dialog of this width, with sides and places that Qt can
/// calculate with. Mirrored: as far from the right side as it was from the left.
QRect geometry(const CWidgetItemInfo &control, int dialogWidth, bool mirrored);
QRect geometry(const CTreeInfo &tree, int dialogWidth, bool mirrored);

} // namespace SmsLayoutFile

#endif
