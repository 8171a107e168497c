#ifndef CALLBACKGATE_H
#define CALLBACKGATE_H

#include <QList>
#include <QMutex>
#include <QWaitCondition>

/**
 * Decides whether a call-back of the device SDK may use the logic object, and keeps the object
 * alive meanwhile. Call-backs enter from any thread; the GUI thread opens and closes.
 *
 * While the object is being made nobody gets in. The SMS call-back, which is registered last, waits
 * until it is finished: the device tells only once, soon after the registration, that short
 * messages can be sent.
 */
class CallbackGate
{
public:
    CallbackGate();

    /// The object is about to be made on this thread.
    void startOpening();
    void open();
    /// From now on nobody gets in. Returns when nobody is inside any more, but for this thread.
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
    Qt::HANDLE m_maker;         // the thread that makes the object
    QList<Qt::HANDLE> m_inside; // a thread for each pass
};

/** A pass through the gate for the length of one call-back. */
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
