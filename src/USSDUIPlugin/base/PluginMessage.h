#ifndef PLUGINMESSAGE_H
#define PLUGINMESSAGE_H

#include <QMessageBox>
#include <QString>

/*
 * Shows message boxes through the host. The functions must be called from the GUI thread.
 *
 * While a message box is open, the host may shut down the plug-in from the nested event loop. After
 * show() has returned, the caller must check that its objects still exist.
 */
namespace PluginMessage
{

/// Shows a message box and returns the result of CommonUtils::ShowMessage().
int show(QMessageBox::Icon icon, QWidget *parent, const QString &caption, const QString &text,
         const QString &firstButtonKey, const QString &secondButtonKey = QString());

/// Closes all open message boxes as if the user had pressed Escape. A message box without a parent
/// would otherwise outlive the plug-in's windows.
void closeAll();

} // namespace PluginMessage

#endif
