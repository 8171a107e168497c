#include "AccountWords.h"

#include <QLocale>

#include "base/ClockText.h"
#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "Money.h"

namespace Dashboard
{

namespace
{

QString formatted(const QDate &date, const char *formatKey)
{
    return withLatinDigits(QLocale().toString(date, dashboardText(formatKey)));
}

} // namespace

QString longDate(const QDate &date)
{
    return formatted(date, "HOME_LONG_DATE");
}

QString shortDate(const QDate &date)
{
    return formatted(date, "HOME_SHORT_DATE");
}

QString whenText(const QDateTime &time, const QDateTime &now)
{
    const QString clock = clockText(time);
    const qint64 days = time.date().daysTo(now.date());
    if (days == 0)
        return dashboardText("HOME_TODAY").arg(clock);
    if (days == 1)
        return dashboardText("HOME_YESTERDAY").arg(clock);
    return longDate(time.date());
}

QString daysLeftText(const QDate &date, const QDate &today)
{
    const qint64 days = today.daysTo(date);
    if (days == 0)
        return dashboardText("HOME_LAST_DAY");
    return days == 1 ? dashboardText("HOME_DAY_LEFT") : dashboardText("HOME_DAYS_LEFT").arg(days);
}

QString validityText(const QDate &date, const QDate &today)
{
    if (date < today)
        return dashboardText("HOME_ENDED").arg(longDate(date));
    return dashboardText("HOME_VALID_UNTIL").arg(longDate(date), daysLeftText(date, today));
}

} // namespace Dashboard
