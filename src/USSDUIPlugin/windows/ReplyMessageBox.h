#ifndef REPLYMESSAGEBOX_H
#define REPLYMESSAGEBOX_H

#include <QMessageBox>

/*
 * The message box that shows the reply to a top-up. It consists only of Qt classes, so that
 * deleting it does not run any code of the plug-in.
 */
namespace ReplyMessageBox
{

/// Creates a hidden modal message box as a child of `parent`. The reply is shown as plain text, in
/// a scrollable view if it is too long for a label.
QMessageBox *create(QWidget *parent, const QString &reply);

/// Retranslates the title and the button.
void retranslate(QMessageBox *box);

} // namespace ReplyMessageBox

#endif
