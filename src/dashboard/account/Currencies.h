#ifndef CURRENCIES_H
#define CURRENCIES_H

#include <QList>
#include <QString>

namespace Dashboard
{

/** The usual forms of amounts in a currency. */
enum class Grouping {
    Unknown,       // one mark and three digits may be decimals or thousands
    Points,        // a single point and three digits are thousands
    Commas,        // a single comma and three digits are thousands
    ThreeDecimals, // a point and three digits are decimals
};

/** A place in a reply where a currency is named. */
struct CurrencyMark {
    int start = 0;
    int end = 0;
    QString name; // an ISO 4217 code, or the mark itself if several currencies use it
    Grouping grouping = Grouping::Unknown;
};

/// Returns the currencies that a reply in plain form (see ReplyWords.h) names, in their order.
QList<CurrencyMark> currencyMarks(const QString &plain);

} // namespace Dashboard

#endif
