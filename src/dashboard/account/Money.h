#ifndef MONEY_H
#define MONEY_H

#include <QString>

namespace Dashboard
{

/**
 * An amount of money and its currency. The amount is stored as an integer, so that sums do not have
 * rounding errors.
 */
struct Money {
    static const qint64 UNITS = 10000; // the number of units in an amount of 1.00

    qint64 units = 0;
    int decimals = 0; // the number of decimal places in the reply, 0 to 4
    QString currency; // the ISO 4217 code; as in the reply if several codes are possible

    bool operator==(const Money &other) const
    {
        return units == other.units && currency == other.currency;
    }
    bool operator!=(const Money &other) const { return !(*this == other); }
};

/// Returns the amount without its currency, formatted for the current language, such as "1,250.50".
QString amountText(const Money &money);
/// Returns the amount with its currency.
QString moneyText(const Money &money);
/// Returns the amount without its currency in the format for files: with a decimal point and
/// without thousands separators.
QString plainAmount(const Money &money);
/// Parses the result of plainAmount(), or an amount that the user has entered with a decimal point
/// or comma. Returns false if the string is not an amount.
bool readPlainAmount(const QString &text, Money *money);

/// Returns the string with the digits of other scripts replaced with the digits 0 to 9.
QString withLatinDigits(const QString &text);

} // namespace Dashboard

#endif
