#ifndef ACCOUNTWORDS_H
#define ACCOUNTWORDS_H

#include <QDateTime>
#include <QString>

namespace Dashboard
{

/// Returns the date in the long form of the language, such as "31 December 2027".
QString longDate(const QDate &date);
/// Returns the day and the month, such as "23 Oct".
QString shortDate(const QDate &date);
/// Returns "today at 14:32", "yesterday at 14:32", or the date in its long form.
QString whenText(const QDateTime &time, const QDateTime &now);
/// Returns the number of days until the date, such as "405 days left". The date must not be in the
/// past.
QString daysLeftText(const QDate &date, const QDate &today);
/// Returns "Valid until 31 December 2027, 405 days left" or "Ended on 1 February 2026".
QString validityText(const QDate &date, const QDate &today);

} // namespace Dashboard

#endif
