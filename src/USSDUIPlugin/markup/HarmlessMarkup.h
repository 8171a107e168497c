#ifndef HARMLESSMARKUP_H
#define HARMLESSMARKUP_H

#include <QString>
#include <QVariant>

#include "MarkupCost.h"

/*
 * Makes the markup in a reply harmless. A reply comes from the network and may contain any markup.
 * Transcript and TranscriptView therefore use these functions for every entry.
 */
namespace HarmlessMarkup
{

/// Returns `text` with each "<" escaped unless it starts a complete tag known to Qt. A rich-text
/// document would treat such a "<" as the start of a tag and drop the text after it, as in "Balance
/// < 5 EUR". A tag whose name contains entities or quotes is not recognized and is also escaped.
QString withStrayBracketsEscaped(const QString &text);

/// Returns true if an entry with this cost may keep its markup in a transcript whose existing
/// markup has the cost `before`. An entry that is added in pieces cannot keep tags.
bool mayKeepMarkup(const MarkupCost &cost, const MarkupCost &before, bool isInPieces);

/// Returns an empty resource instead of one that the markup names, so that no file and no address
/// is opened. If the resource were null, Qt would try to open a file with this name.
QVariant emptyResource(int type);

} // namespace HarmlessMarkup

#endif
