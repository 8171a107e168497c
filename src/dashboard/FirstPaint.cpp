#include "FirstPaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace Dashboard
{

FirstPaint::FirstPaint(QWidget *window, int longestWait)
{
    window->installEventFilter(this);
    QTimer::singleShot(longestWait, this, SLOT(announce()));
}

/// Queues the signal when the window receives its first paint event. The window and its children
/// are painted completely before the queued signal is delivered.
bool FirstPaint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        QTimer::singleShot(0, this, SLOT(announce()));
    }
    return false;
}

void FirstPaint::announce()
{
    if (m_isAnnounced)
        return;
    m_isAnnounced = true;
    emit painted();
}

} // namespace Dashboard
