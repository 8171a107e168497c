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

namespace Formats
{

/*
 * The layout of the USSD-SMS window and the commands of its services, and the functions that read
 * them from the configuration file. This code does not depend on files or windows. An invalid value
 * is dropped or replaced, and a complaint is added to SmsLayout::complaints.
 */

/** The size of the window in pixels, as specified in the file. */
struct CDlgInfo {
    int width = 0;
    int height = 0;
};

/** The geometry of the tree in pixels relative to the window, as specified in the file. */
struct CTreeInfo {
    int posx = 0;
    int posy = 0;
    int width = 0;
    int height = 0;
};

/** An entry of the service tree. */
struct CTreeItem {
    int number = 0;
    int parent = 0;
    QString textId;                            // key of the entry's label
    int isChild = 1;                           // 0 for the root
    QTreeWidgetItem *treeWidgetItem = nullptr; // owned by the tree; null until the item is created
};

/**
 * Specifies how a control sends its command. These are the values of CWidgetItemInfo::kind and
 * CCommandWidget::kind.
 */
enum SmsControlKind {
    CONTROL_KIND_NONE = 0, // "type" is missing
    CONTROL_KIND_SMS = 1,  // "type" has any value except "ussd"
    CONTROL_KIND_USSD = 2  // "type" is exactly "ussd"
};

/** A control of a service. */
struct CWidgetItemInfo {
    QWidget *widget = nullptr; // owned by the window; null until the control is shown
    int kind = CONTROL_KIND_NONE;
    bool visible = true;
    QString id; // key of the control's label
    int posx = 0;
    int posy = 0;
    int width = 0;
    int height = 0;
    QString limitText; // allowed characters, as in a character class of a regular expression
    int length = 0;    // maximum number of characters that can be entered
    int minLength = 0; // minimum number of characters
    QString command;   // USSD code, or text of the short message
    QString number;    // recipient of the short message
};

/** The controls that are shown next to the tree while their entry is selected. */
struct CWidget {
    CWidget() = default;
    ~CWidget() { qDeleteAll(controls); }
    Q_DISABLE_COPY(CWidget)

    int number = 0;
    QList<CWidgetItemInfo *> controls; // owned; in the order of the file
};

/** The contents of the USSD-SMS section. SmsLayout owns the records in `entries` and `groups`. */
struct SmsLayout {
    SmsLayout() = default;
    ~SmsLayout() { clear(); }
    Q_DISABLE_COPY(SmsLayout)

    /// Deletes all records and restores the initial state.
    void clear();

    CDlgInfo dialog;
    CTreeInfo tree;
    bool hasRoot = false;
    int rootNumber = 0;             // valid only if hasRoot is true
    int ordinaryEntries = 0;        // number of accepted entries, including replaced entries
    QMap<int, CTreeItem *> entries; // keyed by the number of the entry
    QMap<int, CWidget *> groups;    // keyed by the number of the tree entry
    QStringList complaints;         // the first few complaints, each with its line number
    int furtherComplaints = 0;      // number of complaints that are not stored
};

namespace SmsLayoutFile
{

/// The number of controls in a complete group. Incomplete groups are stored but never shown.
const int CONTROLS_OF_GROUP = 5;
const int MAX_ORDINARY_ENTRIES = 25;
/// The maximum length of an input field, which is the highest repetition count that QRegExp
/// supports.
const int MAX_INPUT_LENGTH = 1024;
/// The maximum length of "LimitText". A longer LimitText is ignored.
const int MAX_LIMIT_TEXT = 1000;
/// The maximum width and height of the window in pixels. A larger window could exhaust the memory.
const int MAX_WINDOW_SIDE = 4096;

/// Reads to the end of the document. Returns false if the document is not well-formed, but keeps
/// the elements that precede the error.
bool read(QXmlStreamReader &reader, SmsLayout &layout);

/// Reads one "Dialog" element. The reader must be at its start element.
void readDialogElement(QXmlStreamReader &reader, SmsLayout &layout);

/// Returns the pattern that the input in this control must match. LimitText is ignored if it is not
/// a character class. The length is limited to the highest repetition count that QRegExp supports.
QRegExp inputPattern(const CWidgetItemInfo &control);

/// Returns true if the string forms exactly one character class when it is enclosed in "[" and "]".
bool isCharacterClass(const QString &limitText);

/// Returns the size of the window, with each side limited to the range from 0 to MAX_WINDOW_SIDE.
QSize windowSize(const CDlgInfo &dialog);

/// Returns the geometry of a control or of the tree in a window of the given width. All values are
/// limited to a range in which Qt's calculations cannot overflow. If `mirrored` is true, the
/// distance from the left side becomes the distance from the right side.
QRect geometry(const CWidgetItemInfo &control, int dialogWidth, bool mirrored);
QRect geometry(const CTreeInfo &tree, int dialogWidth, bool mirrored);

} // namespace SmsLayoutFile

} // namespace Formats

#endif
