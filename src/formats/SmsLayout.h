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
 * The layout of the USSD-SMS dialog and the commands of its services, as they are in their section
 * of the configuration file, and the functions that read them. They do not depend on files, windows
 * or the singleton. A value that cannot be used is dropped or replaced, and a complaint is added to
 * SmsLayout::complaints.
 */

/** The size of the dialog in pixels, as the file specifies it. */
struct CDlgInfo {
    int width = 0;
    int height = 0;
};

/** The geometry of the tree in pixels relative to the dialog, as the file specifies it. */
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
    QString textId;                            // key of the entry's text
    int isChild = 1;                           // 0 for the root
    QTreeWidgetItem *treeWidgetItem = nullptr; // owned by the tree; null until it is created
};

/**
 * The ways in which a control sends its command: the values of CWidgetItemInfo::kind and
 * CCommandWidget::kind.
 */
enum SmsControlKind {
    CONTROL_KIND_NONE = 0, // there is no "type"
    CONTROL_KIND_SMS = 1,  // any other "type"
    CONTROL_KIND_USSD = 2  // "type" is exactly "ussd"
};

/** One control of a service. */
struct CWidgetItemInfo {
    QWidget *widget = nullptr; // owned by the dialog; null until the control is shown
    int kind = CONTROL_KIND_NONE;
    bool visible = true;
    QString id; // key of the control's text
    int posx = 0;
    int posy = 0;
    int width = 0;
    int height = 0;
    QString limitText; // allowed characters, as between the brackets of a regular expression
    int length = 0;    // maximum number of characters that can be entered
    int minLength = 0; // minimum number of characters
    QString command;   // USSD code, or text of the short message
    QString number;    // recipient of the short message
};

/** The controls that appear next to the tree while one of its entries is selected. */
struct CWidget {
    CWidget() = default;
    ~CWidget() { qDeleteAll(controls); }
    Q_DISABLE_COPY(CWidget)

    int number = 0;
    QList<CWidgetItemInfo *> controls; // owned; in the order of the file
};

/** The whole section. It owns its records. */
struct SmsLayout {
    SmsLayout() = default;
    ~SmsLayout() { clear(); }
    Q_DISABLE_COPY(SmsLayout)

    /// Deletes all records and restores the state of a new object.
    void clear();

    CDlgInfo dialog;
    CTreeInfo tree;
    bool hasRoot = false;
    int rootNumber = 0;             // valid only if hasRoot is true
    int ordinaryEntries = 0;        // accepted entries, including those that replaced another entry
    QMap<int, CTreeItem *> entries; // the entries, by number
    QMap<int, CWidget *> groups;    // the groups, by the number of the entry that shows them
    QStringList complaints;         // the first few complaints, each with its line
    int furtherComplaints = 0;      // number of complaints that are not listed
};

namespace SmsLayoutFile
{

/// The number of controls in a group. A group with another number of controls is kept but never
/// shown.
const int CONTROLS_OF_GROUP = 5;
const int MAX_ORDINARY_ENTRIES = 25;
/// The highest count that QRegExp supports, which is therefore the maximum length of an input
/// field.
const int MAX_INPUT_LENGTH = 1024;
/// The maximum length of "LimitText". A longer text is ignored.
const int MAX_LIMIT_TEXT = 1000;
/// The maximum width and height of the dialog in pixels. A larger window could need more memory
/// than there is.
const int MAX_WINDOW_SIDE = 4096;

/// Reads to the end of the document. Returns false if the document is not well-formed; the elements
/// before the fault are kept.
bool read(QXmlStreamReader &reader, SmsLayout &layout);

/// Reads one "Dialog" element. The reader is at its start element.
void readDialogElement(QXmlStreamReader &reader, SmsLayout &layout);

/// Returns the pattern for the input in this control. A limit text that is not a character class is
/// ignored, and the length is limited to the highest count that QRegExp supports.
QRegExp inputPattern(const CWidgetItemInfo &control);

/// Returns true if the text, when written between "[" and "]", is exactly one character class.
bool isCharacterClass(const QString &limitText);

/// Returns the size of the dialog, with each side limited to the range from 0 to MAX_WINDOW_SIDE.
QSize windowSize(const CDlgInfo &dialog);

/// Returns the geometry of a control, or of the tree, in a dialog of this width. The values are
/// limited to a range that is safe for Qt's calculations. If `mirrored` is true, the distance from
/// the left side becomes the distance from the right side.
QRect geometry(const CWidgetItemInfo &control, int dialogWidth, bool mirrored);
QRect geometry(const CTreeInfo &tree, int dialogWidth, bool mirrored);

} // namespace SmsLayoutFile

} // namespace Formats

#endif
