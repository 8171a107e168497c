#include "KeyboardHelper.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "GeneralWindow.h"

namespace Dashboard
{

namespace
{

QLineEdit *asCommandEdit(QObject *object)
{
    if (object->objectName() != QLatin1String(GeneralWindow::COMMAND_EDIT))
        return nullptr;
    return qobject_cast<QLineEdit *>(object);
}

bool isReturn(const QKeyEvent *event)
{
    return (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
           !event->isAutoRepeat();
}

// Sets the focus from the event loop, because the plug-in moves the focus to a hidden combo box
// while showing the window.
void focusSoon(QLineEdit *edit)
{
    QMetaObject::invokeMethod(edit, "setFocus", Qt::QueuedConnection);
}

} // namespace

KeyboardHelper::KeyboardHelper(QObject *parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyboardHelper::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::EnabledChange && type != QEvent::Show)
        return false;
    QLineEdit *edit = asCommandEdit(watched);
    if (!edit)
        return false;
    if (type == QEvent::KeyPress)
        return isReturn(static_cast<QKeyEvent *>(event)) && pressSend(edit);
    if (edit->isEnabled() && edit->isVisible())
        focusSoon(edit);
    return false;
}

/// Clicks the Send button. The click has no effect if the button is disabled. Returns true if the
/// button exists.
bool KeyboardHelper::pressSend(const QLineEdit *edit)
{
    const QString name = QLatin1String(GeneralWindow::SEND_BUTTON);
    for (const QWidget *around = edit->parentWidget(); around; around = around->parentWidget()) {
        if (QPushButton *button = around->findChild<QPushButton *>(name)) {
            button->click();
            return true;
        }
    }
    return false;
}

} // namespace Dashboard
