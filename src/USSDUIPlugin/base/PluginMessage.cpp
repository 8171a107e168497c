#include "PluginMessage.h"

#include <QApplication>
#include <QDialog>
#include <QList>
#include <QPointer>

#include "CommonUtils.h"

namespace
{

typedef QList<QPointer<QDialog>> Dialogs;

/// An open message box, which the host has created. The plug-in identifies it as the dialog that
/// has this caption and was not open before.
struct OpenMessage {
    QString caption;
    Dialogs before;
};

QList<OpenMessage> &openMessages()
{
    static QList<OpenMessage> messages;
    return messages;
}

Dialogs modalDialogs()
{
    Dialogs dialogs;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (int i = 0; i < windows.count(); ++i) {
        QDialog *dialog = qobject_cast<QDialog *>(windows.at(i));
        if (dialog && dialog->isVisible() && dialog->isModal())
            dialogs.append(dialog);
    }
    return dialogs;
}

void close(const OpenMessage &message)
{
    const Dialogs dialogs = modalDialogs();
    for (int i = 0; i < dialogs.count(); ++i) {
        if (dialogs.at(i) && !message.before.contains(dialogs.at(i)) &&
            dialogs.at(i)->windowTitle() == message.caption)
            dialogs.at(i)->reject();
    }
}

} // namespace

namespace PluginMessage
{

int show(QMessageBox::Icon icon, QWidget *parent, const QString &caption, const QString &text,
         const QString &firstButtonKey, const QString &secondButtonKey)
{
    const OpenMessage message = {caption, modalDialogs()};
    openMessages().append(message);
    const int answer =
        CommonUtils::ShowMessage(icon, parent, caption, text, firstButtonKey, secondButtonKey);
    openMessages().removeLast();
    return answer;
}

void closeAll()
{
    const QList<OpenMessage> messages = openMessages();
    for (int i = messages.count() - 1; i >= 0; --i)
        close(messages.at(i));
}

} // namespace PluginMessage
