#ifndef TRANSCRIPT_H
#define TRANSCRIPT_H

#include <QString>

#include "MarkupCost.h"

namespace Formats
{
struct Char;
}

/*
 * Builds the entries of the general window's transcript as markup. All functions depend only on
 * their arguments. HarmlessMarkup escapes each "<" that does not begin a tag. SlowText and
 * MarkupCost estimate how expensive an entry is. Based on this estimate, TranscriptView selects one
 * of the forms of the entry.
 */
namespace Transcript
{

/// The direction of an entry: the user sent or received the text.
enum Direction { Sent, Received };

/** An entry in all forms in which TranscriptView may show it. */
struct Entry {
    QString markup;
    bool isPlain;    // true if the caption and the text do not contain markup
    bool mayReachOn; // true if the markup may affect the appearance of later entries
    bool isHeavy;    // true if the layout of the text is slow even without markup
    MarkupCost cost; // cost of the markup in the text

    // The entry with escaped markup, which is shown if the markup is too expensive.
    QString letters;
    bool lettersMayReachOn; // true if the escaped text may affect the appearance of later entries

    // The contents of an entry that is shown in pieces.
    QString words;  // caption and text; lines end with a line feed
    QString sample; // markup of a short entry with the same appearance
};

/// Returns the entry for a text. Tags in `text` are treated as markup. A "<" that does not begin a
/// tag is plain text.
Entry entry(Direction direction, const Formats::Char &look, bool rightToLeft,
            const QString &caption, const QString &text);

/// Returns a complete document with the markup of the entries.
QString document(const QString &entries);

} // namespace Transcript

#endif
