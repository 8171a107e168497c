#ifndef REPLYTIMER_H
#define REPLYTIMER_H

#include <QMutex>
#include <QTimer>

#include "QtCompat.h"

/**
 * The reply time-out. It can be armed and disarmed from any thread, with immediate effect on
 * isArmed(). The underlying QTimer is started and stopped later on its own thread. This thread also
 * emits timeout(), but only if the time-out is still armed and its time has elapsed.
 *
 * For efficiency, arming and disarming usually do not access the QTimer. If it fires too early, it
 * is restarted for the remaining time. If it fires after the time-out has been disarmed, it is
 * stopped. A command that is answered in time therefore requires neither an event nor a new system
 * timer.
 *
 * Each arming has a number, so that a late disarm() cannot affect a more recent arming.
 */
class ReplyTimer : public QTimer
{
    Q_OBJECT
public:
    typedef qint64 (*Clock)(); // returns milliseconds; must never run backwards

    explicit ReplyTimer(QObject *parent = nullptr);

    /// Arms the time-out, even if it is already armed. Returns the number of the arming, which is
    /// never 0.
    quint64 arm(int milliseconds);
    void disarm();
    /// Disarms the time-out if `arming` is the most recent arming.
    void disarm(quint64 arming);
    bool isArmed() const;
    /// Returns true if the time-out is armed and `arming` is the most recent arming.
    bool isArmed(quint64 arming) const;
    /// Returns the number of the arming whose time-out is being emitted, or 0 at any other time.
    /// Must be called from the timer's thread.
    quint64 runOutArming() const { return m_runOut; }

    /// Sets the clock of all timers. Null restores the monotonic system clock.
    static void setClock(Clock clock);

public slots:
    /// Starts or stops the QTimer as required. Must be called from the timer's thread whenever a
    /// clock set with setClock() has jumped.
    void catchUp();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    bool wakesWithin(int milliseconds) const;
    void letTimerFollow(QtCompat::MutexLocker &locker);
    void stopIfOwner(QtCompat::MutexLocker &locker);
    void repeats();
    quint64 dueArming() const;

    mutable QMutex m_state; // guards the five members below; always locked last
    bool m_armed;
    bool m_catchUpPosted;
    quint64 m_arming;
    qint64 m_deadline;
    qint64 m_wake; // the time at which the QTimer fires (system clock); -1 if it is stopped

    quint64 m_runOut; // used only on the timer's thread
};

#endif
