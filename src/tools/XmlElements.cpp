#include "XmlElements.h"

#include <QStringList>
#include <QXmlStreamReader>

#include "ForwardXml.h"

using namespace Formats;

namespace Tools
{

namespace
{

const int MAX_DEPTH = 30;
const int MAX_ATTRIBUTES = 1000; // per element; Qt compares each one with all others

/// Returns the index of the last "<" before the index `end`, or -1. The line is not copied, because
/// a document may consist of a single long line.
int lastTagStart(const QString &line, int end)
{
    return end > 0 ? line.lastIndexOf(QLatin1Char('<'), qMin(end, line.length()) - 1) : -1;
}

/** Builds the list of elements while it parses a document. */
class Reader
{
public:
    explicit Reader(const QByteArray &xml)
        : m_lines(QString::fromUtf8(xml).split(QLatin1Char('\n')))
    {
        ForwardXml::start(m_xml, xml);
    }
    XmlElements read();

private:
    void take(QXmlStreamReader::TokenType token);
    void start();
    void endTag();
    void end();
    void characters();
    void refuse(const char *why);
    void findPlace(XmlElement &element) const;

    QXmlStreamReader m_xml;
    QStringList m_lines;
    XmlElements m_elements;
    QList<int> m_open;
};

XmlElements Reader::read()
{
    while (!m_xml.atEnd())
        take(ForwardXml::next(m_xml));
    if (m_xml.hasError()) {
        m_elements.error = m_xml.errorString();
        m_elements.errorLine = m_xml.lineNumber();
        m_elements.errorColumn = m_xml.columnNumber() + 1;
    }
    while (!m_open.isEmpty())
        end();
    return m_elements;
}

void Reader::take(QXmlStreamReader::TokenType token)
{
    if (token == QXmlStreamReader::StartElement)
        start();
    else if (token == QXmlStreamReader::EndElement)
        endTag();
    else if (token == QXmlStreamReader::Characters)
        characters();
    else if (token == QXmlStreamReader::DTD && !m_xml.entityDeclarations().isEmpty())
        refuse("The document declares entities of its own.");
}

void Reader::start()
{
    XmlElement element;
    element.name = m_xml.name().toString();
    element.attributes = m_xml.attributes();
    element.parent = m_open.isEmpty() ? -1 : m_open.last();
    findPlace(element);
    m_open << m_elements.list.count();
    m_elements.list << element;
    if (element.attributes.count() > MAX_ATTRIBUTES)
        refuse("An element has too many attributes.");
    if (m_open.count() > MAX_DEPTH)
        refuse("Elements are nested too deeply.");
}

void Reader::endTag()
{
    m_elements.list[m_open.last()].isWhole = true;
    end();
}

void Reader::end()
{
    m_elements.list[m_open.takeLast()].behind = m_elements.list.count();
}

void Reader::characters()
{
    for (int i = 0; i < m_open.count(); ++i)
        m_elements.list[m_open.at(i)].text += m_xml.text();
}

void Reader::refuse(const char *why)
{
    m_elements.isDangerous = true;
    m_xml.raiseError(QLatin1String(why));
}

/// Sets the line and the column of the start tag. QXmlStreamReader reports the position after the
/// tag, so the tag starts at the last "<" before this position.
void Reader::findPlace(XmlElement &element) const
{
    int line = int(m_xml.lineNumber()) - 1;
    int column = lastTagStart(m_lines.value(line), int(m_xml.columnNumber()));
    while (column < 0 && line > 0) {
        const QString above = m_lines.value(--line);
        column = lastTagStart(above, above.length());
    }
    element.line = line + 1;
    element.column = column + 1;
}

} // namespace

QList<int> XmlElements::childrenOf(int parent, const char *name) const
{
    QList<int> found;
    const int behind = parent < 0 ? list.count() : list.at(parent).behind;
    for (int i = parent + 1; i < behind; ++i) {
        if (list.at(i).parent == parent && list.at(i).name == QLatin1String(name))
            found << i;
    }
    return found;
}

XmlElements readXmlElements(const QByteArray &xml)
{
    return Reader(xml).read();
}

} // namespace Tools
