#ifndef PLUGINMESSAGE_H
#define PLUGINMESSAGE_H

#include <QMessageBox>
#include <QString>

/*
 * The plug-in's messages to the user, shown by the host. GUI thread.
 *
 * While one is open its event loop runs, and the host may take down everything: the caller checks
 * that what it needs is still there when show() comes back.
 */
namespace PluginMessage
{

/// As CommonUtils::ShowMessage().
int show(QMessageBox::Icon icon, QWidget *parent, const QString &caption, const QString &text,
         const QString &firstButtonKey, const QString &secondButtonKey = QString());

/// Closes the messages that are open, as Escape does. Not every one has a parent that would take
/// it along when the plug-in is taken down.
void closeAll();

} // namespace PluginMessage

#endif
