#ifndef HARMLESSMARKUP_H
#define HARMLESSMARKUP_H

#include <QString>
#include <QVariant>

#include "MarkupCost.h"

/*
 * Functions that make the markup in network replies harmless. A reply may contain any markup, so
 * Transcript and TranscriptView use these functions for every entry.
 */
namespace HarmlessMarkup
{

/// Returns `text` with each "<" escaped unless it starts a complete tag that Qt supports. Without
/// this, a rich-text document would treat the "<" in "Balance < 5 EUR" as the start of a tag and
/// drop the rest of the text. A tag is also escaped if its name contains entities or quotes,
/// because such a name is not recognized.
QString withStrayBracketsEscaped(const QString &text);

/// Returns true if an entry with this cost can be shown with its markup. `before` is the cost of
/// the markup that is already in the transcript. Entries that are inserted in pieces never keep
/// their markup.
bool mayKeepMarkup(const MarkupCost &cost, const MarkupCost &before, bool isInPieces);

/// Returns an empty resource, which is used in place of every resource that the markup refers to.
/// The result must not be null, because Qt would then try to open the resource as a file.
QVariant emptyResource(int type);

} // namespace HarmlessMarkup

#endif
