#ifndef CURRENCIES_H
#define CURRENCIES_H

#include <QList>
#include <QString>

namespace Dashboard
{

/** How amounts in a currency are usually written. */
enum class Grouping {
    Unknown,       // three digits after a single mark may be decimals or thousands
    Points,        // three digits after a single point are thousands
    Commas,        // three digits after a single comma are thousands
    ThreeDecimals, // three digits after a point are decimals
};

/** An occurrence of a currency in a reply. */
struct CurrencyMark {
    int start = 0;
    int end = 0;
    QString name; // the ISO 4217 code, or the mark itself if several currencies use it
    Grouping grouping = Grouping::Unknown;
};

/// Returns the currencies in a reply, in the order of their occurrence. The reply must be in plain
/// form (see ReplyWords.h).
QList<CurrencyMark> currencyMarks(const QString &plain);

} // namespace Dashboard

#endif
