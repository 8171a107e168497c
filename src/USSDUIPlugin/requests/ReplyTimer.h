#ifndef REPLYTIMER_H
#define REPLYTIMER_H

#include <QMutex>
#include <QTimer>

class QMutexLocker;

/**
 * The response time-out. It may be armed and disarmed on any thread, and isArmed() reflects the
 * change at once. The QTimer itself is started and stopped only on its own thread, a little later.
 * timeout() is emitted on that thread, only while the time-out is armed, and only after the time
 * has really elapsed.
 *
 * The QTimer is started and stopped only if necessary. If it fires before the deadline, it checks
 * the clock and restarts for the remaining time. If it is no longer needed, it stops when it fires.
 * A command that is answered in time therefore needs neither an event nor a separate system timer.
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
    /// Disarms the time-out only if `arming` is the newest arming.
    void disarm(quint64 arming);
    bool isArmed() const;
    /// Returns true if `arming` is the newest arming and has not been disarmed.
    bool isArmed(quint64 arming) const;
    /// Returns the arming that has run out while timeout() is being emitted, and 0 otherwise. Must
    /// be called on the thread of the timer.
    quint64 runOutArming() const { return m_runOut; }

    /// Sets the clock of all timers; null restores the monotonic system clock.
    static void setClock(Clock clock);

public slots:
    /// Starts or stops the QTimer to match the arming. Must be called on the thread of the timer
    /// after a clock that setClock() has set has jumped.
    void catchUp();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    bool wakesWithin(int milliseconds) const;
    void letTimerFollow(QMutexLocker &locker);
    void stopIfOwner(QMutexLocker &locker);
    void repeats();
    quint64 dueArming() const;

    mutable QMutex m_state; // guards the five members below; always the innermost lock
    bool m_armed;
    bool m_catchUpPosted;
    quint64 m_arming;
    qint64 m_deadline;
    qint64 m_wake; // the time (system clock) at which the QTimer fires next; -1 while it is stopped

    quint64 m_runOut; // used on the thread of the timer only
};

#endif
