#ifndef PLUGINMESSAGE_H
#define PLUGINMESSAGE_H

#include <QMessageBox>
#include <QString>

/*
 * Shows message boxes through the host. The functions must be called from the GUI thread.
 *
 * An open message box runs a nested event loop, in which the host may destroy everything. When
 * show() has returned, the caller must check that the objects it needs still exist.
 */
namespace PluginMessage
{

/// Shows a message box and returns the user's choice, in the same way as
/// CommonUtils::ShowMessage().
int show(QMessageBox::Icon icon, QWidget *parent, const QString &caption, const QString &text,
         const QString &firstButtonKey, const QString &secondButtonKey = QString());

/// Closes all open message boxes as if the user had pressed Escape. Otherwise, a message box
/// without a parent would outlive the windows of the plug-in.
void closeAll();

} // namespace PluginMessage

#endif
