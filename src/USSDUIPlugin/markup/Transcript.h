#ifndef TRANSCRIPT_H
#define TRANSCRIPT_H

#include <QString>

#include "MarkupCost.h"

namespace Formats
{
struct Char;
}

/*
 * Builds the markup for the entries of the general window's transcript. The functions are
 * stateless. HarmlessMarkup escapes each "<" that does not start a tag. SlowText and MarkupCost
 * estimate the cost of an entry, which determines the form in which TranscriptView shows it.
 */
namespace Transcript
{

/// The direction of an entry, as seen by the user.
enum Direction { Sent, Received };

/** An entry in all forms in which TranscriptView can show it. */
struct Entry {
    QString markup;
    bool isPlain;    // true if neither the caption nor the text contains markup
    bool mayReachOn; // true if the markup may change the appearance of later entries
    bool isHeavy;    // true if the text is slow to lay out even without markup
    MarkupCost cost; // cost of the markup in the text

    // The entry with its markup escaped. It is shown if the markup is too expensive.
    QString letters;
    bool lettersMayReachOn; // like mayReachOn, but for the entry with its markup escaped

    // Used if the entry is shown in pieces.
    QString words;  // caption and text; lines end with a line feed
    QString sample; // markup of a short entry with the same appearance
};

/// Returns the entry for a text. `text` may contain tags. A "<" that does not start a tag is
/// treated as plain text.
Entry entry(Direction direction, const Formats::Char &look, bool rightToLeft,
            const QString &caption, const QString &text);

/// Returns the markup of a complete document that contains the entries.
QString document(const QString &entries);

} // namespace Transcript

#endif
