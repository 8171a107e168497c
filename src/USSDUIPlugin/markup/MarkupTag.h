#ifndef MARKUPTAG_H
#define MARKUPTAG_H

#include <QString>

/* Where a text begins a tag for a rich-text document, and where it only holds a "<". */
namespace MarkupTag
{

/// The text with each "<" as an entity that begins no whole tag of those that Qt knows. A document
/// would otherwise swallow what stands behind it, as in "Balance < 5 EUR". A tag whose name is
/// written with entities or in quotes counts as none.
QString withOthersAsLetters(const QString &text);

} // namespace MarkupTag

#endif
