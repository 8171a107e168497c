#ifndef TRANSCRIPT_H
#define TRANSCRIPT_H

#include <QString>

#include "MarkupCost.h"

struct Char;

/* The general dialog's transcript as markup: plain functions on plain values. */
namespace Transcript
{

/// Who speaks in an entry.
enum Direction { Sent, Received };

/** One entry. */
struct Entry {
    QString markup;
    bool isPlain;    // caption and text are read as letters only
    bool mayReachOn; // what is in it may change how entries behind it look
    bool isHeavy;    // takes long to lay out, even as letters
    MarkupCost cost; // of the text

    // The same with the text as letters, for when its markup costs too much.
    QString letters;
    bool lettersMayReachOn;

    // What there is to show piece by piece.
    QString words;  // caption and text, a line feed being the end of a line
    QString sample; // markup of a short entry that looks the same
};

/// What `text` holds of tags counts as markup; a "<" that begins none is a letter.
Entry entry(Direction direction, const Char &look, bool rightToLeft, const QString &caption,
            const QString &text);

/// A whole document of entries.
QString document(const QString &entries);

} // namespace Transcript

#endif
