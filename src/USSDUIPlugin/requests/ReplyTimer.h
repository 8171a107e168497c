#ifndef REPLYTIMER_H
#define REPLYTIMER_H

#include <QMutex>
#include <QTimer>

#include "QtCompat.h"

/**
 * The response time-out. It may be armed and disarmed from any thread, and isArmed() reflects the
 * change immediately. The QTimer itself is started and stopped slightly later, and only from its
 * own thread. timeout() is emitted on this thread, but only while the time-out is armed and only
 * after the time has really elapsed.
 *
 * The QTimer is started and stopped only if necessary. If it fires before the deadline, it checks
 * the clock and restarts for the remaining time. If the QTimer is no longer needed, it stops when
 * it fires. Therefore, a command that is answered in time requires neither an event nor a separate
 * system timer.
 *
 * Every arming has a number, so that a late disarm() cannot affect a newer arming.
 */
class ReplyTimer : public QTimer
{
    Q_OBJECT
public:
    typedef qint64 (*Clock)(); // returns milliseconds and never runs backwards

    explicit ReplyTimer(QObject *parent = nullptr);

    /// Restarts the time-out and returns the number of the arming, which is never 0.
    quint64 arm(int milliseconds);
    void disarm();
    /// Disarms the time-out only if `arming` is the most recent arming.
    void disarm(quint64 arming);
    bool isArmed() const;
    /// Returns true if `arming` is the most recent arming and has not been disarmed.
    bool isArmed(quint64 arming) const;
    /// Returns the number of the expired arming while timeout() is being emitted, otherwise 0. Must
    /// be called from the timer's thread.
    quint64 runOutArming() const { return m_runOut; }

    /// Sets the clock of all timers. Null restores the monotonic system clock.
    static void setClock(Clock clock);

public slots:
    /// Starts or stops the QTimer to match the arming. Must be called from the timer's thread after
    /// a clock that was set with setClock() has jumped.
    void catchUp();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    bool wakesWithin(int milliseconds) const;
    void letTimerFollow(QtCompat::MutexLocker &locker);
    void stopIfOwner(QtCompat::MutexLocker &locker);
    void repeats();
    quint64 dueArming() const;

    mutable QMutex m_state; // guards the five members below; always the innermost lock
    bool m_armed;
    bool m_catchUpPosted;
    quint64 m_arming;
    qint64 m_deadline;
    qint64 m_wake; // the time (system clock) at which the QTimer fires next; -1 while it is stopped

    quint64 m_runOut; // used only on the timer's thread
};

#endif
