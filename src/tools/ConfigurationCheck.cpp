#include "ConfigurationCheck.h"

#include <QMap>
#include <QRegExp>
#include <QXmlStreamReader>

#include "ElementCheck.h"
#include "ForwardTrace.h"
#include "ForwardXml.h"
#include "PluginConfig.h"
#include "SmsLayout.h"
#include "TopUpInputLimits.h"
#include "UssdCode.h"
#include "XmlName.h"

using namespace Formats;

namespace Tools
{

namespace
{

const int ITEMS = 4; // the plug-in always reads four items, even beyond the end of the section
const int LONGEST_IMSI = 15; // digits (3GPP TS 23.003)
const int TWENTIETHS = 20;   // font sizes are specified in twentieths of a point
const int MOST_POINTS = 200; // larger letters do not fit into the transcript

const char *const SECTIONS[] = {XmlName::PRE_POST_DIFFER, XmlName::PREPAID,       XmlName::POSTPAID,
                                XmlName::SENT_CHAR,       XmlName::RECEIVED_CHAR, XmlName::CMD_EDIT,
                                XmlName::AUTO_USSD};

QStringList components()
{
    return QStringList() << QLatin1String(XmlName::BALANCE) << QLatin1String(XmlName::CHARGE)
                         << QLatin1String(XmlName::ONLINE_CHARGE) << QLatin1String(XmlName::MSISDN);
}

QString titleOf(const char *section)
{
    return QString::fromLatin1("<%1>").arg(QLatin1String(section));
}

/** A component of the account window, as read from the file. */
struct Item {
    int place = -1;
    QString name;
    bool shown = false;
    int pos = 0;
};

/**
 * Follows the plug-in's forward scan and reports results that are probably not intended. A missing
 * element is reported once, and the check then continues as if the element had been found. In this
 * way, each mistake causes only one finding and does not hide other mistakes.
 */
class Check
{
public:
    Check(const XmlElements &elements, CheckReport &report)
        : m_elements(elements), m_check(elements, report), m_trace(elements)
    {
    }
    void run();

private:
    int section(const char *name);
    int child(int section, const char *name);
    QString childText(int section, const char *name, int *place = nullptr);
    int childNumber(int section, const char *name, int *place = nullptr);

    void detection();
    void paid(const char *name);
    bool nextItem(int section, int number);
    Item item();
    void itemOutside(int section, int place, int number);
    void component(const Item &item);
    void plainCommand(int place, const QString &command);
    void sent(const Item &item);
    void charge(const Item &item);
    void chargeExpressionOf(const TopUpInputLimits &rules, int place);
    void chargeLength(const TopUpInputLimits &rules, int place);
    void twins(const QList<Item> &items);
    void looks(const char *name);
    void colours(int place);
    void editor();
    void clearButton();
    void sims();
    void sim(int place, QMap<QString, int> &seen);
    void windows(int place);
    void sectionsTwice();

    const XmlElements &m_elements;
    ElementCheck m_check;
    ForwardTrace m_trace;
};

void Check::run()
{
    detection();
    paid(XmlName::PREPAID);
    paid(XmlName::POSTPAID);
    looks(XmlName::SENT_CHAR);
    looks(XmlName::RECEIVED_CHAR);
    editor();
    sims();
    clearButton();
    sectionsTwice();
}

// ---- the scan ------------------------------------------------------------------------------

int Check::section(const char *name)
{
    const QString title = titleOf(name);
    const int before = m_trace.position();
    const int passed = m_trace.passed(name);
    const int place = m_trace.seek(name);
    if (place >= 0)
        return place;
    if (passed < 0) {
        m_trace.moveTo(before);
        m_check.find(-1, "missing",
                     title + QLatin1String(" is missing: it and every later section are read as "
                                           "empty"));
        return -1;
    }
    m_check.find(passed, "order",
                 title + QLatin1String(" is too early: the reader only searches forward, so it "
                                       "misses this section and reads it and every later section "
                                       "as empty"));
    m_trace.moveTo(passed + 1);
    return passed;
}

/// Moves to the next element with this name and returns its index. If it is not a child of the
/// section, adds a finding, does not move, and returns -1.
int Check::child(int section, const char *name)
{
    if (section < 0)
        return -1;
    const int before = m_trace.position();
    const int place = m_trace.seek(name);
    if (place >= 0 && m_check.at(place).parent == section)
        return place;
    m_trace.moveTo(before);
    const QString title = QString::fromLatin1("%1 of <%2> is missing or too early; ")
                              .arg(titleOf(name), m_check.at(section).name);
    if (place < 0)
        m_check.find(section, "missing",
                     title + QLatin1String("it and every later element are read as empty"));
    else
        m_check.find(section, "order",
                     title +
                         QString::fromLatin1("the one in line %1 is read instead, and everything "
                                             "before that is skipped")
                             .arg(m_check.at(place).line));
    return -1;
}

QString Check::childText(int section, const char *name, int *place)
{
    const int found = child(section, name);
    if (place)
        *place = found;
    return m_trace.text();
}

int Check::childNumber(int section, const char *name, int *place)
{
    int found = -1;
    const QString text = childText(section, name, &found);
    if (place)
        *place = found;
    return found < 0 ? 0 : m_check.numberText(found, QLatin1String(name), text);
}

// ---- sections ------------------------------------------------------------------------------

void Check::detection()
{
    const int section = this->section(XmlName::PRE_POST_DIFFER);
    if (section >= 0)
        m_check.boolAttribute(section, XmlName::VALUE);
    int commandPlace = -1;
    const QString command = childText(section, XmlName::COMMAND, &commandPlace);
    int place = -1;
    const QString pattern = childText(section, XmlName::RETURN_PATTERN, &place);
    childNumber(section, XmlName::STYLE);
    if (section < 0)
        return;
    const bool isOn = m_check.at(section).attribute(XmlName::VALUE) == QLatin1String(XmlName::ON);
    if (!command.isEmpty())
        plainCommand(section, command);
    else if (isOn && commandPlace >= 0)
        m_check.find(section, "command",
                     QLatin1String("the detection has no command; nothing is asked"));
    if (isOn && place >= 0 && pattern.contains(QLatin1Char('\\')) &&
        pattern != QLatin1String("\"\\d\""))
        m_check.find(place, "expression",
                     QString::fromLatin1("%1 is compared as text, letter by letter; only \"\\d\" "
                                         "with its quotation marks asks for a digit")
                         .arg(quotedPart(pattern)));
}

void Check::paid(const char *name)
{
    const int section = this->section(name);
    QList<Item> items;
    bool isComplete = section >= 0;
    for (int number = 1; isComplete && number <= ITEMS; ++number) {
        isComplete = nextItem(section, number);
        if (isComplete)
            items << item();
    }
    if (section < 0)
        return;
    const QList<int> own = m_elements.childrenOf(section, XmlName::ITEM);
    for (int i = ITEMS; i < own.count(); ++i)
        m_check.find(own.at(i), "items",
                     QString::fromLatin1("<%1> has %2 items; the reader takes four, and this one "
                                         "never")
                         .arg(QLatin1String(name))
                         .arg(own.count()));
    twins(items);
}

/// Moves to the next item. If it is missing or not a child of the section, adds a finding, does not
/// move, and returns false.
bool Check::nextItem(int section, int number)
{
    const int before = m_trace.position();
    const int place = m_trace.seek(XmlName::ITEM);
    if (place >= 0 && m_check.at(place).parent == section) {
        m_trace.moveTo(place);
        return true;
    }
    m_trace.moveTo(before);
    if (place >= 0)
        itemOutside(section, place, number);
    else if (m_elements.error.isEmpty()) // otherwise, the item may follow the error
        m_check.find(
            section, "items",
            QString::fromLatin1("<%1> has no item %2").arg(m_check.at(section).name).arg(number));
    return false;
}

Item Check::item()
{
    Item item;
    item.place = m_trace.seek(XmlName::ITEM);
    item.name = m_check.at(item.place).attribute(XmlName::NAME);
    item.shown = m_check.at(item.place).attribute(XmlName::VALUE) == QLatin1String(XmlName::ON);
    item.pos = m_check.at(item.place).attribute(XmlName::POSITION).toInt();
    if (components().contains(item.name))
        component(item);
    else
        m_check.find(item.place, "items",
                     QString::fromLatin1("there is no component %1; the item is counted but "
                                         "not read")
                         .arg(quotedPart(item.name)));
    return item;
}

void Check::itemOutside(int section, int place, int number)
{
    const int parent = m_check.at(place).parent;
    m_check.find(place, "items",
                 QString::fromLatin1("<%1> has fewer than four items: this item %2 of <%3> becomes "
                                     "its item %4")
                     .arg(m_check.at(section).name,
                          quotedPart(m_check.at(place).attribute(XmlName::NAME)),
                          parent < 0 ? QString() : m_check.at(parent).name)
                     .arg(number));
}

/// Checks a code that is sent unchanged.
void Check::plainCommand(int place, const QString &command)
{
    m_check.command(place, command, 0);
    if (command.contains(INPUT_PLACEHOLDER))
        m_check.find(place, "command",
                     quotedPart(command) +
                         QLatin1String(" has a \"%s\", for which nothing can be entered; it is "
                                       "sent unchanged"));
}

void Check::component(const Item &item)
{
    m_check.boolAttribute(item.place, XmlName::VALUE);
    m_check.numberAttribute(item.place, XmlName::POSITION);
    if (m_check.at(item.place).behind == item.place + 1)
        return m_check.find(item.place, "order",
                            QLatin1String("the item has no elements; the reader takes them from "
                                          "later items, and skips everything before them"));
    if (item.name == QLatin1String(XmlName::CHARGE))
        return charge(item);
    if (item.name == QLatin1String(XmlName::ONLINE_CHARGE)) {
        childText(item.place, XmlName::URL);
        return;
    }
    sent(item);
    if (item.name == QLatin1String(XmlName::MSISDN))
        childNumber(item.place, XmlName::UPDATE_BUTTON);
}

void Check::sent(const Item &item)
{
    int place = -1;
    const QString command = childText(item.place, XmlName::COMMAND, &place);
    const bool shown =
        m_check.at(item.place).attribute(XmlName::VALUE) == QLatin1String(XmlName::ON);
    if (!command.isEmpty())
        plainCommand(item.place, command);
    else if (shown && place >= 0)
        m_check.find(item.place, "command",
                     item.name + QLatin1String(" is shown and has no command"));
}

void Check::charge(const Item &item)
{
    int commandPlace = -1;
    const QString command = childText(item.place, XmlName::COMMAND, &commandPlace);
    TopUpInputLimits rules;
    int lengthPlace = -1;
    rules.length = childNumber(item.place, XmlName::LENGTH, &lengthPlace);
    rules.minlenth = childNumber(item.place, XmlName::MIN_LENGTH);
    childNumber(item.place, XmlName::RETURN_STYLE);
    int limitPlace = -1;
    rules.limitText = childText(item.place, XmlName::LIMIT_TEXT, &limitPlace);
    if (!command.isEmpty())
        m_check.command(item.place, command, rules.length);
    if (m_check.at(item.place).attribute(XmlName::VALUE) != QLatin1String(XmlName::ON))
        return;
    if (commandPlace >= 0 && !command.contains(INPUT_PLACEHOLDER))
        m_check.find(item.place, "command",
                     QLatin1String("the top-up's command has no \"%s\"; what is entered is not "
                                   "sent"));
    if (lengthPlace >= 0)
        chargeLength(rules, lengthPlace);
    if (limitPlace >= 0)
        chargeExpressionOf(rules, limitPlace);
}

void Check::chargeLength(const TopUpInputLimits &rules, int place)
{
    if (rules.length <= 0)
        m_check.find(place, "length",
                     QLatin1String("length is 0: nothing can be entered to top up"));
    else if (rules.minlenth > rules.length)
        m_check.find(place, "length",
                     QString::fromLatin1("%1 %2 is more than %3 %4: exactly %4 are needed")
                         .arg(QLatin1String(XmlName::MIN_LENGTH))
                         .arg(rules.minlenth)
                         .arg(QLatin1String(XmlName::LENGTH))
                         .arg(rules.length));
}

void Check::chargeExpressionOf(const TopUpInputLimits &rules, int place)
{
    if (!SmsLayoutFile::isCharacterClass(rules.limitText))
        m_check.find(place, "expression",
                     QString::fromLatin1("%1 %2 is no class of characters")
                         .arg(QLatin1String(XmlName::LIMIT_TEXT), quotedPart(rules.limitText)));
    else if (rules.length > 0 && rules.length <= SmsLayoutFile::MAX_INPUT_LENGTH &&
             !QRegExp(chargeExpression(rules)).isValid())
        m_check.find(place, "expression",
                     QString::fromLatin1("%1 is no regular expression")
                         .arg(quotedPart(chargeExpression(rules))));
    else if (rules.length > SmsLayoutFile::MAX_INPUT_LENGTH)
        m_check.find(
            place, "expression",
            QString::fromLatin1("length %1 is more than a regular expression can count (%2)")
                .arg(rules.length)
                .arg(SmsLayoutFile::MAX_INPUT_LENGTH));
}

void Check::twins(const QList<Item> &items)
{
    for (int i = 0; i < items.count(); ++i) {
        for (int j = i + 1; j < items.count(); ++j) {
            const Item &a = items.at(i);
            const Item &b = items.at(j);
            if (a.name.isEmpty() || b.name.isEmpty())
                continue;
            if (a.name == b.name)
                m_check.find(b.place, "items",
                             QString::fromLatin1("%1 was already given in line %2; this one counts")
                                 .arg(quotedPart(b.name))
                                 .arg(m_check.at(a.place).line));
            else if (a.shown && b.shown && a.pos == b.pos)
                m_check.find(
                    b.place, "position",
                    QString::fromLatin1("%1 and %2 have the same %3 %4; only one of them is shown")
                        .arg(a.name, b.name, QLatin1String(XmlName::POSITION))
                        .arg(a.pos));
        }
    }
}

void Check::looks(const char *name)
{
    const int section = this->section(name);
    int place = -1;
    const int height = childNumber(section, XmlName::Y_HEIGHT, &place);
    childNumber(section, XmlName::Y_OFFSET);
    const int colour = child(section, XmlName::COLOR);
    if (section < 0)
        return;
    if (place >= 0 && height <= 0)
        m_check.find(place, "size",
                     QLatin1String(XmlName::Y_HEIGHT) +
                         QLatin1String(" is not above 0: letters get Qt's smallest size"));
    if (height > MOST_POINTS * TWENTIETHS)
        m_check.find(
            place, "size",
            QString::fromLatin1(
                "%1 %2 is a font size of %3 points: not even one letter fits into the window")
                .arg(QLatin1String(XmlName::Y_HEIGHT))
                .arg(height)
                .arg(height / TWENTIETHS));
    colours(colour);
}

void Check::colours(int place)
{
    if (place < 0)
        return;
    m_check.colour(place, XmlName::RED);
    m_check.colour(place, XmlName::GREEN);
    m_check.colour(place, XmlName::BLUE);
}

void Check::editor()
{
    const int section = this->section(XmlName::CMD_EDIT);
    if (section >= 0)
        m_check.boolAttribute(section, XmlName::VISIBLE);
    for (const char *name : {XmlName::READONLY_COLOR, XmlName::COMMON_COLOR, XmlName::HEAD_COLOR}) {
        const int place = child(section, name);
        if (section >= 0)
            colours(place);
    }
}

/// Checks the section for the Clear button. It may be anywhere in the file, because the plug-in
/// searches for it from the start of the file.
void Check::clearButton()
{
    const int place = ForwardTrace(m_elements).seek(XmlName::CLEAR_HISTORY);
    if (place < 0)
        return m_check.find(-1, "missing",
                            titleOf(XmlName::CLEAR_HISTORY) +
                                QLatin1String(" is missing: there is no Clear button"));
    m_check.boolAttribute(place, XmlName::VISIBLE);
    m_check.boolAttribute(place, XmlName::SHOW_CONFIRM_DIALOG);
}

// ---- SIM cards -----------------------------------------------------------------------------

void Check::sims()
{
    const int section = this->section(XmlName::AUTO_USSD);
    if (section < 0)
        return;
    m_check.boolAttribute(section, XmlName::VALID);
    if (m_check.at(section).attribute(XmlName::VALID) != QLatin1String(XmlName::ON))
        return;
    QMap<QString, int> seen;
    for (int place = m_trace.seek(XmlName::ITEM); place >= 0; place = m_trace.seek(XmlName::ITEM)) {
        if (m_check.at(place).parent != section)
            m_check.find(place, "order",
                         QString::fromLatin1("this item follows %1 and is read as a SIM card")
                             .arg(titleOf(XmlName::AUTO_USSD)));
        else
            sim(place, seen);
    }
}

void Check::sim(int place, QMap<QString, int> &seen)
{
    const QString imsi = m_check.at(place).attribute(XmlName::IMSI);
    const QRegExp digits(QString::fromLatin1("[0-9]{1,%1}").arg(LONGEST_IMSI));
    if (!digits.exactMatch(imsi))
        m_check.find(place, "imsi",
                     QString::fromLatin1("imsi %1 fits no SIM card: 1 to %2 digits are wanted")
                         .arg(quotedPart(imsi))
                         .arg(LONGEST_IMSI));
    if (seen.contains(imsi))
        m_check.find(place, "imsi",
                     QString::fromLatin1("imsi %1 was already given in line %2; this one counts")
                         .arg(quotedPart(imsi))
                         .arg(m_check.at(seen.value(imsi)).line));
    seen.insert(imsi, place);
    windows(place);
}

void Check::windows(int place)
{
    const QString list = m_check.at(place).attribute(XmlName::USSD);
    const QStringList known =
        QStringList() << QLatin1String(XmlName::PREPAID) << QLatin1String(XmlName::POSTPAID)
                      << QLatin1String(XmlName::COMMONPAID) << QLatin1String(XmlName::ADVANCED);
    const QStringList parts = list.split(QLatin1Char('/'));
    for (int i = 0; i < parts.count(); ++i) {
        if (!parts.at(i).isEmpty() && !known.contains(parts.at(i)))
            m_check.find(place, "windows",
                         QString::fromLatin1("there is no window %1; it is ignored")
                             .arg(quotedPart(parts.at(i))));
    }
    if (windowFlags(list) == 0)
        m_check.find(place, "windows", QLatin1String("the SIM card is known and has no window"));
}

void Check::sectionsTwice()
{
    for (const char *name : SECTIONS) {
        const QList<int> all = m_elements.childrenOf(0, name);
        for (int i = 1; i < all.count(); ++i)
            m_check.find(
                all.at(i), "twice",
                QString::fromLatin1("<%1> was already given in line %2; one of them is not "
                                    "read")
                    .arg(QLatin1String(name))
                    .arg(m_check.at(all.first()).line));
    }
}

// ---- the plug-in's parser ------------------------------------------------------------------

PluginConfig readWholeConfiguration(const QByteArray &xml)
{
    PluginConfig config;
    QXmlStreamReader reader;
    ForwardXml::start(reader, xml);
    readConfiguration(reader, config);
    QXmlStreamReader secondPass(xml);
    readClearHistory(secondPass, config.clearHistory);
    return config;
}

// ---- tables --------------------------------------------------------------------------------

QString boolWord(bool value)
{
    return QLatin1String(value ? XmlName::ON : XmlName::OFF);
}

QStringList row(const char *name, const QString &a, const QString &b = QString(),
                const QString &c = QString())
{
    return QStringList() << QLatin1String(name) << a << b << c;
}

QString named(const char *name, int value)
{
    return QString::fromLatin1("%1 %2").arg(QLatin1String(name)).arg(value);
}

QString positionOf(bool shown, int pos)
{
    return shown ? named(XmlName::POSITION, pos) : QString::fromLatin1("hidden");
}

CheckTable paidTable(const PluginConfig &config, int paidType, const char *title)
{
    const ConfigBalance &balance = config.balance[paidType];
    const ConfigCharge &charge = config.charge[paidType];
    const ConfigOnlineCharge &online = config.onlineCharge[paidType];
    const ConfigMSISDN &number = config.msisdn[paidType];
    CheckTable table;
    table.title = QLatin1String(title);
    table.rows << row(XmlName::BALANCE, positionOf(balance.value, balance.pos), balance.command)
               << row(XmlName::CHARGE, positionOf(charge.value, charge.pos), charge.command,
                      QString::fromLatin1("%1 to %2 of [%3], ")
                              .arg(charge.minlenth)
                              .arg(charge.length)
                              .arg(charge.limitText) +
                          named(XmlName::RETURN_STYLE, charge.returnStyle))
               << row(XmlName::ONLINE_CHARGE, positionOf(online.value, online.pos), online.url)
               << row(XmlName::MSISDN, positionOf(number.value, number.pos), number.command,
                      named(XmlName::UPDATE_BUTTON, number.updateButton));
    return table;
}

QString colourText(int red, int green, int blue)
{
    return QString::fromLatin1("%1 %2 %3").arg(red).arg(green).arg(blue);
}

QStringList charRow(const char *name, const Char &look)
{
    return row(name, named(XmlName::Y_HEIGHT, look.yHeight), named(XmlName::Y_OFFSET, look.yOffset),
               colourText(look.red, look.green, look.blue));
}

CheckTable looksTable(const PluginConfig &config)
{
    const CmdEdit &edit = config.cmdEdit;
    CheckTable table;
    table.title = QLatin1String("Looks");
    table.rows << charRow(XmlName::SENT_CHAR, config.sentChar)
               << charRow(XmlName::RECEIVED_CHAR, config.receivedChar)
               << row(XmlName::CLEAR_HISTORY, boolWord(config.clearHistory.visible),
                      QLatin1String(XmlName::SHOW_CONFIRM_DIALOG) + QLatin1Char(' ') +
                          boolWord(config.clearHistory.showConfirmDialog))
               << row(XmlName::CMD_EDIT, boolWord(edit.visible))
               << row(XmlName::READONLY_COLOR,
                      colourText(edit.readonlyRed, edit.readonlyGreen, edit.readonlyBlue))
               << row(XmlName::COMMON_COLOR,
                      colourText(edit.commonRed, edit.commonGreen, edit.commonBlue))
               << row(XmlName::HEAD_COLOR, colourText(edit.headRed, edit.headGreen, edit.headBlue));
    return table;
}

CheckTable detectionTable(const PrePostDiffer &differ)
{
    CheckTable table;
    table.title = QLatin1String(XmlName::PRE_POST_DIFFER);
    table.rows << row(XmlName::VALUE, boolWord(differ.value))
               << row(XmlName::COMMAND, differ.command)
               << row(XmlName::RETURN_PATTERN, differ.returnPattern)
               << row(XmlName::STYLE, QString::number(differ.style));
    return table;
}

QString windowNames(int flags)
{
    QStringList names;
    if (flags & WINDOW_PREPAID)
        names << QLatin1String(XmlName::PREPAID);
    if (flags & WINDOW_POSTPAID)
        names << QLatin1String(XmlName::POSTPAID);
    if (flags & WINDOW_COMMONPAID)
        names << QLatin1String(XmlName::COMMONPAID);
    if (flags & WINDOW_ADVANCED)
        names << QLatin1String(XmlName::ADVANCED);
    return names.join(QString(QLatin1Char('/')));
}

CheckTable simTable(const AutoUSSD &autoUSSD)
{
    CheckTable table;
    table.title = QLatin1String(XmlName::AUTO_USSD);
    table.rows << row(XmlName::VALID, boolWord(autoUSSD.valid));
    QStringList prefixes = autoUSSD.imsiMap.keys();
    prefixes.sort();
    for (int i = 0; i < prefixes.count(); ++i)
        table.rows << (QStringList()
                       << prefixes.at(i) << windowNames(autoUSSD.imsiMap.value(prefixes.at(i))));
    return table;
}

} // namespace

void checkConfiguration(const XmlElements &elements, CheckReport &report)
{
    Check(elements, report).run();
}

QList<CheckTable> configurationTables(const QByteArray &xml)
{
    const PluginConfig config = readWholeConfiguration(xml);
    return QList<CheckTable>() << detectionTable(config.prePostDiffer)
                               << paidTable(config, 0, XmlName::PREPAID)
                               << paidTable(config, 1, XmlName::POSTPAID) << looksTable(config)
                               << simTable(config.autoUSSD);
}

} // namespace Tools
