#ifndef TSANEVENTS_H
#define TSANEVENTS_H

#include <QApplication>

/*
 * Debian's Qt was not built with the thread sanitizer, which therefore does not see that a queued
 * signal or a QMutex orders two threads, and takes correct code for a race. TsanQt.cpp stands in
 * front of the functions concerned and tells it. In builds without the thread sanitizer none of
 * this does anything.
 */

namespace TsanEvents
{
#ifdef USSD_THREAD_SANITIZER
/// Called with an event about to be handled: what its sender did before comes before.
void acquire();
/// Called with an event handled: for whoever waits for that.
void releaseHandled();
#else
inline void acquire() {}
inline void releaseHandled() {}
#endif
} // namespace TsanEvents

/// The application of all tests.
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
