#ifndef SLOWTEXT_H
#define SLOWTEXT_H

#include <QString>
#include <QStringList>

/*
 * Detects text that would block a window while Qt breaks it into lines, and splits it into pieces
 * that can be laid out quickly. Line breaking is slow for long text, and its running time is
 * quadratic in the number of script changes.
 *
 * Transcript, AccountReplyView and ReplyMessageBox call isHeavy(). PieceFeeder appends the pieces
 * to a text edit one by one. SlowText does not consider markup, whose cost is estimated by
 * MarkupCost.
 */
namespace SlowText
{

/// Returns true if laying out `text` as a single paragraph would noticeably block the window. The
/// result is always false for replies that a network can send.
bool isHeavy(const QString &text);

/// Splits `text` into pieces that are not heavy, at blanks if possible.
QStringList pieces(const QString &text);

} // namespace SlowText

#endif
