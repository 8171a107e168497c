#include "XmlFormat.h"

#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>

#include "ForwardXml.h"
#include "XmlElements.h"

using namespace Formats;

namespace Tools
{

namespace
{

const int INDENT = 4;

QString escaped(const QString &text)
{
    QString result;
    for (int i = 0; i < text.length(); ++i) {
        switch (text.at(i).unicode()) {
        case '&':
            result += QLatin1String("&amp;");
            break;
        case '<':
            result += QLatin1String("&lt;");
            break;
        case '>':
            result += QLatin1String("&gt;");
            break;
        case '\r': // an XML parser would convert a plain carriage return to a line feed
            result += QLatin1String("&#13;");
            break;
        default:
            result += text.at(i);
        }
    }
    return result;
}

QString escapedAttribute(const QString &text)
{
    QString result = escaped(text);
    result.replace(QLatin1Char('"'), QLatin1String("&quot;"));
    result.replace(QLatin1Char('\n'), QLatin1String("&#10;"));
    result.replace(QLatin1Char('\t'), QLatin1String("&#9;"));
    return result;
}

bool isBlank(const QString &text)
{
    return text.trimmed().isEmpty();
}

/** A token in the form in which it is written: a start tag, an end tag, text or other markup. */
struct Token {
    enum Kind { Start, End, Text, Other };
    Kind kind;
    QString text; // without the brackets of the tag; empty for an end tag
    QString name; // name of the element; empty if the token is not a tag
    int partner;  // index of the end tag; -1 if the token is not a start tag
};

/** Reads the tokens of a document. */
class TokenReader
{
public:
    explicit TokenReader(const QByteArray &xml) { ForwardXml::start(m_xml, xml); }
    QList<Token> read(QString &problem);

private:
    void add(Token::Kind kind, const QString &text, const QString &name = QString());
    void take();
    QString startTag();

    QXmlStreamReader m_xml;
    QList<Token> m_tokens;
    QList<int> m_open;
    bool m_hasDocumentType = false;
};

QList<Token> TokenReader::read(QString &problem)
{
    while (!m_xml.atEnd()) {
        m_xml.readNext();
        take();
    }
    if (m_xml.hasError())
        problem =
            QString::fromLatin1("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString());
    else if (m_hasDocumentType)
        problem = QLatin1String("the document type would be lost");
    return m_tokens;
}

void TokenReader::take()
{
    switch (m_xml.tokenType()) {
    case QXmlStreamReader::StartElement:
        m_open << m_tokens.count();
        return add(Token::Start, startTag(), m_xml.qualifiedName().toString());
    case QXmlStreamReader::EndElement:
        m_tokens[m_open.takeLast()].partner = m_tokens.count();
        return add(Token::End, QString(), m_xml.qualifiedName().toString());
    case QXmlStreamReader::Characters:
        return add(Token::Text, m_xml.text().toString());
    case QXmlStreamReader::Comment:
        return add(Token::Other,
                   QLatin1String("<!--") + m_xml.text().toString() + QLatin1String("-->"));
    case QXmlStreamReader::ProcessingInstruction:
        return add(Token::Other, QString::fromLatin1("<?%1 %2?>")
                                     .arg(m_xml.processingInstructionTarget().toString(),
                                          m_xml.processingInstructionData().toString()));
    case QXmlStreamReader::DTD:
        m_hasDocumentType = true;
        return;
    default:
        return;
    }
}

QString TokenReader::startTag()
{
    QString tag = m_xml.qualifiedName().toString();
    const QXmlStreamNamespaceDeclarations spaces = m_xml.namespaceDeclarations();
    for (int i = 0; i < spaces.count(); ++i) {
        const QString prefix = spaces.at(i).prefix().toString();
        tag += QString::fromLatin1(" xmlns%1=\"%2\"")
                   .arg(prefix.isEmpty() ? QString() : QLatin1Char(':') + prefix,
                        escapedAttribute(spaces.at(i).namespaceUri().toString()));
    }
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (int i = 0; i < attributes.count(); ++i)
        tag += QLatin1Char(' ') + attributes.at(i).qualifiedName().toString() +
               QLatin1String("=\"") + escapedAttribute(attributes.at(i).value().toString()) +
               QLatin1Char('"');
    return tag;
}

void TokenReader::add(Token::Kind kind, const QString &text, const QString &name)
{
    if (kind == Token::Text && !m_tokens.isEmpty() && m_tokens.last().kind == Token::Text) {
        m_tokens.last().text += text; // a CDATA section next to other text
        return;
    }
    Token token;
    token.kind = kind;
    token.text = text;
    token.name = name;
    token.partner = -1;
    m_tokens << token;
}

/** Writes the tokens. */
class TokenWriter
{
public:
    explicit TokenWriter(const QList<Token> &tokens) : m_tokens(tokens) {}
    QString write();

private:
    bool isInline(int start) const;
    void writeInline(int first, int last);
    QString startOf(int index) const;
    void beginLine(int index, int depth);
    void block(int index);

    const QList<Token> &m_tokens;
    QString m_output;
    int m_depth = 0;
};

QString TokenWriter::write()
{
    m_output = QLatin1String("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    for (int i = 0; i < m_tokens.count(); ++i) {
        if (m_tokens.at(i).kind == Token::Start && isInline(i)) {
            beginLine(i, m_depth);
            writeInline(i, m_tokens.at(i).partner);
            i = m_tokens.at(i).partner;
        } else {
            block(i);
        }
    }
    return m_output + QLatin1Char('\n');
}

/// Returns true if the element must be written on a single line, because white space in it is
/// significant: the element contains text, or nothing except white space.
bool TokenWriter::isInline(int start) const
{
    const int end = m_tokens.at(start).partner;
    bool hasMarkup = false;
    int depth = 0;
    for (int i = start + 1; i < end; ++i) {
        const Token &token = m_tokens.at(i);
        if (token.kind == Token::Text && depth == 0 && !isBlank(token.text))
            return true;
        hasMarkup = hasMarkup || token.kind != Token::Text;
        depth += token.kind == Token::Start ? 1 : token.kind == Token::End ? -1 : 0;
    }
    return !hasMarkup;
}

QString TokenWriter::startOf(int index) const
{
    const bool isEmpty = m_tokens.at(index).partner == index + 1;
    return QLatin1Char('<') + m_tokens.at(index).text + QLatin1String(isEmpty ? "/>" : ">");
}

void TokenWriter::writeInline(int first, int last)
{
    for (int i = first; i <= last; ++i) {
        const Token &token = m_tokens.at(i);
        if (token.kind == Token::Start)
            m_output += startOf(i);
        else if (token.kind == Token::End && m_tokens.at(i - 1).partner != i)
            m_output += QString::fromLatin1("</%1>").arg(token.name);
        else if (token.kind == Token::Text)
            m_output += escaped(token.text);
        else if (token.kind == Token::Other)
            m_output += token.text;
    }
}

/// Starts a new line. If the document has blank lines in this place, a single one is kept. If a
/// comment does not start a line in the document, it remains on the line of the previous token.
void TokenWriter::beginLine(int index, int depth)
{
    const bool hasText = index > 0 && m_tokens.at(index - 1).kind == Token::Text;
    const int lines = hasText ? int(m_tokens.at(index - 1).text.count(QLatin1Char('\n'))) : 0;
    const bool isTrailing =
        m_tokens.at(index).kind == Token::Other && depth > 0 && lines == 0 && index > 1;
    if (isTrailing) {
        m_output += QLatin1Char(' ');
        return;
    }
    m_output += QLatin1String(lines > 1 && m_tokens.at(index).kind != Token::End ? "\n\n" : "\n");
    m_output += QString(depth * INDENT, QLatin1Char(' '));
}

void TokenWriter::block(int index)
{
    const Token &token = m_tokens.at(index);
    switch (token.kind) {
    case Token::Start:
        beginLine(index, m_depth++);
        m_output += startOf(index);
        break;
    case Token::End:
        beginLine(index, --m_depth);
        m_output += QString::fromLatin1("</%1>").arg(token.name);
        break;
    case Token::Other:
        beginLine(index, m_depth);
        m_output += token.text;
        break;
    case Token::Text: // only white space
        break;
    }
}

bool isLeaf(const XmlElements &elements, int index)
{
    return elements.list.at(index).behind == index + 1;
}

QString withoutBlanks(const QString &text)
{
    return QString(text).remove(QRegularExpression(QLatin1String("\\s")));
}

/// Returns true if both documents have the same elements, attributes and text. White space between
/// elements is ignored.
bool isSameMeaning(const XmlElements &a, const XmlElements &b)
{
    bool same = a.list.count() == b.list.count() && b.error.isEmpty();
    for (int i = 0; same && i < a.list.count(); ++i) {
        const XmlElement &x = a.list.at(i);
        const XmlElement &y = b.list.at(i);
        const bool sameText = isLeaf(a, i) && !isBlank(x.text)
                                  ? x.text == y.text
                                  : withoutBlanks(x.text) == withoutBlanks(y.text);
        same = x.name == y.name && x.parent == y.parent && x.attributes == y.attributes && sameText;
    }
    return same;
}

} // namespace

QByteArray formattedXml(const QByteArray &xml, QString &problem)
{
    const XmlElements before = readXmlElements(xml);
    if (before.isDangerous || !before.error.isEmpty()) {
        problem = QString::fromLatin1("line %1: %2").arg(before.errorLine).arg(before.error);
        return QByteArray();
    }
    const QList<Token> tokens = TokenReader(xml).read(problem);
    if (!problem.isEmpty())
        return QByteArray();
    QByteArray result = TokenWriter(tokens).write().toUtf8();
    if (!isSameMeaning(before, readXmlElements(result))) {
        problem = QLatin1String("the formatted file would have another meaning");
        return QByteArray();
    }
    return result;
}

} // namespace Tools
