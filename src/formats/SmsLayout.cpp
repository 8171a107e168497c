#include "SmsLayout.h"

#include <QXmlStreamReader>

#include <memory>

#include "ForwardXml.h"
#include "XmlName.h"

namespace Formats
{

namespace
{

const int LARGEST_SIDE = (1 << 24) - 1; // in pixels; the value of QWIDGETSIZE_MAX

const int MAX_COMPLAINTS = 20;
const int MAX_QUOTED = 40;  // the maximum length of a quoted value in a complaint
const int MAX_CONTROLS = 6; // per group; sufficient to detect that a group has too many controls
const int MAX_GROUPS = 500; // per file; far more than there are tree entries

/// Returns the value in quotation marks, shortened to fit into a log line.
QString quoted(const QString &text)
{
    if (text.length() <= MAX_QUOTED)
        return QLatin1Char('"') + text + QLatin1Char('"');
    return QLatin1Char('"') + text.left(MAX_QUOTED) + QLatin1String("...\"");
}

/**
 * Searches the section for known element names from start to end. Unknown elements are ignored, but
 * known elements inside them are read.
 */
class Reader
{
public:
    Reader(QXmlStreamReader &xml, SmsLayout &layout) : m_xml(xml), m_layout(layout) {}

    bool readDocument();
    void readDialog();

private:
    bool nextStart(const char *fence);
    bool nextStart(const char *name, const char *fence);
    bool isAt(const char *name) const { return m_xml.name() == QLatin1String(name); }
    /// Returns the complete text of the current element, including nested elements.
    QString text() { return ForwardXml::text(m_xml); }
    void skipElement() { text(); }
    QString attribute(const char *name) const;
    int numberAttribute(const char *name);
    int numberText(const char *name);
    int number(const char *name, const QString &text);
    int pixels(const char *name, int least);
    QString onLine(const QString &what) const;
    void complain(const QString &what);

    void readSection();
    void readPart();
    void readMainSize();
    void readTreeSize();
    void readTree();
    void readEntry();
    void takeRoot(CTreeItem *entry);
    void takeOrdinary(CTreeItem *entry);
    QString whyDropped(const CTreeItem &entry) const;
    void store(CTreeItem *entry);

    void readGroup();
    void storeGroup(int entry, CWidget *group);
    CWidgetItemInfo *readControl();
    void readControlAttributes(CWidgetItemInfo &control);
    void readControlElement(CWidgetItemInfo &control);
    void checkInput(const CWidgetItemInfo &control);
    void checkGroups();

    QXmlStreamReader &m_xml;
    SmsLayout &m_layout;
};

// ---- tokens --------------------------------------------------------------------------------

/// Moves to the next start element. Returns false at the end element `fence` or at the end of the
/// document.
bool Reader::nextStart(const char *fence)
{
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = ForwardXml::next(m_xml);
        if (token == QXmlStreamReader::StartElement)
            return !m_xml.hasError();
        if (token == QXmlStreamReader::EndElement && isAt(fence))
            return false;
    }
    return false;
}

bool Reader::nextStart(const char *name, const char *fence)
{
    while (nextStart(fence)) {
        if (isAt(name))
            return true;
    }
    return false;
}

QString Reader::attribute(const char *name) const
{
    return m_xml.attributes().value(QLatin1String(name)).toString();
}

/// Returns the attribute as a number. If the attribute is missing, returns 0 without a complaint.
int Reader::numberAttribute(const char *name)
{
    if (!m_xml.attributes().hasAttribute(QLatin1String(name)))
        return 0;
    return number(name, attribute(name));
}

int Reader::numberText(const char *name)
{
    return number(name, text());
}

int Reader::number(const char *name, const QString &text)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    if (!ok)
        complain(QString::fromLatin1("%1 %2 is not a number; 0 is used")
                     .arg(QLatin1String(name), quoted(text)));
    return value;
}

/// Returns the value of the attribute. A value that is out of range is reported but not changed,
/// because geometry() limits it when the widget is placed.
int Reader::pixels(const char *name, int least)
{
    const int value = numberAttribute(name);
    if (value < least || value > LARGEST_SIDE)
        complain(QString::fromLatin1("%1 %2 is out of range (%3 to %4)")
                     .arg(QLatin1String(name))
                     .arg(value)
                     .arg(least)
                     .arg(LARGEST_SIDE));
    return value;
}

QString Reader::onLine(const QString &what) const
{
    return QString::fromLatin1("line %1: ").arg(m_xml.lineNumber()) + what;
}

void Reader::complain(const QString &what)
{
    if (m_layout.complaints.count() < MAX_COMPLAINTS)
        m_layout.complaints << onLine(what);
    else
        ++m_layout.furtherComplaints;
}

// ---- section and tree ----------------------------------------------------------------------

bool Reader::readDocument()
{
    while (nextStart(XmlName::SMS_USSD, ""))
        readSection();
    if (!m_xml.hasError())
        checkGroups();
    else // stored even if the number of complaints has already reached the limit
        m_layout.complaints.prepend(onLine(m_xml.errorString()));
    return !m_xml.hasError();
}

void Reader::readSection()
{
    while (nextStart(XmlName::SMS_USSD))
        readPart();
}

void Reader::readPart()
{
    if (isAt(XmlName::MAIN_SIZE))
        readMainSize();
    else if (isAt(XmlName::TREE_SIZE))
        readTreeSize();
    else if (isAt(XmlName::TREE))
        readTree();
    else if (isAt(XmlName::DIALOG))
        readDialog();
}

void Reader::readMainSize()
{
    CDlgInfo &dialog = m_layout.dialog;
    dialog.width = numberAttribute(XmlName::WIDTH);
    dialog.height = numberAttribute(XmlName::HEIGHT);
    if (SmsLayoutFile::windowSize(dialog) != QSize(dialog.width, dialog.height))
        complain(QString::fromLatin1("MainSize %1 x %2 is out of range (0 to %3)")
                     .arg(dialog.width)
                     .arg(dialog.height)
                     .arg(SmsLayoutFile::MAX_WINDOW_SIDE));
}

void Reader::readTreeSize()
{
    m_layout.tree.posx = pixels(XmlName::POS_X, -LARGEST_SIDE);
    m_layout.tree.posy = pixels(XmlName::POS_Y, -LARGEST_SIDE);
    m_layout.tree.width = pixels(XmlName::WIDTH, 0);
    m_layout.tree.height = pixels(XmlName::HEIGHT, 0);
}

void Reader::readTree()
{
    while (nextStart(XmlName::ITEM, XmlName::TREE))
        readEntry();
}

void Reader::readEntry()
{
    std::unique_ptr<CTreeItem> entry(new CTreeItem);
    entry->number = numberAttribute(XmlName::NAME);
    entry->parent = numberAttribute(XmlName::PARENT);
    entry->textId = attribute(XmlName::ID);
    if (attribute(XmlName::TYPE) == QLatin1String(XmlName::TREE_ROOT))
        takeRoot(entry.release());
    else
        takeOrdinary(entry.release());
}

void Reader::takeRoot(CTreeItem *entry)
{
    entry->isChild = 0;
    if (m_layout.hasRoot) {
        complain(
            QString::fromLatin1("entry %1 is a second root; it is left out").arg(entry->number));
        delete entry;
        return;
    }
    m_layout.hasRoot = true;
    m_layout.rootNumber = entry->number;
    store(entry);
}

void Reader::takeOrdinary(CTreeItem *entry)
{
    const QString reason = whyDropped(*entry);
    if (!reason.isEmpty()) {
        complain(QString::fromLatin1("entry %1 is left out: ").arg(entry->number) + reason);
        delete entry;
        return;
    }
    store(entry);
    ++m_layout.ordinaryEntries;
}

/// Returns the reason why the entry is dropped, or an empty string if the entry is accepted. The
/// tree has two levels, and the root must be the first entry.
QString Reader::whyDropped(const CTreeItem &entry) const
{
    if (m_layout.ordinaryEntries >= SmsLayoutFile::MAX_ORDINARY_ENTRIES)
        return QString::fromLatin1("there are %1 already").arg(SmsLayoutFile::MAX_ORDINARY_ENTRIES);
    if (!m_layout.hasRoot)
        return QLatin1String("it stands before the root");
    if (entry.parent != m_layout.rootNumber)
        return QString::fromLatin1("its parent %1 is not the root").arg(entry.parent);
    return QString();
}

void Reader::store(CTreeItem *entry)
{
    if (CTreeItem *replaced = m_layout.entries.take(entry->number)) {
        complain(QString::fromLatin1("entry %1 replaces an earlier one").arg(entry->number));
        delete replaced;
    }
    m_layout.entries.insert(entry->number, entry);
}

// ---- controls ------------------------------------------------------------------------------

void Reader::readDialog()
{
    while (nextStart(XmlName::ITEM, XmlName::DIALOG))
        readGroup();
}

void Reader::readGroup()
{
    std::unique_ptr<CWidget> group(new CWidget);
    group->number = numberAttribute(XmlName::NAME);
    const int entry = numberAttribute(XmlName::PARENT);
    int count = 0;
    while (nextStart(XmlName::CONTROL, XmlName::ITEM)) {
        std::unique_ptr<CWidgetItemInfo> control(readControl());
        if (++count <= MAX_CONTROLS)
            group->controls << control.release();
    }
    if (m_xml.hasError())
        return; // the group is incomplete
    if (count != SmsLayoutFile::CONTROLS_OF_GROUP)
        complain(QString::fromLatin1("the group of entry %1 has %2 controls; shown are %3 only")
                     .arg(entry)
                     .arg(count)
                     .arg(SmsLayoutFile::CONTROLS_OF_GROUP));
    storeGroup(entry, group.release());
}

void Reader::storeGroup(int entry, CWidget *group)
{
    if (CWidget *replaced = m_layout.groups.take(entry)) {
        complain(QString::fromLatin1("the group of entry %1 replaces an earlier one").arg(entry));
        delete replaced;
    } else if (m_layout.groups.count() >= MAX_GROUPS) {
        complain(QString::fromLatin1("the group of entry %1 is left out: there are too many")
                     .arg(entry));
        delete group;
        return;
    }
    m_layout.groups.insert(entry, group);
}

CWidgetItemInfo *Reader::readControl()
{
    std::unique_ptr<CWidgetItemInfo> control(new CWidgetItemInfo);
    readControlAttributes(*control);
    while (nextStart(XmlName::CONTROL))
        readControlElement(*control);
    checkInput(*control);
    return control.release();
}

void Reader::readControlAttributes(CWidgetItemInfo &control)
{
    if (m_xml.attributes().hasAttribute(QLatin1String(XmlName::TYPE)))
        control.kind = attribute(XmlName::TYPE) == QLatin1String(XmlName::USSD) ? CONTROL_KIND_USSD
                                                                                : CONTROL_KIND_SMS;
    control.visible = attribute(XmlName::VISIBLE) != QLatin1String(XmlName::OFF);
    control.id = attribute(XmlName::ID);
    control.posx = pixels(XmlName::POS_X, -LARGEST_SIDE);
    control.posy = pixels(XmlName::POS_Y, -LARGEST_SIDE);
    control.width = pixels(XmlName::WIDTH, 0);
    control.height = pixels(XmlName::HEIGHT, 0);
}

void Reader::readControlElement(CWidgetItemInfo &control)
{
    if (isAt(XmlName::LIMIT_TEXT))
        control.limitText = text();
    else if (isAt(XmlName::LENGTH))
        control.length = numberText(XmlName::LENGTH);
    else if (isAt(XmlName::MIN_LENGTH))
        control.minLength = numberText(XmlName::MIN_LENGTH);
    else if (isAt(XmlName::COMMAND))
        control.command = text();
    else if (isAt(XmlName::NUMBER))
        control.number = text();
    else
        skipElement();
}

void Reader::checkInput(const CWidgetItemInfo &control)
{
    if (!control.limitText.isEmpty() && !SmsLayoutFile::isCharacterClass(control.limitText))
        complain(QString::fromLatin1("LimitText %1 is no class of characters; any are allowed")
                     .arg(quoted(control.limitText)));
    if (control.length < 0 || control.length > SmsLayoutFile::MAX_INPUT_LENGTH)
        complain(QString::fromLatin1("length %1 is out of range (0 to %2)")
                     .arg(control.length)
                     .arg(SmsLayoutFile::MAX_INPUT_LENGTH));
}

/// Adds a complaint for each group that has no tree entry. Must be called at the end of the
/// section, because a group may precede the tree.
void Reader::checkGroups()
{
    const QList<int> numbers = m_layout.groups.keys();
    for (int i = 0; i < numbers.count(); ++i) {
        if (!m_layout.entries.contains(numbers.at(i)))
            complain(
                QString::fromLatin1("the tree has no entry %1 for a group").arg(numbers.at(i)));
    }
}

// ---- geometry ------------------------------------------------------------------------------

QRect placed(const QRect &asRead, int dialogWidth, bool mirrored)
{
    if (!mirrored)
        return asRead;
    return QRect(QPoint(dialogWidth - asRead.x() - asRead.width(), asRead.y()), asRead.size());
}

/// Returns the coordinate, limited to a range in which Qt's calculations cannot overflow.
int boundedPlace(int pixels)
{
    return qBound(-LARGEST_SIDE, pixels, LARGEST_SIDE);
}

int boundedSide(int pixels)
{
    return qBound(0, pixels, LARGEST_SIDE);
}

template <typename Record>
QRect boundedRect(const Record &record)
{
    return QRect(boundedPlace(record.posx), boundedPlace(record.posy), boundedSide(record.width),
                 boundedSide(record.height));
}

} // namespace

void SmsLayout::clear()
{
    qDeleteAll(entries);
    qDeleteAll(groups);
    entries.clear();
    groups.clear();
    complaints.clear();
    dialog = CDlgInfo();
    tree = CTreeInfo();
    hasRoot = false;
    rootNumber = 0;
    ordinaryEntries = 0;
    furtherComplaints = 0;
}

namespace SmsLayoutFile
{

bool read(QXmlStreamReader &reader, SmsLayout &layout)
{
    return Reader(reader, layout).readDocument();
}

void readDialogElement(QXmlStreamReader &reader, SmsLayout &layout)
{
    Reader(reader, layout).readDialog();
}

QRegExp inputPattern(const CWidgetItemInfo &control)
{
    const QString characters = control.limitText.isEmpty() || !isCharacterClass(control.limitText)
                                   ? QString(QLatin1Char('.'))
                                   : QLatin1Char('[') + control.limitText + QLatin1Char(']');
    const int length = qBound(0, control.length, MAX_INPUT_LENGTH);
    return QRegExp(characters + QString::fromLatin1("{0,%1}").arg(length), Qt::CaseSensitive);
}

/// Rejects a "]" that would close the character class. Any pattern could follow it, including a
/// pattern that takes QRegExp hours and gigabytes of memory to compile. A "]" in the first position
/// is an ordinary character.
bool isCharacterClass(const QString &limitText)
{
    if (limitText.length() > MAX_LIMIT_TEXT)
        return false;
    const int first = limitText.startsWith(QLatin1Char('^')) ? 1 : 0;
    for (int i = first; i < limitText.length(); ++i) {
        if (limitText.at(i) == QLatin1Char('\\'))
            ++i;
        else if (limitText.at(i) == QLatin1Char(']') && i > first)
            return false;
    }
    return QRegExp(QLatin1Char('[') + limitText + QLatin1Char(']')).isValid();
}

QSize windowSize(const CDlgInfo &dialog)
{
    return QSize(qBound(0, dialog.width, MAX_WINDOW_SIDE),
                 qBound(0, dialog.height, MAX_WINDOW_SIDE));
}

QRect geometry(const CWidgetItemInfo &control, int dialogWidth, bool mirrored)
{
    return placed(boundedRect(control), dialogWidth, mirrored);
}

QRect geometry(const CTreeInfo &tree, int dialogWidth, bool mirrored)
{
    return placed(boundedRect(tree), dialogWidth, mirrored);
}

} // namespace SmsLayoutFile

} // namespace Formats
