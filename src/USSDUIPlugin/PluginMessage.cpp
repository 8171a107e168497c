#include "PluginMessage.h"

#include <QApplication>
#include <QStringList>

#include "CommonUtils.h"

namespace
{

/// Captions of the messages that are open. The host makes the windows, so they are known by these.
QStringList &openCaptions()
{
    static QStringList captions;
    return captions;
}

void closeMessage(const QString &caption)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (int i = 0; i < windows.count(); ++i) {
        QDialog *dialog = qobject_cast<QDialog *>(windows.at(i));
        if (dialog && dialog->isVisible() && dialog->isModal() && dialog->windowTitle() == caption)
            dialog->reject();
    }
}

} // namespace

namespace PluginMessage
{

int show(QMessageBox::Icon icon, QWidget *parent, const QString &caption, const QString &text,
         const QString &firstButtonKey, const QString &secondButtonKey)
{
    openCaptions().append(caption);
    const int answer =
        CommonUtils::ShowMessage(icon, parent, caption, text, firstButtonKey, secondButtonKey);
    openCaptions().removeOne(caption);
    return answer;
}

void closeAll()
{
    const QStringList captions = openCaptions();
    for (int i = captions.count() - 1; i >= 0; --i)
        closeMessage(captions.at(i));
}

} // namespace PluginMessage
