#include "ProvisionFiles.h"

#include <QBuffer>
#include <QHash>
#include <QRect>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "ForwardXml.h"
#include "ProfileXml.h"
#include "UssdCode.h"
#include "UssdTemplate.h"
#include "XmlName.h"

using namespace Formats;

namespace Provisioning
{

namespace
{

// The maximum length of a voucher number. The actual length is not part of the database.
const int LONGEST_VOUCHER = 30;
const int SHORTEST_VOUCHER = 1;

// Elements that are copied, with their descendants, from the installed configuration.
const char *const LOOKS[] = {XmlName::SENT_CHAR, XmlName::RECEIVED_CHAR, XmlName::CLEAR_HISTORY,
                             XmlName::CMD_EDIT,  XmlName::MAIN_SIZE,     XmlName::TREE_SIZE};
const int MAX_DEPTH = 30;

// The geometry of the controls in the services window, in pixels.
const QRect EXPLANATION(285, 16, 340, 46);
const QRect BUTTON(285, 72, 150, 32);
const QRect REPLY(285, 140, 340, 210);
const int MOST_SERVICES = 25;

// ---- elements of the installed configuration -----------------------------------------------

/** A token in an element that is copied from the installed configuration. */
struct Token {
    QXmlStreamReader::TokenType type = QXmlStreamReader::NoToken;
    QString text; // name of the element, or character data
    QXmlStreamAttributes attributes;
};

typedef QList<Token> Element;
typedef QHash<QString, Element> Looks;

bool isLook(const QString &name)
{
    for (const char *look : LOOKS) {
        if (name == QLatin1String(look))
            return true;
    }
    return false;
}

Token currentToken(const QXmlStreamReader &reader)
{
    Token token;
    token.type = reader.tokenType();
    token.text = reader.isCharacters() ? reader.text().toString() : reader.name().toString();
    token.attributes = reader.attributes();
    return token;
}

bool isKept(const QXmlStreamReader &reader)
{
    return reader.isStartElement() || reader.isEndElement() ||
           (reader.isCharacters() && !reader.isWhitespace());
}

Element takeElement(QXmlStreamReader &reader)
{
    Element element;
    int depth = 0;
    do {
        if (isKept(reader))
            element << currentToken(reader);
        depth += reader.isStartElement() ? 1 : reader.isEndElement() ? -1 : 0;
        if (depth > MAX_DEPTH)
            reader.raiseError(QLatin1String("Elements are nested too deeply."));
        if (depth > 0)
            ForwardXml::next(reader);
    } while (depth > 0 && !reader.atEnd());
    return element;
}

/// Returns the elements of the installed configuration that are copied to the new configuration.
/// Sets `error` if the installed configuration cannot be used.
Looks looksOf(const QByteArray &shipped, QString &error)
{
    Looks looks;
    QXmlStreamReader reader;
    ForwardXml::start(reader, shipped);
    while (!reader.atEnd()) {
        ForwardXml::next(reader);
        const QString name = reader.name().toString();
        if (reader.isStartElement() && isLook(name) && !looks.contains(name))
            looks.insert(name, takeElement(reader));
    }
    if (reader.hasError())
        error = QString::fromLatin1("line %1, column %2: ")
                    .arg(reader.lineNumber())
                    .arg(reader.columnNumber()) +
                reader.errorString();
    for (const char *look : LOOKS) {
        if (error.isEmpty() && !looks.contains(QLatin1String(look)))
            error = QString::fromLatin1("it has no element \"%1\"").arg(QLatin1String(look));
    }
    return looks;
}

// ---- writing -------------------------------------------------------------------------------

QString number(int value)
{
    return QString::number(value);
}

QString boolText(bool value)
{
    return QLatin1String(value ? XmlName::ON : XmlName::OFF);
}

/** Writes the configuration with its elements in the order that the plug-in requires. */
class ConfigurationWriter
{
public:
    ConfigurationWriter(const ProvisionPlan &plan, const Looks &looks)
        : m_plan(plan), m_looks(looks), m_xml(&m_content)
    {
    }
    QByteArray write();

private:
    void start(const char *name) { m_xml.writeStartElement(QLatin1String(name)); }
    void end() { m_xml.writeEndElement(); }
    void attribute(const char *name, const QString &value);
    void text(const char *name, const QString &value);
    void look(const char *name);

    void writeHead();
    void writeDetection();
    void writePaid(const char *section, bool topUp);
    void startItem(const char *name, bool shown, int place);
    void writeCharge(bool shown);
    void writeServices();
    void writeTreeItem(int number, const QString &key, bool isRoot);
    void writeGroup(int entry, const PlannedMessage &message);
    void startControl(const QString &key, const QRect &place);
    void writeHiddenControl();
    void writeSims();

    const ProvisionPlan &m_plan;
    const Looks &m_looks;
    QByteArray m_content;
    QXmlStreamWriter m_xml;
};

void ConfigurationWriter::attribute(const char *name, const QString &value)
{
    m_xml.writeAttribute(QLatin1String(name), value);
}

void ConfigurationWriter::text(const char *name, const QString &value)
{
    m_xml.writeTextElement(QLatin1String(name), value);
}

void ConfigurationWriter::look(const char *name)
{
    const Element element = m_looks.value(QLatin1String(name));
    for (int i = 0; i < element.count(); ++i) {
        const Token &token = element.at(i);
        if (token.type == QXmlStreamReader::StartElement) {
            m_xml.writeStartElement(token.text);
            m_xml.writeAttributes(token.attributes);
        } else if (token.type == QXmlStreamReader::EndElement) {
            m_xml.writeEndElement();
        } else {
            m_xml.writeCharacters(token.text);
        }
    }
}

QByteArray ConfigurationWriter::write()
{
    m_xml.setAutoFormatting(true);
    m_xml.writeStartDocument();
    writeHead();
    start(XmlName::ROOT);
    writeDetection();
    writePaid(XmlName::PREPAID, !m_plan.topUp.isEmpty());
    writePaid(XmlName::POSTPAID, false);
    look(XmlName::SENT_CHAR);
    look(XmlName::RECEIVED_CHAR);
    look(XmlName::CLEAR_HISTORY);
    look(XmlName::CMD_EDIT);
    writeServices();
    writeSims();
    end();
    m_xml.writeEndDocument();
    return m_content;
}

/// Writes the comment at the start of the file. Hyphens are replaced, because a comment must not
/// contain "--".
void ConfigurationWriter::writeHead()
{
    QString provider = m_plan.provider + QLatin1String(", ") + m_plan.country;
    provider.replace(QLatin1Char('-'), QChar(0x2010));
    m_xml.writeComment(QString::fromLatin1("\n  Codes of %1, made from the database of mobile "
                                           "operators.\n  When this file is changed by hand, "
                                           "provisioning does not replace it any more.\n")
                           .arg(provider));
}

/// Writes a disabled section, because the database has no codes for the prepaid/postpaid detection.
void ConfigurationWriter::writeDetection()
{
    start(XmlName::PRE_POST_DIFFER);
    attribute(XmlName::VALUE, boolText(false));
    text(XmlName::COMMAND, QString());
    text(XmlName::RETURN_PATTERN, QString());
    text(XmlName::STYLE, number(0));
    end();
}

void ConfigurationWriter::writePaid(const char *section, bool topUp)
{
    start(section);
    startItem(XmlName::BALANCE, !m_plan.balance.isEmpty(), 0);
    text(XmlName::COMMAND, m_plan.balance);
    end();
    writeCharge(topUp);
    startItem(XmlName::ONLINE_CHARGE, false, 2);
    text(XmlName::URL, QString());
    end();
    startItem(XmlName::MSISDN, !m_plan.ownNumber.isEmpty(), 3);
    text(XmlName::COMMAND, m_plan.ownNumber);
    text(XmlName::UPDATE_BUTTON, number(m_plan.ownNumber.isEmpty() ? 0 : 1));
    end();
    end();
}

void ConfigurationWriter::startItem(const char *name, bool shown, int place)
{
    start(XmlName::ITEM);
    attribute(XmlName::NAME, QLatin1String(name));
    attribute(XmlName::VALUE, boolText(shown));
    attribute(XmlName::POSITION, number(place));
}

void ConfigurationWriter::writeCharge(bool shown)
{
    startItem(XmlName::CHARGE, shown, 1);
    text(XmlName::COMMAND, m_plan.topUp);
    text(XmlName::LENGTH, number(qMin(LONGEST_VOUCHER, longestInput(m_plan.topUp))));
    text(XmlName::MIN_LENGTH, number(m_plan.topUp.isEmpty() ? 0 : SHORTEST_VOUCHER));
    text(XmlName::RETURN_STYLE, number(1));
    text(XmlName::LIMIT_TEXT, QLatin1String("0-9"));
    end();
}

void ConfigurationWriter::writeServices()
{
    const int count = qMin(m_plan.messages.count(), MOST_SERVICES);
    start(XmlName::SMS_USSD);
    look(XmlName::MAIN_SIZE);
    look(XmlName::TREE_SIZE);
    start(XmlName::TREE);
    writeTreeItem(0, QLatin1String("IDS_SMSUSSD_SERVICES"), true);
    for (int i = 0; i < count; ++i)
        writeTreeItem(i + 1, m_plan.messages.at(i).textKey, false);
    end();
    start(XmlName::DIALOG);
    for (int i = 0; i < count; ++i)
        writeGroup(i + 1, m_plan.messages.at(i));
    end();
    end();
}

void ConfigurationWriter::writeTreeItem(int entry, const QString &key, bool isRoot)
{
    start(XmlName::ITEM);
    attribute(XmlName::NAME, number(entry));
    attribute(XmlName::PARENT, number(0));
    attribute(XmlName::ID, key);
    if (isRoot)
        attribute(XmlName::TYPE, QLatin1String(XmlName::TREE_ROOT));
    end();
}

/// Writes the five controls of a group: explanation, caption, input field, button and reply.
void ConfigurationWriter::writeGroup(int entry, const PlannedMessage &message)
{
    start(XmlName::ITEM);
    attribute(XmlName::NAME, number(entry));
    attribute(XmlName::PARENT, number(entry));
    startControl(message.explanation, EXPLANATION);
    end();
    writeHiddenControl();
    writeHiddenControl();
    startControl(QLatin1String("IDS_SMSUSSD_BUTTON_ORDER"), BUTTON);
    attribute(XmlName::TYPE, QLatin1String(XmlName::SMS));
    text(XmlName::COMMAND, message.text);
    text(XmlName::NUMBER, message.number);
    end();
    startControl(QString(), REPLY);
    end();
    end();
}

void ConfigurationWriter::startControl(const QString &key, const QRect &place)
{
    start(XmlName::CONTROL);
    if (!key.isEmpty())
        attribute(XmlName::ID, key);
    attribute(XmlName::POS_X, number(place.x()));
    attribute(XmlName::POS_Y, number(place.y()));
    attribute(XmlName::WIDTH, number(place.width()));
    attribute(XmlName::HEIGHT, number(place.height()));
}

void ConfigurationWriter::writeHiddenControl()
{
    start(XmlName::CONTROL);
    attribute(XmlName::VISIBLE, boolText(false));
    end();
}

/// Writes the windows for each SIM. The postpaid window is never included, because the database
/// contains only prepaid codes. If there are no IMSI prefixes, the windows do not depend on the
/// SIM.
void ConfigurationWriter::writeSims()
{
    const bool account =
        !m_plan.balance.isEmpty() || !m_plan.topUp.isEmpty() || !m_plan.ownNumber.isEmpty();
    QStringList windows;
    if (account)
        windows << QLatin1String(XmlName::PREPAID);
    windows << QLatin1String(XmlName::ADVANCED);
    if (!m_plan.messages.isEmpty())
        windows << QLatin1String(XmlName::COMMONPAID);
    start(XmlName::AUTO_USSD);
    attribute(XmlName::VALID, boolText(!m_plan.imsiPrefixes.isEmpty()));
    for (int i = 0; i < m_plan.imsiPrefixes.count(); ++i) {
        start(XmlName::ITEM);
        attribute(XmlName::IMSI, m_plan.imsiPrefixes.at(i));
        attribute(XmlName::USSD, windows.join(QString(QLatin1Char('/'))));
        end();
    }
    end();
}

// ---- profiles ------------------------------------------------------------------------------

QByteArray profilesOf(const ProvisionPlan &plan)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ProfileXml::write(buffer, plan.profiles);
    return buffer.data();
}

} // namespace

ProvisionFiles provisionFiles(const ProvisionPlan &plan, const QByteArray &shipped)
{
    ProvisionFiles files;
    const Looks looks = looksOf(shipped, files.error);
    if (!files.error.isEmpty())
        return files;
    files.configuration = ConfigurationWriter(plan, looks).write();
    files.profiles = profilesOf(plan);
    return files;
}

} // namespace Provisioning
