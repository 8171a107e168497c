#include "ReplyNumbers.h"

#include <QRegularExpression>
#include <QStringList>

#include "Money.h"

namespace Dashboard
{

namespace
{

const int GROUP = 3;         // digits in a group of thousands
const int INDIAN_GROUP = 2;  // digits in the other groups of the Indian number format
const int MOST_DECIMALS = 4; // a number with more decimal places is not an amount of money

bool isGrouped(const QStringList &groups)
{
    if (groups.first().isEmpty() || groups.first().length() > GROUP ||
        groups.first() == QLatin1String("0") || groups.last().length() != GROUP)
        return false;
    const int inner = groups.size() > 2 ? groups.at(1).length() : GROUP;
    for (int i = 1; i + 1 < groups.size(); ++i) {
        if (groups.at(i).length() != inner)
            return false;
    }
    return inner == GROUP || (inner == INDIAN_GROUP && groups.first().length() <= INDIAN_GROUP);
}

/** The integer part and the decimal places of a number. */
struct Parts {
    QStringList groups;
    QString decimals;
};

bool readParts(const Parts &parts, qint64 *units, int *decimals)
{
    if (parts.groups.size() > 1 && !isGrouped(parts.groups))
        return false;
    Money money;
    const QString text = parts.groups.join(QString()) +
                         (parts.decimals.isEmpty() ? QString() : QLatin1Char('.') + parts.decimals);
    if (!readPlainAmount(text, &money))
        return false;
    *units = money.units;
    *decimals = money.decimals;
    return true;
}

/// Returns true if a single mark before three digits is a thousands separator in this currency.
bool areThousands(QChar mark, Grouping grouping)
{
    return (mark == QLatin1Char('.') && grouping == Grouping::Points) ||
           (mark == QLatin1Char(',') && grouping == Grouping::Commas) ||
           mark == QLatin1Char('\'') || mark.isSpace();
}

/// Splits a number that contains one mark. Returns false if the mark may be either a decimal point
/// or a thousands separator.
bool splitAtOneMark(const QString &text, QChar mark, Grouping grouping, Parts *parts)
{
    const QStringList sides = text.split(mark);
    const bool areThree = sides.last().length() == GROUP;
    if (areThree && sides.first() != QLatin1String("0") && areThousands(mark, grouping)) {
        parts->groups = sides;
        return true;
    }
    const bool isDecimal = mark == QLatin1Char('.') || mark == QLatin1Char(',');
    const bool isClear = !areThree || sides.first() == QLatin1String("0") ||
                         sides.first().length() > GROUP ||
                         (mark == QLatin1Char('.') && grouping == Grouping::ThreeDecimals);
    parts->groups = QStringList(sides.first());
    parts->decimals = sides.last();
    return isDecimal && isClear && sides.last().length() <= MOST_DECIMALS;
}

QString marksOf(const QString &text)
{
    QString marks;
    for (const QChar character : text) {
        if (!character.isDigit())
            marks += character;
    }
    return marks;
}

/// Splits a number that contains several marks. If the last mark differs from the others, it is
/// treated as the decimal point.
bool splitAtMarks(const QString &text, const QString &marks, Grouping grouping, Parts *parts)
{
    const QChar first = marks.at(0);
    const QChar last = marks.at(marks.length() - 1);
    QString whole = text;
    if (last != first) {
        if (last != QLatin1Char('.') && last != QLatin1Char(','))
            return false;
        whole = text.section(last, 0, 0);
        parts->decimals = text.section(last, 1);
        const bool areThree = parts->decimals.length() == GROUP;
        if (parts->decimals.length() > MOST_DECIMALS ||
            (areThree && grouping != Grouping::ThreeDecimals))
            return false;
    }
    for (const QChar mark : marksOf(whole)) {
        if (mark != first)
            return false;
    }
    parts->groups = whole.split(first);
    return true;
}

} // namespace

bool ReplyNumber::read(Grouping grouping, qint64 *units, int *decimals) const
{
    const QString marks = marksOf(text);
    Parts parts;
    bool isSplit = true;
    if (marks.isEmpty())
        parts.groups = QStringList(text);
    else if (marks.length() == 1)
        isSplit = splitAtOneMark(text, marks.at(0), grouping, &parts);
    else
        isSplit = splitAtMarks(text, marks, grouping, &parts);
    return isSplit && readParts(parts, units, decimals);
}

QList<ReplyNumber> replyNumbers(const QString &plain)
{
    // A number may contain marks between digits, and a space before each group of three digits.
    static const QRegularExpression number(
        QString::fromUtf8("(?<![0-9])[0-9]+(?:[.,'،٬:/][0-9]+|[ \\x{00a0}][0-9]{3}(?![0-9]))*"));
    QList<ReplyNumber> numbers;
    for (auto match = number.globalMatch(plain); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        ReplyNumber each;
        each.start = found.capturedStart();
        each.end = found.capturedEnd();
        each.text = found.captured();
        numbers << each;
    }
    return numbers;
}

} // namespace Dashboard
