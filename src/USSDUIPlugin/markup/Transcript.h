#ifndef TRANSCRIPT_H
#define TRANSCRIPT_H

#include <QString>

#include "MarkupCost.h"

namespace Formats
{
struct Char;
}

/*
 * Builds the entries of the general dialog's transcript as markup, by plain functions on plain
 * values. MarkupTag escapes each "<" that begins no tag. HeavyText and MarkupCost say how expensive
 * an entry is, by which TranscriptView chooses one of its forms.
 */
namespace Transcript
{

/// Whether the user sent the text of an entry or received it.
enum Direction { Sent, Received };

/** One entry in all forms that TranscriptView may show. */
struct Entry {
    QString markup;
    bool isPlain;    // caption and text contain letters only
    bool mayReachOn; // the markup may affect the look of later entries
    bool isHeavy;    // the text takes long to lay out, even as letters
    MarkupCost cost; // cost of the markup in the text

    // The entry with its text as letters, for a text whose markup costs too much.
    QString letters;
    bool lettersMayReachOn; // these letters may affect the look of later entries

    // The contents of an entry that is shown piece by piece.
    QString words;  // caption and text; a line feed ends a line
    QString sample; // markup of a short entry with the same look
};

/// Returns the entry for a text. Tags in `text` count as markup; a "<" that begins no tag is a
/// letter.
Entry entry(Direction direction, const Formats::Char &look, bool rightToLeft,
            const QString &caption, const QString &text);

/// Returns a complete document with the markup of these entries.
QString document(const QString &entries);

} // namespace Transcript

#endif
