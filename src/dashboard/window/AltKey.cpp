#include "AltKey.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace Dashboard
{

namespace
{

bool isAlt(QEvent *event)
{
    return static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt;
}

} // namespace

AltKey::AltKey(QWidget *window) : QObject(window), m_window(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

// Detects whether Alt is pressed alone. A combination such as Alt+1 is detected by its
// ShortcutOverride event, because its key press does not arrive if it activates a shortcut.
bool AltKey::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->isWidgetType())
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        m_isAlone = isAlt(event);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::WindowDeactivate:
        m_isAlone = false;
        break;
    case QEvent::KeyRelease:
        if (m_isAlone && isAlt(event) && QApplication::activeWindow() == m_window &&
            !QApplication::activePopupWidget()) {
            m_isAlone = false;
            emit pressedAlone();
        }
        break;
    default:
        break;
    }
    return false;
}

} // namespace Dashboard
