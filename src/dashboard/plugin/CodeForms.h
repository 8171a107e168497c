#ifndef CODEFORMS_H
#define CODEFORMS_H

#include <QString>
#include <QStringList>

namespace Dashboard
{

/// Stands for the digits of a phone number or a PIN in a code that is shown or kept.
extern const QChar HIDDEN_DIGITS; // the ellipsis

/**
 * Returns the code with HIDDEN_DIGITS in place of each phone number and each PIN.
 *
 * If the code fits one of the templates, whose places for a number are "%s", the digits in these
 * places are hidden. Otherwise, each group of four or more digits is hidden, except for the first
 * group of up to five digits, which is the service code. A hidden group may have been harmless, but
 * a PIN is never kept.
 */
QString codeWithoutNumbers(const QString &code, const QStringList &templates = QStringList());

/// Returns true if digits of the code are hidden, so that it cannot be sent as it is.
bool hasHiddenDigits(const QString &code);

/// Replaces the first HIDDEN_DIGITS with the digits.
QString withDigits(const QString &code, const QString &digits);

} // namespace Dashboard

#endif
