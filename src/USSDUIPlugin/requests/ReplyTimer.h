#ifndef REPLYTIMER_H
#define REPLYTIMER_H

#include <QMutex>
#include <QTimer>

class QMutexLocker;

/**
 * The response time-out. Any thread may arm and disarm it, with effect at once for whoever asks
 * isArmed(); the QTimer itself follows on its own thread, because Qt lets nobody else start or stop
 * it. timeout() comes on that thread, only while armed, and only when the time has really passed.
 *
 * The QTimer follows only where it must. One that wakes before the deadline looks at the clock then
 * and starts anew for the rest; one that nobody needs any more stops when it wakes. So a command
 * that is answered in time costs no event and no system timer of its own.
 *
 * Every arming has a number, so that a late disarm cannot hit a newer arming.
 */
class ReplyTimer : public QTimer
{
    Q_OBJECT
public:
    typedef qint64 (*Clock)(); // milliseconds, never going back

    explicit ReplyTimer(QObject *parent = nullptr);

    /// Starts the time-out anew and returns the arming's number (never 0).
    quint64 arm(int milliseconds);
    void disarm();
    /// Disarms only while `arming` is the newest.
    void disarm(quint64 arming);
    bool isArmed() const;
    /// Whether `arming` is the newest and still armed.
    bool isArmed(quint64 arming) const;
    /// While timeout() is being emitted: the arming that ran out. Otherwise 0. Own thread only.
    quint64 runOutArming() const { return m_runOut; }

    /// Takes another clock for all timers; null restores the monotonic system clock.
    static void setClock(Clock clock);

public slots:
    /// Makes the QTimer agree with the arming; to be called on the timer's thread when a replaced
    /// clock has jumped.
    void catchUp();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    bool wakesWithin(int milliseconds) const;
    void letTimerFollow(QMutexLocker &locker);
    void stopIfOwner(QMutexLocker &locker);
    void repeats();
    quint64 dueArming() const;

    mutable QMutex m_state; // guards the next five; nothing else is locked while it is held
    bool m_armed;
    bool m_catchUpPosted;
    quint64 m_arming;
    qint64 m_deadline;
    qint64 m_wake; // when the QTimer fires next, by the system clock; -1 while it stands

    quint64 m_runOut; // own thread only
};

#endif
