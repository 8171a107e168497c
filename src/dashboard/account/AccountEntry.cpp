#include "AccountEntry.h"

#include <QRegularExpression>

#include "Currencies.h"
#include "ReplyWords.h"

namespace Dashboard
{

namespace
{

const int VISIBLE_DIGITS = 4;

/// Returns true if there is a currency directly before or after the digits.
bool isAmount(const QString &text, int start, int end)
{
    const int reach = 16; // longer than any currency name and the space next to it
    const QString before =
        plainForm(text.mid(qMax(0, start - reach), start - qMax(0, start - reach)));
    const QString behind = plainForm(text.mid(end, reach));
    for (const CurrencyMark &mark : currencyMarks(before + QLatin1Char('\n'))) {
        if (mark.end >= before.trimmed().length())
            return true;
    }
    const QList<CurrencyMark> marks = currencyMarks(behind.toLower() + behind);
    return !marks.isEmpty() && marks.first().start <= 1;
}

QString hidden(const QString &digits)
{
    QString end;
    for (int i = digits.length() - 1; i >= 0 && end.length() < VISIBLE_DIGITS; --i) {
        if (digits.at(i).isDigit())
            end.prepend(digits.at(i));
    }
    return QChar(0x2026) + end;
}

} // namespace

QString withoutNumbers(const QString &text)
{
    static const QRegularExpression form(
        QLatin1String("\\b\\d{4}-\\d{1,2}-\\d{1,2}\\b|\\b\\d{1,2}-\\d{1,2}-\\d{4}\\b|"
                      "((?:\\+ ?)?\\d(?:[ \\x{00a0}()/-]{0,2}\\d){6,}|"
                      // Matches groups of two or four digits that are separated by points. Groups
                      // of three digits are not matched, because they are usually an amount.
                      "\\b(?:\\d{2}(?:\\.\\d{2}){3,}|\\d{4}(?:\\.\\d{4})+)\\b)"),
        QRegularExpression::UseUnicodePropertiesOption);
    QString result;
    int copied = 0;
    for (auto match = form.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        if (found.captured(1).isEmpty() ||
            isAmount(text, found.capturedStart(1), found.capturedEnd(1)))
            continue;
        result += text.mid(copied, found.capturedStart() - copied) + hidden(found.captured(1));
        copied = found.capturedEnd();
    }
    return result + text.mid(copied);
}

} // namespace Dashboard
