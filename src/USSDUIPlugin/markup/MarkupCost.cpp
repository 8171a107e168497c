#include "MarkupCost.h"

#include <QStringList>

namespace
{

const int MAX_TAGS = 60; // per reply; network replies have at most 182 characters
const int MAX_TABLES = 8;
const int MAX_RULES = 8;

bool endsName(QChar unit)
{
    return unit.isSpace() || unit == QLatin1Char('>') || unit == QLatin1Char('/') ||
           unit == QLatin1Char('=');
}

/// Returns the name of the tag in lower case. `behind` is the text that follows its "<".
QString tagName(const QString &behind)
{
    int begin = 0;
    while (begin < behind.length() && behind.at(begin).isSpace())
        ++begin;
    int end = begin;
    while (end < behind.length() && !endsName(behind.at(end)))
        ++end;
    return behind.mid(begin, end - begin).toLower();
}

/// Returns true if the tag name contains quotes or entities, so that its actual value is unknown.
bool isDisguised(const QString &name)
{
    return name.contains(QLatin1Char('&')) || name.contains(QLatin1Char('"')) ||
           name.contains(QLatin1Char('\''));
}

/// Returns true if the tag may describe a cell that spans many rows or columns. This is the case if
/// it contains a number of three or more digits, or an entity, which could hide such a number.
bool maySpanMany(const QString &behind)
{
    int digits = 0;
    for (int i = 0; i < behind.length() && digits < 3; ++i)
        digits = behind.at(i).isDigit() ? digits + 1 : 0;
    return digits == 3 || behind.contains(QLatin1Char('&'));
}

void addTag(const QString &behind, MarkupCost &cost)
{
    const QString name = tagName(behind);
    const bool disguised = isDisguised(name);
    ++cost.tags;
    if (disguised || name == QLatin1String("table"))
        ++cost.tables;
    if ((disguised || name == QLatin1String("td") || name == QLatin1String("th")) &&
        maySpanMany(behind))
        cost.wide = true;
    if (disguised || name == QLatin1String("style"))
        cost.rules += qMax(1, behind.count(QLatin1Char('{')) + behind.count(QLatin1Char(',')));
}

} // namespace

bool MarkupCost::isBearable(const MarkupCost &before) const
{
    return tags <= MAX_TAGS && before.tables + tables <= MAX_TABLES &&
           before.rules + rules <= MAX_RULES && !wide;
}

void MarkupCost::add(const MarkupCost &other)
{
    tags += other.tags;
    tables += other.tables;
    rules += other.rules;
    wide = wide || other.wide;
}

MarkupCost markupCost(const QString &text)
{
    MarkupCost cost;
    if (!text.contains(QLatin1Char('<')))
        return cost;
    cost.tags = text.count(QLatin1Char('<'));
    if (cost.tags > MAX_TAGS)
        return cost; // with too many tags, the other counts are irrelevant
    cost.tags = 0;
    const QStringList parts = text.split(QLatin1Char('<'));
    for (int i = 1; i < parts.count(); ++i)
        addTag(parts.at(i), cost);
    return cost;
}
