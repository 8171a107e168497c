#ifndef PLUGINMESSAGE_H
#define PLUGINMESSAGE_H

#include <QMessageBox>
#include <QString>

/*
 * Shows the plug-in's messages to the user through the host. GUI thread only.
 *
 * An open message runs an event loop of its own, in which the host may destroy everything. When
 * show() returns, the caller checks that the objects it needs still exist.
 */
namespace PluginMessage
{

/// Shows a message and returns its answer, as CommonUtils::ShowMessage() does.
int show(QMessageBox::Icon icon, QWidget *parent, const QString &caption, const QString &text,
         const QString &firstButtonKey, const QString &secondButtonKey = QString());

/// Closes all open messages as Escape would. A message without a parent would otherwise outlive the
/// windows of the plug-in.
void closeAll();

} // namespace PluginMessage

#endif
