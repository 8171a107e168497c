#include "UserActivity.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>

#include "ExtendDialog.h"
#include "GeneralWindow.h"

namespace Dashboard
{

namespace
{

bool isCommandEdit(const QObject *object)
{
    return object->objectName() == QLatin1String(GeneralWindow::COMMAND_EDIT) &&
           qobject_cast<const QLineEdit *>(object);
}

bool isOpenFrame(const QWidget *widget)
{
    return widget->isVisible() && qobject_cast<const ExtendDialog *>(widget);
}

} // namespace

UserActivity::UserActivity(QObject *parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool UserActivity::isBusy()
{
    for (const QWidget *widget : QApplication::allWidgets()) {
        if (isOpenFrame(widget))
            return true;
    }
    return isCommandPending();
}

bool UserActivity::isCommandPending()
{
    for (const QWidget *widget : QApplication::allWidgets()) {
        if (isCommandEdit(widget) && isWaitingEdit(static_cast<const QLineEdit *>(widget)))
            return true;
    }
    return false;
}

// Queues the signals, because the plug-in has not yet handled the event.
bool UserActivity::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && qobject_cast<ExtendDialog *>(watched))
        QMetaObject::invokeMethod(this, "frameClosed", Qt::QueuedConnection);
    else if (event->type() == QEvent::EnabledChange && isCommandEdit(watched))
        QMetaObject::invokeMethod(this, "commandEnded", Qt::QueuedConnection);
    return false;
}

} // namespace Dashboard
