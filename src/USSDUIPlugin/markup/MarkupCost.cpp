#include "MarkupCost.h"

#include <QRegExp>
#include <QStringList>

namespace
{

const int MAX_TAGS = 60; // per reply; the longest reply from a network has 182 characters
const int MAX_TABLES = 8;
const int MAX_RULES = 8;

/// Returns the tag name in lower case. `behind` is the text after the "<" of the tag.
QString tagName(const QString &behind)
{
    const int begin = behind.indexOf(QRegExp(QLatin1String("[^\\s]")));
    if (begin < 0)
        return QString();
    const int end = behind.indexOf(QRegExp(QLatin1String("[\\s>/=]")), begin);
    return behind.mid(begin, end < 0 ? -1 : end - begin).toLower();
}

/// Returns true if quotes or entities disguise the tag name, so that it may be any name.
bool isDisguised(const QString &name)
{
    return name.contains(QLatin1Char('&')) || name.contains(QLatin1Char('"')) ||
           name.contains(QLatin1Char('\''));
}

/// Returns true if the tag contains an entity or a number with at least three digits. An entity may
/// disguise such a number or the name of its attribute.
bool maySpanMany(const QString &behind)
{
    return behind.contains(QLatin1Char('&')) || behind.contains(QRegExp(QLatin1String("\\d{3}")));
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
        return cost; // if there are too many tags, their kinds do not matter
    cost.tags = 0;
    const QStringList parts = text.split(QLatin1Char('<'));
    for (int i = 1; i < parts.count(); ++i)
        addTag(parts.at(i), cost);
    return cost;
}
