#ifndef MARKUPESCAPING_H
#define MARKUPESCAPING_H

#include <QString>

/*
 * Distinguishes the tags in a reply from a "<" that is plain text. A rich-text document would treat
 * such a "<" as the start of a tag and drop the text after it, as in "Balance < 5 EUR". Transcript
 * escapes each such "<" before it builds an entry. MarkupCost estimates how expensive the real tags
 * are.
 */
namespace MarkupEscaping
{

/// Returns `text` with each "<" escaped that does not start a complete tag known to Qt. A tag whose
/// name is written with entities or in quotes is not recognised and is also escaped.
QString withOthersAsLetters(const QString &text);

} // namespace MarkupEscaping

#endif
