#ifndef CALLBACKGATE_H
#define CALLBACKGATE_H

#include <QList>
#include <QMutex>
#include <QWaitCondition>

/**
 * Decides whether a call-back of the device SDK may use the logic object, and keeps the object
 * alive until the call-back returns. Call-backs enter the gate on any thread; the GUI thread opens
 * and closes the gate.
 *
 * No call-back enters while the object is being constructed. The SMS call-back, which is registered
 * last, waits until construction is complete. The reason is that the device reports only once, soon
 * after the registration, that short messages can be sent.
 */
class CallbackGate
{
public:
    CallbackGate();

    /// Announces that the calling thread is about to construct the object.
    void startOpening();
    void open();
    /// Refuses new call-backs, and returns when every other thread has left the gate.
    void close();

    enum Patience { DoNotWait, WaitForOpening };

    bool enter(Patience patience);
    void leave();

private:
    Q_DISABLE_COPY(CallbackGate)

    enum State { Closed, Opening, Open };

    bool someoneElseIsInside() const;

    QMutex m_mutex;
    QWaitCondition m_changed;
    State m_state;
    Qt::HANDLE m_maker;         // the thread that constructs the object
    QList<Qt::HANDLE> m_inside; // the thread of each call-back that has entered
};

/** Enters the gate for the duration of one call-back, if the gate lets the call-back in. */
class CallbackPass
{
public:
    CallbackPass(CallbackGate &gate, CallbackGate::Patience patience)
        : m_gate(gate), m_entered(gate.enter(patience))
    {
    }
    ~CallbackPass()
    {
        if (m_entered)
            m_gate.leave();
    }
    bool isValid() const { return m_entered; }

private:
    Q_DISABLE_COPY(CallbackPass)

    CallbackGate &m_gate;
    bool m_entered;
};

#endif
