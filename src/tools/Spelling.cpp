#include "Spelling.h"

#include <QRegExp>
#include <QXmlStreamReader>

#include "ForwardXml.h"

using namespace Formats;

namespace Tools
{

namespace
{

const int MOST_ATTRIBUTES = 50; // per element; comparing more would take too long
const int MOST_DIFFERENCES = 2; // names with more differences are not considered misspellings

/// Returns the Levenshtein distance: the minimum number of letters to insert, delete or replace.
int differences(const QString &a, const QString &b)
{
    QList<int> row;
    for (int j = 0; j <= b.length(); ++j)
        row << j;
    for (int i = 1; i <= a.length(); ++i) {
        int diagonal = row.at(0);
        row[0] = i;
        for (int j = 1; j <= b.length(); ++j) {
            const int exchanged = diagonal + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            diagonal = row.at(j);
            row[j] = qMin(exchanged, qMin(row.at(j), row.at(j - 1)) + 1);
        }
    }
    return row.last();
}

/// Returns the maximum distance between the name and a string that is considered a misspelling of
/// it.
int mostDifferences(const QString &name)
{
    return name.length() <= 4 ? name.length() / 3 : MOST_DIFFERENCES;
}

/** Copies a document and corrects misspelt names in the copy. */
class Corrector
{
public:
    Corrector(const QString &text, const KnownNames &known)
        : m_text(text), m_known(known), m_xml(text)
    {
    }
    QString correct();

private:
    void takeTag(int begin);
    void replaceFrom(int at, const QString &name, const QString &meant);
    void correctAttributes(const XmlElement &element, int begin);

    const QString &m_text;
    const KnownNames &m_known;
    QXmlStreamReader m_xml;
    QString m_result;
    int m_copied = 0; // the number of characters copied so far
};

QString Corrector::correct()
{
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = ForwardXml::next(m_xml);
        const bool isStart = token == QXmlStreamReader::StartElement;
        if (!isStart && token != QXmlStreamReader::EndElement)
            continue;
        const int end = int(m_xml.characterOffset());
        const int begin = m_text.lastIndexOf(QLatin1Char('<'), end - 1);
        const bool isEndTag = m_text.mid(begin + 1, 1) == QLatin1String("/");
        if (begin >= m_copied && isStart != isEndTag) // an empty element has a single tag
            takeTag(begin);
    }
    return m_result + m_text.mid(m_copied);
}

void Corrector::takeTag(int begin)
{
    XmlElement element;
    element.name = m_xml.name().toString();
    element.attributes = m_xml.attributes();
    const QString meant = meantElement(element, m_known);
    const int at = begin + (m_xml.isEndElement() ? 2 : 1);
    if (!meant.isEmpty() && m_text.mid(at, element.name.length()) == element.name)
        replaceFrom(at, element.name, meant);
    if (m_xml.isStartElement())
        correctAttributes(element, begin);
}

void Corrector::replaceFrom(int at, const QString &name, const QString &meant)
{
    m_result += m_text.mid(m_copied, at - m_copied) + meant;
    m_copied = at + name.length();
}

void Corrector::correctAttributes(const XmlElement &element, int begin)
{
    int from = qMax(begin, m_copied); // the attributes are in document order
    for (int i = 0; i < element.attributes.count(); ++i) {
        const QString name = element.attributes.at(i).qualifiedName().toString();
        const QString meant = meantAttribute(element, name, m_known);
        if (meant.isEmpty())
            continue;
        const QRegExp place(QString::fromLatin1("\\s%1\\s*=").arg(QRegExp::escape(name)));
        from = place.indexIn(m_text, from) + 1;
        if (from <= 0)
            return;
        replaceFrom(from, name, meant);
    }
}

} // namespace

QString likelyName(const QString &name, const QStringList &known)
{
    QString best;
    int fewest = MOST_DIFFERENCES + 1;
    for (int i = 0; i < known.count(); ++i) {
        const QString &candidate = known.at(i);
        if (qAbs(candidate.length() - name.length()) > MOST_DIFFERENCES)
            continue;
        const int count = differences(name.toLower(), candidate.toLower());
        const bool isBetter =
            count < fewest || (count == fewest && candidate.length() == name.length());
        if (isBetter && count <= mostDifferences(candidate)) {
            fewest = count;
            best = candidate;
        }
    }
    return best;
}

QString meantElement(const XmlElement &element, const KnownNames &known)
{
    const bool isKnown = known.elements.contains(element.name);
    return isKnown ? QString() : likelyName(element.name, known.elements);
}

QString meantAttribute(const XmlElement &element, const QString &name, const KnownNames &known)
{
    if (known.attributes.contains(name) || name.contains(QLatin1Char(':')) ||
        element.attributes.count() > MOST_ATTRIBUTES)
        return QString();
    QStringList free;
    for (int i = 0; i < known.attributes.count(); ++i) {
        if (!element.attributes.hasAttribute(known.attributes.at(i)))
            free << known.attributes.at(i);
    }
    return likelyName(name, free);
}

QByteArray spellingCorrected(const QByteArray &xml, const KnownNames &known)
{
    const QString text = QString::fromUtf8(xml);
    if (text.toUtf8() != xml)
        return xml;
    return Corrector(text, known).correct().toUtf8();
}

} // namespace Tools
