#include "FirstPaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace
{

const int LONGEST_WAIT = 500; // ms, for a window that is not seen

} // namespace

FirstPaint::FirstPaint(QWidget *window)
{
    window->installEventFilter(this);
    QTimer::singleShot(LONGEST_WAIT, this, SLOT(announce()));
}

/// The window comes first and what is in it after, all before the event loop goes on.
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
