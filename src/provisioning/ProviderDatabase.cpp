#include "ProviderDatabase.h"

#include <QSet>
#include <QXmlStreamReader>

#include "InputFile.h"

namespace Provisioning
{

namespace
{

const int MAX_DEPTH = 30;          // maximum nesting depth; the format requires six levels
const qint64 MAX_BYTES = 67108864; // maximum size of a file (64 MiB)
const int PIECE_BYTES = 16384;     // the XML parser receives the document in pieces of this size
const int MAX_TOKEN_BYTES = 65536; // maximum size of a tag or a comment

bool isDigits(const QString &text, int fewest, int most)
{
    if (text.length() < fewest || text.length() > most)
        return false;
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i) < QLatin1Char('0') || text.at(i) > QLatin1Char('9'))
            return false;
    }
    return true;
}

/** Parses the database. Unknown elements are skipped together with their descendants. */
class Reader
{
public:
    explicit Reader(const QByteArray &xml) : m_document(xml) {}
    ProviderDatabase read();

private:
    QXmlStreamReader::TokenType readToken();
    QXmlStreamReader::TokenType next();
    bool nextChild();
    bool isAt(const char *name) const { return m_xml.name() == QLatin1String(name); }
    QString attribute(const char *name) const;
    QString text();
    void skip() { text(); }
    void complain(const QString &what);

    void readRoot();
    void readCountry();
    void readProvider(Provider provider);
    ProviderName readName();
    void readGsm(Provider &provider);
    void readNetwork(Provider &provider);
    void readCodes(QList<ProviderCode> &codes);
    void readCode(ProviderCode::Way way, QList<ProviderCode> &codes);

    const QByteArray m_document;
    int m_passed = 0; // number of bytes passed to the XML parser so far
    QXmlStreamReader m_xml;
    ProviderDatabase m_database;
    QSet<QString> m_networks; // the networks of the current provider
    int m_depth = 0;
};

// ---- tokens --------------------------------------------------------------------------------

/// Reads and returns the next token. The document is passed to the XML parser in pieces until the
/// token is complete. Very large tokens are rejected before they are parsed, because the time for
/// comparing the attributes of a tag is quadratic in their number.
QXmlStreamReader::TokenType Reader::readToken()
{
    const int before = m_passed;
    QXmlStreamReader::TokenType token = m_xml.readNext();
    while (m_xml.error() == QXmlStreamReader::PrematureEndOfDocumentError &&
           m_passed < m_document.size()) {
        if (m_passed - before > MAX_TOKEN_BYTES) {
            m_xml.raiseError(QLatin1String("A tag or comment is longer than 64 KB."));
            break;
        }
        m_xml.addData(m_document.mid(m_passed, PIECE_BYTES));
        m_passed += PIECE_BYTES;
        token = m_xml.readNext();
    }
    return token;
}

QXmlStreamReader::TokenType Reader::next()
{
    const QXmlStreamReader::TokenType token = readToken();
    if (token == QXmlStreamReader::StartElement && ++m_depth > MAX_DEPTH)
        m_xml.raiseError(QLatin1String("Elements are nested too deeply."));
    else if (token == QXmlStreamReader::EndElement)
        --m_depth;
    else if (token == QXmlStreamReader::DTD && !m_xml.entityDeclarations().isEmpty())
        m_xml.raiseError(QLatin1String("The document declares entities of its own."));
    else if (token == QXmlStreamReader::EntityReference) // otherwise, the text would be incomplete
        m_xml.raiseError(
            QString::fromLatin1("Entity '%1' not declared.").arg(m_xml.name().toString()));
    return token;
}

/// Moves to the next child of the current element. Returns false after the last child.
bool Reader::nextChild()
{
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = next();
        if (m_xml.hasError() || token == QXmlStreamReader::EndElement)
            return false;
        if (token == QXmlStreamReader::StartElement)
            return true;
    }
    return false;
}

QString Reader::attribute(const char *name) const
{
    return m_xml.attributes().value(QLatin1String(name)).toString();
}

/// Returns the text of the current element and its descendants, trimmed.
QString Reader::text()
{
    QString text;
    const int outside = m_depth - 1;
    while (m_depth > outside && !m_xml.atEnd()) {
        if (next() == QXmlStreamReader::Characters)
            text += m_xml.text();
    }
    return text.trimmed();
}

void Reader::complain(const QString &what)
{
    ProviderComplaint complaint;
    complaint.line = m_xml.lineNumber();
    complaint.column = m_xml.columnNumber();
    complaint.text = what;
    m_database.complaints << complaint;
}

// ---- elements ------------------------------------------------------------------------------

ProviderDatabase Reader::read()
{
    if (nextChild())
        readRoot();
    while (!m_xml.atEnd())
        next();
    if (m_xml.hasError()) {
        m_database.providers.clear();
        m_database.error = QString::fromLatin1("line %1, column %2: ")
                               .arg(m_xml.lineNumber())
                               .arg(m_xml.columnNumber()) +
                           m_xml.errorString();
    }
    return m_database;
}

void Reader::readRoot()
{
    if (!isAt("serviceproviders"))
        return m_xml.raiseError(QLatin1String("This is no database of mobile operators."));
    if (attribute("format") != QLatin1String("2.0"))
        return m_xml.raiseError(QLatin1String("The database is of another format than 2.0."));
    while (nextChild()) {
        if (isAt("country"))
            readCountry();
        else
            skip();
    }
}

void Reader::readCountry()
{
    Provider provider;
    provider.country = attribute("code").toLower();
    while (nextChild()) {
        if (isAt("name") && provider.countryName.isEmpty())
            provider.countryName = readName().text;
        else if (isAt("provider"))
            readProvider(provider);
        else
            skip();
    }
}

void Reader::readProvider(Provider provider)
{
    provider.line = m_xml.lineNumber();
    m_networks.clear();
    while (nextChild()) {
        if (isAt("name"))
            provider.names << readName();
        else if (isAt("gsm"))
            readGsm(provider);
        else
            skip();
    }
    if (provider.name().isEmpty())
        complain(QLatin1String("the provider has no name; it is left out"));
    else
        m_database.providers << provider;
}

ProviderName Reader::readName()
{
    ProviderName name;
    name.language = attribute("xml:lang");
    name.text = text().simplified();
    return name;
}

void Reader::readGsm(Provider &provider)
{
    while (nextChild()) {
        if (isAt("network-id"))
            readNetwork(provider);
        else if (isAt("balance-check"))
            readCodes(provider.balance);
        else if (isAt("balance-top-up"))
            readCodes(provider.topUp);
        else if (isAt("msisdn-query"))
            readCodes(provider.ownNumber);
        else
            skip();
    }
}

void Reader::readNetwork(Provider &provider)
{
    const QString mcc = attribute("mcc").trimmed();
    const QString mnc = attribute("mnc").trimmed();
    if (!isDigits(mcc, 3, 3) || !isDigits(mnc, 2, 3))
        complain(
            QString::fromLatin1("mcc \"%1\" with mnc \"%2\" is no network code; it is left out")
                .arg(mcc, mnc));
    else if (!m_networks.contains(mcc + mnc))
        provider.networks << mcc + mnc;
    m_networks.insert(mcc + mnc);
    skip();
}

void Reader::readCodes(QList<ProviderCode> &codes)
{
    while (nextChild()) {
        if (isAt("ussd"))
            readCode(ProviderCode::Ussd, codes);
        else if (isAt("ussd-response"))
            readCode(ProviderCode::UssdResponse, codes);
        else if (isAt("dtmf"))
            readCode(ProviderCode::Dtmf, codes);
        else if (isAt("sms"))
            readCode(ProviderCode::Sms, codes);
        else
            skip();
    }
}

void Reader::readCode(ProviderCode::Way way, QList<ProviderCode> &codes)
{
    ProviderCode code;
    code.way = way;
    code.line = m_xml.lineNumber();
    code.column = m_xml.columnNumber();
    code.takesInput = m_xml.attributes().hasAttribute(QLatin1String("replacement"));
    code.replacement = attribute("replacement");
    code.smsText = attribute("text").trimmed();
    code.code = text();
    if (code.code.isEmpty())
        complain(QLatin1String("the code is empty; it is left out"));
    else
        codes << code;
}

ProviderDatabase refused(const QString &why)
{
    ProviderDatabase database;
    database.error = why;
    return database;
}

} // namespace

QString Provider::name() const
{
    for (int i = 0; i < names.count(); ++i) {
        if (names.at(i).language.isEmpty())
            return names.at(i).text;
    }
    return names.isEmpty() ? QString() : names.first().text;
}

ProviderDatabase readProviderDatabase(const QByteArray &xml)
{
    return Reader(xml).read();
}

ProviderDatabase readProviderDatabaseFile(const QString &path)
{
    QByteArray xml;
    QString problem;
    return InputFile::read(path, xml, problem, MAX_BYTES) ? readProviderDatabase(xml)
                                                          : refused(problem);
}

QString installedProviderDatabase()
{
    return QLatin1String("/usr/share/mobile-broadband-provider-info/serviceproviders.xml");
}

} // namespace Provisioning
