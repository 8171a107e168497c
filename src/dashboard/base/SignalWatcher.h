#ifndef SIGNALWATCHER_H
#define SIGNALWATCHER_H

#include <QObject>

namespace Dashboard
{

/**
 * Reports SIGINT, SIGTERM and SIGHUP to the event loop, so that the program can end the session on
 * the modem and save its settings. A second signal of the same kind terminates the program
 * immediately. Signals that were ignored when the program started are still ignored. Only one
 * watcher may exist at a time. All functions must be called from the GUI thread.
 */
class SignalWatcher : public QObject
{
    Q_OBJECT
public:
    SignalWatcher();
    ~SignalWatcher() override;

    /// Returns the number of the first signal that was received, or 0.
    int signalNumber() const { return m_signalNumber; }

signals:
    /// Emitted when the first signal has been received.
    void received();

private slots:
    void readPipe();

private:
    int m_signalNumber = 0;
};

} // namespace Dashboard

#endif
