#ifndef REPLYMESSAGEBOX_H
#define REPLYMESSAGEBOX_H

#include <QMessageBox>

/*
 * The message box that shows the network's reply to a top-up. The box uses only Qt's own classes,
 * so that it can be deleted without running any code of the plug-in.
 */
namespace ReplyMessageBox
{

/// Creates a modal message box as a child of `parent` without showing it. The box contains the
/// reply as plain text, in a scrolling view if the reply is too long for a label.
QMessageBox *create(QWidget *parent, const QString &reply);

/// Updates the title and the button to the current language.
void retranslate(QMessageBox *box);

} // namespace ReplyMessageBox

#endif
