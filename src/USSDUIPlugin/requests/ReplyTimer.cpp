#include "ReplyTimer.h"

#include <atomic>
#include <chrono>

#include <QPointer>
#include <QThread>
#include <QTimerEvent>

namespace
{

qint64 systemClock()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

std::atomic<ReplyTimer::Clock> currentClock(&systemClock);

} // namespace

ReplyTimer::ReplyTimer(QObject *parent)
    : QTimer(parent), m_armed(false), m_catchUpPosted(false), m_arming(0), m_deadline(0),
      m_wake(-1), m_runOut(0)
{
}

void ReplyTimer::setClock(Clock clock)
{
    currentClock = clock ? clock : &systemClock;
}

quint64 ReplyTimer::arm(int milliseconds)
{
    QtCompat::MutexLocker locker(&m_state);
    m_armed = true;
    m_deadline = currentClock.load()() + milliseconds;
    const quint64 arming = ++m_arming;
    if (!wakesWithin(milliseconds))
        letTimerFollow(locker);
    return arming;
}

void ReplyTimer::disarm()
{
    QtCompat::MutexLocker locker(&m_state);
    m_armed = false;
    stopIfOwner(locker);
}

void ReplyTimer::disarm(quint64 arming)
{
    QtCompat::MutexLocker locker(&m_state);
    if (!m_armed || m_arming != arming)
        return;
    m_armed = false;
    stopIfOwner(locker);
}

bool ReplyTimer::isArmed() const
{
    QtCompat::MutexLocker locker(&m_state);
    return m_armed;
}

bool ReplyTimer::isArmed(quint64 arming) const
{
    QtCompat::MutexLocker locker(&m_state);
    return m_armed && m_arming == arming;
}

/// Returns true if the QTimer fires within `milliseconds`. The calculation uses the system clock
/// even if another clock has been set with setClock(), because a QTimer always uses the system
/// clock. Must be called with m_state locked.
bool ReplyTimer::wakesWithin(int milliseconds) const
{
    return m_wake >= 0 && m_wake <= systemClock() + milliseconds;
}

void ReplyTimer::letTimerFollow(QtCompat::MutexLocker &locker)
{
    const bool alreadyPosted = m_catchUpPosted;
    m_catchUpPosted = true;
    locker.unlock();
    if (QThread::currentThread() == thread())
        catchUp();
    else if (!alreadyPosted)
        QMetaObject::invokeMethod(this, "catchUp", Qt::QueuedConnection);
}

/// Stops the QTimer if called from its own thread. Otherwise, the QTimer fires once more without
/// effect, because this is cheaper than posting an event to stop it.
void ReplyTimer::stopIfOwner(QtCompat::MutexLocker &locker)
{
    locker.unlock();
    if (QThread::currentThread() == thread())
        catchUp();
}

void ReplyTimer::catchUp()
{
    QtCompat::MutexLocker locker(&m_state);
    m_catchUpPosted = false;
    const bool armed = m_armed;
    const qint64 remaining = qMax<qint64>(0, m_deadline - currentClock.load()());
    m_wake = armed ? systemClock() + remaining : -1;
    locker.unlock();
    if (armed)
        start(static_cast<int>(remaining));
    else
        stop();
}

/// Records the time at which the QTimer fires again. The QTimer repeats until the time-out is
/// disarmed.
void ReplyTimer::repeats()
{
    QtCompat::MutexLocker locker(&m_state);
    m_wake = systemClock() + interval();
}

quint64 ReplyTimer::dueArming() const
{
    QtCompat::MutexLocker locker(&m_state);
    return m_armed && currentClock.load()() >= m_deadline ? m_arming : 0;
}

void ReplyTimer::timerEvent(QTimerEvent *event)
{
    const quint64 due = dueArming();
    if (due == 0) { // disarmed or re-armed while this event was pending
        catchUp();
        return;
    }
    repeats();
    const QPointer<ReplyTimer> self(this); // a receiver may delete the timer
    m_runOut = due;
    QTimer::timerEvent(event);
    if (self)
        m_runOut = 0;
}
