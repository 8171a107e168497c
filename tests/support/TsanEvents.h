#ifndef TSANEVENTS_H
#define TSANEVENTS_H

#include <QApplication>

/*
 * Informs the thread sanitizer how Qt synchronizes threads. Debian's Qt is built without the
 * sanitizer, which therefore does not know that a queued signal or a QMutex synchronizes two
 * threads, and reports races in correct code. TsanQt.cpp wraps the Qt functions concerned. In
 * builds without the thread sanitizer, the functions below do nothing.
 */

namespace TsanEvents
{
#ifdef USSD_THREAD_SANITIZER
/// Must be called before an event is handled. Tells the sanitizer that everything that its sender
/// did earlier happened before.
void acquire();
/// Must be called after an event has been handled. Threads that wait for the event are then ordered
/// after it.
void releaseHandled();
#else
inline void acquire() {}
inline void releaseHandled() {}
#endif
} // namespace TsanEvents

/// The application class of all tests.
class TsanApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        TsanEvents::acquire();
        const bool handled = QApplication::notify(receiver, event);
        TsanEvents::releaseHandled();
        return handled;
    }
};

#endif
