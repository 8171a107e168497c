#ifndef TRANSCRIPT_H
#define TRANSCRIPT_H

#include <QString>

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
};

/// `text` goes in as it is: what it holds of markup counts as markup.
Entry entry(Direction direction, const Char &look, bool rightToLeft, const QString &caption,
            const QString &text);

/// A whole document of entries.
QString document(const QString &entries);

} // namespace Transcript

#endif
