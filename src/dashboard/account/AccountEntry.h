#ifndef ACCOUNTENTRY_H
#define ACCOUNTENTRY_H

#include <QDateTime>

#include "ReplyReading.h"

namespace Dashboard
{

/** A reply to one of the codes that ask for the account, and what was read out of it. */
struct AccountEntry {
    QDateTime askedAt; // invalid if there is no such entry
    QString code;
    /// The values. In a stored entry, only the last four digits of the number are kept.
    ReplyReading reading;
    QString text; // without phone numbers, PINs and voucher numbers

    bool isNull() const { return !askedAt.isValid(); }
};

/** The balance on one day. */
struct BalanceDay {
    QDate day;
    Money last; // the balance that was told last on this day
    qint64 lowest = 0;
    // The sums of all changes between two replies, in the units of Money.
    qint64 falls = 0;
    qint64 rises = 0;
};

/// Returns the reply without long runs of digits, which may be phone numbers, PINs or voucher
/// numbers. Their last four digits stay. Amounts and dates stay as they are.
QString withoutNumbers(const QString &text);

} // namespace Dashboard

#endif
