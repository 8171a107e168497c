#ifndef REPLYBOX_H
#define REPLYBOX_H

#include <QMessageBox>

/*
 * The message box that shows the network's reply to a top-up. Nothing but Qt's own classes: one
 * that is being deleted needs no code of the plug-in.
 */
namespace ReplyBox
{

/// A modal box, not shown yet, that belongs to `parent`. The reply is plain text; one that is too
/// long for a label stands in a view that scrolls.
QMessageBox *create(QWidget *parent, const QString &reply);

/// Re-reads title and button in the current language.
void retranslate(QMessageBox *box);

} // namespace ReplyBox

#endif
