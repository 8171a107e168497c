#ifndef REPLYMESSAGEBOX_H
#define REPLYMESSAGEBOX_H

#include <QMessageBox>

/*
 * The message box that shows the network's reply to a top-up. The box consists of Qt's own classes
 * only, so that its deletion needs no code of the plug-in.
 */
namespace ReplyMessageBox
{

/// Returns a modal box, not shown yet, that is a child of `parent`. The box shows the reply as
/// plain text, in a scrolling view if the reply is too long for a label.
QMessageBox *create(QWidget *parent, const QString &reply);

/// Updates the title and the button to the current language.
void retranslate(QMessageBox *box);

} // namespace ReplyMessageBox

#endif
