#ifndef PLUGINMESSAGE_H
#define PLUGINMESSAGE_H

#include <QMessageBox>
#include <QString>

/*
 * Shows the plug-in's messages to the user through the host. Must be used on the GUI thread.
 *
 * An open message runs a nested event loop, in which the host may destroy everything. When show()
 * has returned, the caller must check that the objects it needs still exist.
 */
namespace PluginMessage
{

/// Shows a message and returns the user's answer, as CommonUtils::ShowMessage() does.
int show(QMessageBox::Icon icon, QWidget *parent, const QString &caption, const QString &text,
         const QString &firstButtonKey, const QString &secondButtonKey = QString());

/// Closes all open messages in the same way as Escape. Otherwise a message without a parent would
/// outlive the windows of the plug-in.
void closeAll();

} // namespace PluginMessage

#endif
