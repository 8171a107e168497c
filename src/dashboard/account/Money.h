#ifndef MONEY_H
#define MONEY_H

#include <QString>

namespace Dashboard
{

/** An amount of money in one currency. Amounts are exact, so that sums have no rounding errors. */
struct Money {
    static const qint64 UNITS = 10000; // the units of an amount in one of the currency

    qint64 units = 0;
    int decimals = 0; // the number of decimals in the reply, 0 to 4
    QString currency; // an ISO 4217 code where the reply allows only one, otherwise as written

    bool operator==(const Money &other) const
    {
        return units == other.units && currency == other.currency;
    }
    bool operator!=(const Money &other) const { return !(*this == other); }
};

/// Returns the number of the amount in the form of the current language, such as "1,250.50".
QString amountText(const Money &money);
/// Returns the amount with its currency.
QString moneyText(const Money &money);
/// Returns the number of the amount with a point and without marks for thousands, for files.
QString plainAmount(const Money &money);
/// Reads the number of an amount that plainAmount() has written, or that the user has entered with
/// a point or a comma. Returns false if the string is not such a number.
bool readPlainAmount(const QString &text, Money *money);

/// Returns the string with the digits 0 to 9 in place of the digits of other scripts.
QString withLatinDigits(const QString &text);

} // namespace Dashboard

#endif
