/*
 * A library that is preloaded (LD_PRELOAD) into a program. When the program has painted its first
 * window, the library writes a line to the file descriptor $FIRST_WINDOW_FD and ends the program.
 * The line contains the time of the monotonic clock in nanoseconds and the peak resident set size
 * in kB.
 */
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace
{

long long nanosecondsNow()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

/// Returns the peak resident set size of the process in kB.
long peakKilobytes()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

class FirstWindow : public QObject
{
    Q_OBJECT
public:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const QWidget *widget = qobject_cast<QWidget *>(object);
        if (event->type() == QEvent::Paint && widget && widget->isWindow() && !m_seen) {
            m_seen = true; // the queued call runs after the children have been painted
            QMetaObject::invokeMethod(this, "report", Qt::QueuedConnection);
        }
        return false;
    }

public slots:
    void report()
    {
        const long long now = nanosecondsNow();
        dprintf(atoi(getenv("FIRST_WINDOW_FD")), "%lld %ld\n", now, peakKilobytes());
        _exit(0);
    }

private:
    bool m_seen = false;
};

void watch()
{
    if (getenv("FIRST_WINDOW_FD"))
        qApp->installEventFilter(new FirstWindow);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)

#include "first_window.moc"
