#include "WaitUntil.h"

#include <QCoreApplication>
#include <QTimer>

namespace Dashboard
{

bool waitUntil(const std::function<bool()> &condition, int milliseconds)
{
    QTimer deadline; // also wakes up the event loop below
    deadline.setSingleShot(true);
    deadline.start(milliseconds);
    while (!condition()) {
        if (!deadline.isActive())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace Dashboard
