#include "CodeForms.h"

#include <QRegularExpression>

#include "UssdCode.h"

namespace Dashboard
{

namespace
{

const int LONGEST_SERVICE_CODE = 5; // digits
const int SHORTEST_SECRET = 4;      // digits; PINs are not shorter

/// If the code matches the template `form`, returns the template with HIDDEN_DIGITS instead of its
/// placeholders. Otherwise, returns an empty string.
QString hiddenBy(const QString &form, const QString &code)
{
    QString pattern = QRegularExpression::escape(form);
    pattern.replace(QRegularExpression::escape(Formats::INPUT_PLACEHOLDER),
                    QLatin1String("[0-9+]+"));
    const QRegularExpression fit(QLatin1Char('^') + pattern + QLatin1Char('$'));
    if (!fit.match(code).hasMatch())
        return QString();
    return QString(form).replace(Formats::INPUT_PLACEHOLDER, QString(HIDDEN_DIGITS));
}

/// Hides all groups of digits that are long enough for a number or a PIN.
QString hiddenByLength(const QString &code)
{
    static const QRegularExpression group(QLatin1String("\\+?[0-9]+"));
    QString shown;
    int end = 0;
    for (auto groups = group.globalMatch(code); groups.hasNext();) {
        const QRegularExpressionMatch match = groups.next();
        const int longest = end == 0 ? LONGEST_SERVICE_CODE : SHORTEST_SECRET - 1;
        shown += code.mid(end, match.capturedStart() - end);
        shown += match.capturedLength() > longest ? QString(HIDDEN_DIGITS) : match.captured();
        end = match.capturedEnd();
    }
    return shown + code.mid(end);
}

} // namespace

const QChar HIDDEN_DIGITS(0x2026);

QString codeWithoutNumbers(const QString &code, const QStringList &templates)
{
    if (templates.contains(code))
        return code;
    for (const QString &form : templates) {
        const bool hasPlace = form.contains(Formats::INPUT_PLACEHOLDER);
        QString hidden = hasPlace ? hiddenBy(form, code) : QString();
        if (!hidden.isEmpty())
            return hidden;
    }
    return hiddenByLength(code);
}

bool hasHiddenDigits(const QString &code)
{
    return code.contains(HIDDEN_DIGITS);
}

QString withDigits(const QString &code, const QString &digits)
{
    QString complete = code;
    const int place = complete.indexOf(HIDDEN_DIGITS);
    return place < 0 ? complete : complete.replace(place, 1, digits);
}

} // namespace Dashboard
