#ifndef ACCOUNTENTRY_H
#define ACCOUNTENTRY_H

#include <QDateTime>

#include "ReplyReading.h"

namespace Dashboard
{

/** A reply to one of the codes that query account data, and the values extracted from it. */
struct AccountEntry {
    QDateTime askedAt; // invalid if the entry does not exist
    QString code;
    /// The extracted values. A stored entry contains only the last four digits of the phone number.
    ReplyReading reading;
    QString text; // without phone numbers, PINs and voucher numbers

    bool isNull() const { return !askedAt.isValid(); }
};

/** The balance on one day. */
struct BalanceDay {
    QDate day;
    Money last; // the last known balance of the day
    qint64 lowest = 0;
    // The sums of all decreases and of all increases on this day, in the same units as
    // Money::units.
    qint64 falls = 0;
    qint64 rises = 0;
};

/// Returns the reply with long sequences of digits shortened to their last four digits, because
/// they may be phone numbers, PINs or voucher numbers. Amounts and dates are not changed.
QString withoutNumbers(const QString &text);

} // namespace Dashboard

#endif
