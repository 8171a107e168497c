#include "TextsCheck.h"

#include <QDir>
#include <QFileInfo>
#include <QRegExp>
#include <QRegularExpression>
#include <QSet>

#include "InputFile.h"
#include "KeyTexts.h"
#include "Languages.h"
#include "OperatorTexts.h"
#include "XmlElements.h"

using HostCore::Languages;
using HostCore::OperatorTexts;

namespace Tools
{

namespace
{

/// Returns all texts and attribute values in an XML file of the operator. They include the text
/// keys that the file uses.
QSet<QString> keysIn(const XmlElements &elements)
{
    QSet<QString> keys;
    for (int i = 0; i < elements.list.count(); ++i) {
        const XmlElement &element = elements.list.at(i);
        keys << element.text;
        for (int a = 0; a < element.attributes.count(); ++a)
            keys << element.attributes.at(a).value().toString();
    }
    return keys;
}

QSet<QString> keysInFolder(const QString &folder)
{
    QSet<QString> keys;
    const QStringList names =
        QDir(folder).entryList(QStringList() << QLatin1String("*.xml"), QDir::Files);
    for (int i = 0; i < names.count(); ++i)
        keys.unite(
            keysIn(readXmlElements(InputFile::content(folder + QLatin1Char('/') + names.at(i)))));
    return keys;
}

/// Returns the placeholders (%1 to %9) in the text, sorted and without duplicates.
QStringList placeholdersOf(const QString &text)
{
    QSet<QString> found;
    QRegularExpressionMatchIterator matches =
        QRegularExpression(QLatin1String("%[1-9]")).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured();
    QStringList sorted(found.begin(), found.end());
    sorted.sort();
    return sorted;
}

/** Checks the entries of a text file. */
class Check
{
public:
    Check(const OperatorTexts &texts, CheckReport &report)
        : m_texts(texts), m_report(report), m_installed(Languages::codes()),
          m_ownKeys(keysInFolder(QFileInfo(report.file).path()))
    {
    }
    void run();

private:
    void find(int line, const char *rule, const QString &text)
    {
        addFinding(m_report, line, 0, rule, text);
    }
    void entry(const OperatorTexts::Entry &entry);
    void placeholders(const OperatorTexts::Entry &entry, const QString &original);
    void missing(const OperatorTexts::Entry &first);

    const OperatorTexts &m_texts;
    CheckReport &m_report;
    const QStringList m_installed;
    const QSet<QString> m_ownKeys;
    QStringList m_sections;
};

void Check::run()
{
    for (int i = 0; i < m_texts.mistakes().count(); ++i)
        find(m_texts.mistakes().at(i).line, "texts", m_texts.mistakes().at(i).text);
    const QList<OperatorTexts::Entry> &entries = m_texts.entries();
    for (int i = 0; i < entries.count(); ++i) {
        const QString &language = entries.at(i).language;
        if (m_sections.contains(language))
            continue;
        m_sections << language;
        if (!m_installed.contains(language))
            find(entries.at(i).line, "language",
                 QString::fromLatin1("there is no language %1; its texts are not used")
                     .arg(quotedPart(language)));
    }
    QStringList seen;
    for (int i = 0; i < entries.count(); ++i) {
        entry(entries.at(i));
        if (!seen.contains(entries.at(i).key))
            missing(entries.at(i));
        seen << entries.at(i).key;
    }
}

void Check::entry(const OperatorTexts::Entry &entry)
{
    const QString original = KeyTexts::english(entry.key);
    if (original.isEmpty() && !m_ownKeys.contains(entry.key))
        find(entry.line, "key",
             QString::fromLatin1("neither the plug-in nor a file in this folder uses the key %1")
                 .arg(entry.key));
    if (!original.isEmpty())
        placeholders(entry, original);
}

void Check::placeholders(const OperatorTexts::Entry &entry, const QString &original)
{
    const QStringList wanted = placeholdersOf(original);
    if (placeholdersOf(entry.text) != wanted)
        find(entry.line, "placeholder",
             QString::fromLatin1("%1 needs the placeholders of the text that it replaces: %2")
                 .arg(entry.key, wanted.isEmpty() ? QString::fromLatin1("none")
                                                  : wanted.join(QLatin1String(" "))));
}

/// Reports the languages in which the key of this entry has no text. `first` is the first entry
/// with this key. If the operator replaces a text of the plug-in, a text is required in each
/// language that occurs in the file; the other languages keep the plug-in's text. A key of the
/// operator requires a text in every installed language.
void Check::missing(const OperatorTexts::Entry &first)
{
    const bool isOwn = KeyTexts::english(first.key).isEmpty();
    const QStringList &needed = isOwn ? m_installed : m_sections;
    QStringList without;
    for (int i = 0; i < needed.count(); ++i) {
        if (m_installed.contains(needed.at(i)) && m_texts.text(needed.at(i), first.key).isEmpty())
            without << needed.at(i);
    }
    if (!without.isEmpty())
        find(first.line, "language",
             QString::fromLatin1("%1 has no text for %2")
                 .arg(first.key, without.join(QLatin1String(", "))));
}

CheckTable tableOf(const OperatorTexts &texts)
{
    CheckTable table;
    table.title = QLatin1String("Texts");
    for (int i = 0; i < texts.entries().count(); ++i) {
        const OperatorTexts::Entry &entry = texts.entries().at(i);
        table.rows << (QStringList() << entry.language << entry.key << entry.text);
    }
    return table;
}

} // namespace

bool isTexts(const QByteArray &content)
{
    const QList<QByteArray> lines = content.split('\n');
    for (int i = 0; i < lines.count(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        if (line.startsWith('['))
            return QRegExp(QLatin1String("\\[[a-z]{2}(_[A-Z]{2})?\\]"))
                .exactMatch(QString::fromUtf8(line));
    }
    return false;
}

void checkTexts(const QByteArray &content, CheckReport &report)
{
    const OperatorTexts texts(content);
    Check(texts, report).run();
    report.tables << tableOf(texts);
}

} // namespace Tools
