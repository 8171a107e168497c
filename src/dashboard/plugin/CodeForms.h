#ifndef CODEFORMS_H
#define CODEFORMS_H

#include <QString>
#include <QStringList>

namespace Dashboard
{

/// The character that replaces the digits of a phone number or a PIN in a code that is displayed or
/// stored.
extern const QChar HIDDEN_DIGITS; // the ellipsis

/**
 * Returns the code with HIDDEN_DIGITS instead of each phone number and each PIN.
 *
 * `templates` are the codes in the operator's and the user's files. Nothing is hidden in a code
 * that is equal to one of them. If the code matches a template with placeholders ("%s"), the digits
 * at the placeholders are hidden. Otherwise, each group of four or more digits is hidden, except
 * for the first group of up to five digits, which is the service code. This may hide harmless
 * groups, but ensures that PINs are never stored.
 */
QString codeWithoutNumbers(const QString &code, const QStringList &templates = QStringList());

/// Returns true if the code contains HIDDEN_DIGITS and therefore cannot be sent.
bool hasHiddenDigits(const QString &code);

/// Returns the code with its first HIDDEN_DIGITS replaced with the digits.
QString withDigits(const QString &code, const QString &digits);

} // namespace Dashboard

#endif
