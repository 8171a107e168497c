#ifndef TRANSCRIPT_H
#define TRANSCRIPT_H

#include <QString>

#include "MarkupCost.h"

namespace Formats
{
struct Char;
}

/*
 * Builds the entries of the general dialog's transcript as markup. All functions are plain
 * functions on plain values. HarmlessMarkup escapes each "<" that begins no tag. SlowText and
 * MarkupCost estimate how expensive an entry is, and TranscriptView chooses one of the entry's
 * forms accordingly.
 */
namespace Transcript
{

/// The direction of an entry: the user sent its text or received it.
enum Direction { Sent, Received };

/** One entry in all forms that TranscriptView may show. */
struct Entry {
    QString markup;
    bool isPlain;    // caption and text contain no markup
    bool mayReachOn; // the markup may affect the appearance of later entries
    bool isHeavy;    // the text takes long to lay out, even without markup
    MarkupCost cost; // cost of the markup in the text

    // The entry with its markup escaped, which is shown if the markup costs too much.
    QString letters;
    bool lettersMayReachOn; // the escaped text may affect the appearance of later entries

    // The contents of an entry that is shown piece by piece.
    QString words;  // caption and text; a line feed ends a line
    QString sample; // markup of a short entry with the same appearance
};

/// Returns the entry for a text. Tags in `text` are treated as markup; a "<" that begins no tag is
/// plain text.
Entry entry(Direction direction, const Formats::Char &look, bool rightToLeft,
            const QString &caption, const QString &text);

/// Returns a complete document with the markup of these entries.
QString document(const QString &entries);

} // namespace Transcript

#endif
