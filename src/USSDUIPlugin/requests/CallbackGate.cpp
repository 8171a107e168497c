#include "CallbackGate.h"

#include <QMutexLocker>
#include <QThread>

CallbackGate::CallbackGate() : m_state(Closed), m_maker() {}

void CallbackGate::startOpening()
{
    QMutexLocker locker(&m_mutex);
    m_state = Opening;
    m_maker = QThread::currentThreadId();
}

void CallbackGate::open()
{
    QMutexLocker locker(&m_mutex);
    m_state = Open;
    m_changed.wakeAll();
}

void CallbackGate::close()
{
    QMutexLocker locker(&m_mutex);
    m_state = Closed;
    m_changed.wakeAll();
    while (someoneElseIsInside())
        m_changed.wait(&m_mutex);
}

bool CallbackGate::someoneElseIsInside() const
{
    return m_inside.count(QThread::currentThreadId()) != m_inside.count();
}

bool CallbackGate::enter(Patience patience)
{
    const Qt::HANDLE self = QThread::currentThreadId();
    QMutexLocker locker(&m_mutex);
    // The thread that constructs the object must not wait for itself: the SDK may call the
    // call-back during its registration.
    while (patience == WaitForOpening && m_state == Opening && m_maker != self)
        m_changed.wait(&m_mutex);
    if (m_state != Open)
        return false;
    m_inside.append(self);
    return true;
}

void CallbackGate::leave()
{
    QMutexLocker locker(&m_mutex);
    m_inside.removeOne(QThread::currentThreadId());
    m_changed.wakeAll();
}
