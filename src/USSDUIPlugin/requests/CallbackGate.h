#ifndef CALLBACKGATE_H
#define CALLBACKGATE_H

#include <QList>
#include <QMutex>
#include <Qt>
#include <QWaitCondition>

/**
 * Controls whether the device SDK's call-backs may use the logic object, and keeps the object alive
 * while a call-back is running. Call-backs enter the gate from any thread. The GUI thread opens and
 * closes the gate.
 *
 * Call-backs are rejected while the object is being constructed, except for the SMS call-back,
 * which waits until the construction is complete. The device reports only once that short messages
 * can be sent, soon after this call-back has been registered. This report must not be lost.
 */
class CallbackGate
{
public:
    CallbackGate();

    /// Marks the start of the construction. Must be called from the thread that constructs the
    /// object.
    void startOpening();
    void open();
    /// Rejects all further call-backs and waits until all other threads have left the gate.
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
    QList<Qt::HANDLE> m_inside; // the thread of each call-back that has entered the gate
};

/** Enters the gate for the duration of a call-back, unless the gate rejects the call-back. */
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
