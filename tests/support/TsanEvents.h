#ifndef TSANEVENTS_H
#define TSANEVENTS_H

#include <QApplication>

/*
 * Informs the thread sanitizer about the thread synchronisation in Qt. Debian builds Qt without the
 * sanitizer, which therefore does not recognise that queued signals and QMutex synchronise threads,
 * and reports data races in correct code. TsanQt.cpp wraps the relevant functions of Qt. Without
 * the thread sanitizer, the functions below do nothing.
 */

namespace TsanEvents
{
#ifdef USSD_THREAD_SANITIZER
/// Must be called before an event is processed. Informs the sanitizer that the event happens after
/// everything that its sender did before sending it.
void acquire();
/// Must be called after an event has been processed. Informs the sanitizer that threads that wait
/// for the event continue only afterwards.
void releaseHandled();
#else
inline void acquire() {}
inline void releaseHandled() {}
#endif
} // namespace TsanEvents

/// The application class that all tests use.
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
