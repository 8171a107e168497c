#include "Catalogue.h"

#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

namespace
{
const QChar LEFT_TO_RIGHT_MARK(0x200E);

QStringList allMatches(const QString &pattern, const QString &text, int group = 0)
{
    QStringList found;
    QRegularExpressionMatchIterator matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured(group);
    return found;
}

QStringList placeholders(const QString &text)
{
    QStringList found = allMatches(QLatin1String("%(?:L?[0-9]+|[a-zA-Z%])"), text);
    std::sort(found.begin(), found.end());
    return found;
}

CatalogueEntry readMessage(QXmlStreamReader &reader, const QString &context)
{
    CatalogueEntry entry{context, QString(), QString(), false};
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("source")) {
            entry.key = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            entry.finished = reader.attributes().isEmpty();
            entry.text = reader.readElementText();
        } else {
            reader.skipCurrentElement();
        }
    }
    return entry;
}

QStringList named(const QString &context, const QStringList &keys)
{
    QStringList names;
    for (const QString &key : keys)
        names << context + QLatin1Char('/') + key;
    return names;
}

const QString PLUGIN_CONTEXT = QLatin1String("USSDUIPlugin");
const QString DASHBOARD_CONTEXT = QLatin1String("Dashboard");
const QString PLUGIN_KEY = QLatin1String("((?:IDS|IDC|USSD_CODE)_[A-Z0-9_]+)");
} // namespace

Catalogue Catalogue::fromXml(const QByteArray &xml)
{
    Catalogue catalogue;
    QXmlStreamReader reader(xml);
    QString context;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("name"))
            context = reader.readElementText();
        else if (reader.isStartElement() && reader.name() == QLatin1String("message"))
            catalogue.m_entries << readMessage(reader, context);
    }
    if (reader.hasError())
        catalogue.m_complaints << QString::fromLatin1("line %1: %2")
                                      .arg(reader.lineNumber())
                                      .arg(reader.errorString());
    return catalogue;
}

QMap<QString, QString> Catalogue::texts() const
{
    QMap<QString, QString> texts;
    for (const CatalogueEntry &entry : m_entries)
        texts.insert(entry.name(), entry.text);
    return texts;
}

QString Catalogue::text(const QString &context, const QString &key) const
{
    return texts().value(context + QLatin1Char('/') + key);
}

QStringList Catalogue::keysTwice() const
{
    QStringList twice;
    QSet<QString> seen;
    for (const CatalogueEntry &entry : m_entries) {
        if (seen.contains(entry.name()))
            twice << entry.name();
        seen.insert(entry.name());
    }
    return twice;
}

QStringList Catalogue::unfinished() const
{
    QStringList unfinished;
    for (const CatalogueEntry &entry : m_entries) {
        if (!entry.finished || entry.text.trimmed().isEmpty())
            unfinished << entry.name();
    }
    return unfinished;
}

QStringList Catalogue::missing(const QStringList &names) const
{
    const QMap<QString, QString> known = texts();
    QStringList missing;
    for (const QString &name : names) {
        if (!known.contains(name))
            missing << name;
    }
    missing.removeDuplicates();
    return missing;
}

QStringList Catalogue::otherPlaceholders(const Catalogue &english) const
{
    const QMap<QString, QString> originals = english.texts();
    QStringList others;
    for (const CatalogueEntry &entry : m_entries) {
        if (placeholders(entry.text) != placeholders(originals.value(entry.name())))
            others << entry.name() + QLatin1String(": ") + entry.text;
    }
    return others;
}

QStringList Catalogue::unmarkedCodes() const
{
    const QString code = QLatin1String("[*#][*#0-9]*[0-9][*#0-9]*|%s(?=[^:])");
    QStringList unmarked;
    for (const CatalogueEntry &entry : m_entries) {
        const QRegularExpression pattern(code);
        QRegularExpressionMatchIterator matches = pattern.globalMatch(entry.text);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            const bool begun = match.capturedStart() > 0 &&
                               entry.text.at(match.capturedStart() - 1) == LEFT_TO_RIGHT_MARK;
            const bool ended = match.capturedEnd() < entry.text.size() &&
                               entry.text.at(match.capturedEnd()) == LEFT_TO_RIGHT_MARK;
            if (!begun || !ended)
                unmarked << entry.name() + QLatin1String(": ") + match.captured();
        }
    }
    return unmarked;
}

QStringList Catalogue::clashingMnemonics(const QStringList &keysOfAWindow) const
{
    QStringList clashing;
    QMap<QString, QString> owners;
    for (const QString &key : keysOfAWindow) {
        const QString letter =
            allMatches(QLatin1String("&(\\w)"), text(PLUGIN_CONTEXT, key), 1).value(0).toLower();
        if (letter.isEmpty())
            continue;
        if (owners.contains(letter))
            clashing << owners.value(letter) + QLatin1String(" and ") + key;
        owners.insert(letter, key);
    }
    return clashing;
}

QStringList SourceKeys::ofCode(const QString &code)
{
    const QString pluginKey = QLatin1Char('"') + PLUGIN_KEY + QLatin1Char('"');
    const QString dashboardKey = QLatin1String("dashboardText\\(\\s*\"([^\"]+)\"");
    return named(PLUGIN_CONTEXT, allMatches(pluginKey, code, 1)) +
           named(DASHBOARD_CONTEXT, allMatches(dashboardKey, code, 1));
}

QStringList SourceKeys::ofData(const QString &xml)
{
    return named(PLUGIN_CONTEXT, allMatches(PLUGIN_KEY, xml, 1));
}
