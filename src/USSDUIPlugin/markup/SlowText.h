#ifndef SLOWTEXT_H
#define SLOWTEXT_H

#include <QString>
#include <QStringList>

/*
 * Detects replies that would freeze a window while Qt breaks them into lines, and splits such a
 * reply into pieces that can be laid out quickly. Line breaking is slow for long texts. The time
 * increases with the square of the number of script changes.
 *
 * Transcript, AccountReplyView and ReplyMessageBox call isHeavy(). PieceFeeder adds the pieces to a
 * text edit one by one. SlowText considers only plain text. MarkupCost estimates the cost of
 * markup.
 */
namespace SlowText
{

/// Returns true if laying out `text` as one paragraph would block the window for a noticeable time.
/// A text that a network can send is never heavy.
bool isHeavy(const QString &text);

/// Splits `text` into pieces that are not heavy, at blanks if possible.
QStringList pieces(const QString &text);

} // namespace SlowText

#endif
