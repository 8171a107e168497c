#include "Money.h"

#include <QLocale>

#include "base/Isolate.h"

namespace Dashboard
{

namespace
{

const int MOST_DECIMALS = 4;
const int MOST_DIGITS = 12; // the maximum number of digits before the decimal point

bool isNumber(const QString &text)
{
    for (const QChar character : text) {
        if (character < QLatin1Char('0') || character > QLatin1Char('9'))
            return false;
    }
    return true;
}

qint64 scaled(const QString &decimals)
{
    return decimals.leftJustified(MOST_DECIMALS, QLatin1Char('0')).toLongLong();
}

} // namespace

QString withLatinDigits(const QString &text)
{
    QString result = text;
    for (QChar &character : result) {
        if (character.category() == QChar::Number_DecimalDigit)
            character = QLatin1Char(char('0' + character.digitValue()));
    }
    return result;
}

QString amountText(const Money &money)
{
    QLocale locale;
    // Uses the digits 0 to 9 even if the language is Arabic, as for all other numbers in the
    // window.
    if (locale.language() == QLocale::Arabic)
        locale = QLocale(QLocale::English);
    return locale.toString(double(money.units) / Money::UNITS, 'f', money.decimals);
}

QString moneyText(const Money &money)
{
    const QString number = amountText(money);
    return isolated(money.currency.isEmpty() ? number
                                             : number + QChar(QChar::Nbsp) + money.currency);
}

QString plainAmount(const Money &money)
{
    const qint64 size = qAbs(money.units);
    QString text = QString::number(size / Money::UNITS);
    const QString decimals =
        QString::number(size % Money::UNITS).rightJustified(MOST_DECIMALS, QLatin1Char('0'));
    if (money.decimals > 0)
        text += QLatin1Char('.') + decimals.left(money.decimals);
    return money.units < 0 ? QLatin1Char('-') + text : text;
}

bool readPlainAmount(const QString &text, Money *money)
{
    QString number = withLatinDigits(text.trimmed()).replace(QLatin1Char(','), QLatin1Char('.'));
    const bool isNegative = number.startsWith(QLatin1Char('-'));
    if (isNegative)
        number.remove(0, 1);
    const QString whole = number.section(QLatin1Char('.'), 0, 0);
    const QString decimals = number.section(QLatin1Char('.'), 1);
    if (whole.isEmpty() || whole.length() > MOST_DIGITS || decimals.length() > MOST_DECIMALS ||
        !isNumber(whole) || !isNumber(decimals))
        return false;
    money->units = whole.toLongLong() * Money::UNITS + scaled(decimals);
    money->units *= isNegative ? -1 : 1;
    money->decimals = decimals.length();
    return true;
}

} // namespace Dashboard
