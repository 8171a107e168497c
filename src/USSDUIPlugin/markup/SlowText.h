#ifndef SLOWTEXT_H
#define SLOWTEXT_H

#include <QString>
#include <QStringList>

/*
 * Recognises replies that would freeze a window while Qt breaks them into lines, and splits such a
 * text into pieces that are quick to lay out. Line breaking is slow for long texts. Its time grows
 * with the square of the number of changes from one script to another.
 *
 * Transcript, AccountReplyView and ReplyMessageBox call isHeavy(), and PieceFeeder adds the pieces
 * to a text edit one by one. SlowText considers only plain text; MarkupCost estimates the cost of
 * markup.
 */
namespace SlowText
{

/// Returns true if laying out `text` as one paragraph would block the window for more than a
/// moment. No text that a network can send is heavy.
bool isHeavy(const QString &text);

/// Splits `text` into pieces that are not heavy, at blanks where possible.
QStringList pieces(const QString &text);

} // namespace SlowText

#endif
