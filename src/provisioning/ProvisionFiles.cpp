#include "ProvisionFiles.h"

#include <QHash>
#include <QRect>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "UssdTemplate.h"

namespace
{

// What may be entered to top up: the database does not say how long a voucher's number is.
const int LONGEST_VOUCHER = 30;
const int SHORTEST_VOUCHER = 1;

// Looks of the shipped configuration, each with all that is in it.
const char *const LOOKS[] = {"send", "recevie", "clearHistory", "cmdEdit", "MainSize", "TreeSize"};
const int MAX_DEPTH = 30;

// The services window's controls, in pixels: explanation, button, reply.
const QRect EXPLANATION(285, 16, 340, 46);
const QRect BUTTON(285, 72, 150, 32);
const QRect REPLY(285, 140, 340, 210);
const int MOST_SERVICES = 25;

// ---- looks of the shipped configuration ----------------------------------------------------

/** One element with all that is in it, as a list of tokens. */
struct Token {
    QXmlStreamReader::TokenType type = QXmlStreamReader::NoToken;
    QString text; // name or characters
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
            reader.readNext();
    } while (depth > 0 && !reader.atEnd());
    return element;
}

/// Sets `error` when the document cannot be used.
Looks looksOf(const QByteArray &shipped, QString &error)
{
    Looks looks;
    QXmlStreamReader reader(shipped);
    while (!reader.atEnd()) {
        reader.readNext();
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
    return QLatin1String(value ? "true" : "false");
}

/** Writes the elements in the order that the plug-in's reader wants. */
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
    start("ussdPlugin");
    writeDetection();
    writePaid("Prepaid", !m_plan.topUp.isEmpty());
    writePaid("Postpaid", false);
    look("send");
    look("recevie");
    look("clearHistory");
    look("cmdEdit");
    writeServices();
    writeSims();
    end();
    m_xml.writeEndDocument();
    return m_content;
}

/// Two hyphens would end a comment.
void ConfigurationWriter::writeHead()
{
    QString provider = m_plan.provider + QLatin1String(", ") + m_plan.country;
    provider.replace(QLatin1Char('-'), QChar(0x2010));
    m_xml.writeComment(QString::fromLatin1("\n  Codes of %1, made from the database of mobile "
                                           "operators.\n  When this file is changed by hand, "
                                           "provisioning does not replace it any more.\n")
                           .arg(provider));
}

/// The database does not tell how to ask for the kind of contract.
void ConfigurationWriter::writeDetection()
{
    start("PrePostDiffer");
    attribute("value", boolText(false));
    text("command", QString());
    text("ReturnPattern", QString());
    text("style", number(0));
    end();
}

void ConfigurationWriter::writePaid(const char *section, bool topUp)
{
    start(section);
    startItem("Balance", !m_plan.balance.isEmpty(), 0);
    text("command", m_plan.balance);
    end();
    writeCharge(topUp);
    startItem("OnlineCharge", false, 2);
    text("URL", QString());
    end();
    startItem("MSISDN", !m_plan.ownNumber.isEmpty(), 3);
    text("command", m_plan.ownNumber);
    text("UpdateButton", number(m_plan.ownNumber.isEmpty() ? 0 : 1));
    end();
    end();
}

void ConfigurationWriter::startItem(const char *name, bool shown, int place)
{
    start("item");
    attribute("name", QLatin1String(name));
    attribute("value", boolText(shown));
    attribute("pos", number(place));
}

void ConfigurationWriter::writeCharge(bool shown)
{
    startItem("Charge", shown, 1);
    text("command", m_plan.topUp);
    text("length", number(qMin(LONGEST_VOUCHER, longestInput(m_plan.topUp))));
    text("minlenth", number(m_plan.topUp.isEmpty() ? 0 : SHORTEST_VOUCHER));
    text("ReturnStyle", number(1));
    text("LimitText", QLatin1String("0-9"));
    end();
}

void ConfigurationWriter::writeServices()
{
    const int count = qMin(m_plan.messages.count(), MOST_SERVICES);
    start("SMSUSSD");
    look("MainSize");
    look("TreeSize");
    start("Tree");
    writeTreeItem(0, QLatin1String("IDS_SMSUSSD_SERVICES"), true);
    for (int i = 0; i < count; ++i)
        writeTreeItem(i + 1, m_plan.messages.at(i).textKey, false);
    end();
    start("Dialog");
    for (int i = 0; i < count; ++i)
        writeGroup(i + 1, m_plan.messages.at(i));
    end();
    end();
}

void ConfigurationWriter::writeTreeItem(int entry, const QString &key, bool isRoot)
{
    start("item");
    attribute("name", number(entry));
    attribute("parent", number(0));
    attribute("id", key);
    if (isRoot)
        attribute("type", QLatin1String("root"));
    end();
}

/// Explanation, caption of the entry field, entry field, button, reply: always these five.
void ConfigurationWriter::writeGroup(int entry, const PlannedMessage &message)
{
    start("item");
    attribute("name", number(entry));
    attribute("parent", number(entry));
    startControl(message.explanation, EXPLANATION);
    end();
    writeHiddenControl();
    writeHiddenControl();
    startControl(QLatin1String("IDS_SMSUSSD_BUTTON_ORDER"), BUTTON);
    attribute("type", QLatin1String("sms"));
    text("command", message.text);
    text("number", message.number);
    end();
    startControl(QString(), REPLY);
    end();
    end();
}

void ConfigurationWriter::startControl(const QString &key, const QRect &place)
{
    start("control");
    if (!key.isEmpty())
        attribute("id", key);
    attribute("posx", number(place.x()));
    attribute("posy", number(place.y()));
    attribute("width", number(place.width()));
    attribute("height", number(place.height()));
}

void ConfigurationWriter::writeHiddenControl()
{
    start("control");
    attribute("visible", boolText(false));
    end();
}

/// The database tells prepaid codes only. Without a prefix the windows do not depend on the SIM.
void ConfigurationWriter::writeSims()
{
    const bool account =
        !m_plan.balance.isEmpty() || !m_plan.topUp.isEmpty() || !m_plan.ownNumber.isEmpty();
    QString windows = QLatin1String(account ? "Prepaid/Advanced" : "Advanced");
    if (!m_plan.messages.isEmpty())
        windows += QLatin1String("/Commonpaid");
    start("autoUSSD");
    attribute("valid", boolText(!m_plan.imsiPrefixes.isEmpty()));
    for (int i = 0; i < m_plan.imsiPrefixes.count(); ++i) {
        start("item");
        attribute("imsi", m_plan.imsiPrefixes.at(i));
        attribute("ussd", windows);
        end();
    }
    end();
}

// ---- profiles ------------------------------------------------------------------------------

void writeProfile(QXmlStreamWriter &xml, const PlannedProfile &profile)
{
    xml.writeStartElement(QLatin1String("item"));
    xml.writeTextElement(QLatin1String("name"), profile.name);
    xml.writeTextElement(QLatin1String("value"), profile.code);
    xml.writeTextElement(QLatin1String("readonly"), boolText(false));
    xml.writeTextElement(QLatin1String("showButton"), boolText(profile.showButton));
    xml.writeTextElement(QLatin1String("langID"), profile.textKey);
    xml.writeTextElement(QLatin1String("desLangID"), profile.descriptionKey);
    xml.writeEndElement();
}

/// The editor saves this file whenever the user saves his own codes. With the same bytes as it
/// writes, that does not count as a change.
QByteArray profilesOf(const ProvisionPlan &plan)
{
    QByteArray content;
    QXmlStreamWriter xml(&content);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QLatin1String("tksvdoc"));
    xml.writeAttribute(QLatin1String("type"), QLatin1String("USSDProfile"));
    for (int i = 0; i < plan.profiles.count(); ++i)
        writeProfile(xml, plan.profiles.at(i));
    xml.writeEndElement();
    xml.writeEndDocument();
    return content;
}

} // namespace

QString ProvisionFiles::configurationName()
{
    return QLatin1String("USSDPluginConfig.xml");
}

QString ProvisionFiles::profilesName()
{
    return QLatin1String("ussdsysprofile.xml");
}

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
