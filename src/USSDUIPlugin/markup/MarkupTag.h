#ifndef MARKUPTAG_H
#define MARKUPTAG_H

#include <QString>

/*
 * Tells the tags in a reply from a "<" that is a plain letter. A rich-text document would take such
 * a letter for the start of a tag and swallow the text after it, as in "Balance < 5 EUR".
 * Transcript escapes these letters before it builds an entry; MarkupCost estimates how expensive
 * the real tags are.
 */
namespace MarkupTag
{

/// Returns `text` with each "<" escaped that does not start a complete tag known to Qt. A tag whose
/// name is written with entities or in quotes is not recognised and is escaped, too.
QString withOthersAsLetters(const QString &text);

} // namespace MarkupTag

#endif
