#ifndef MARKUPESCAPING_H
#define MARKUPESCAPING_H

#include <QString>

/*
 * Distinguishes tags in a reply from a "<" that is plain text. A rich-text document treats such a
 * "<" as the start of a tag and drops the text after it, as in "Balance < 5 EUR". Transcript
 * escapes each such "<" before it creates an entry. MarkupCost estimates the cost of the real tags.
 */
namespace MarkupEscaping
{

/// Returns `text` with each "<" escaped unless it starts a complete tag known to Qt. A tag whose
/// name contains entities or quotes is not recognized and is also escaped.
QString withOthersAsLetters(const QString &text);

} // namespace MarkupEscaping

#endif
