#ifndef CALLBACKGATE_H
#define CALLBACKGATE_H

#include <QList>
#include <QMutex>
#include <Qt>
#include <QWaitCondition>

/**
 * Controls whether a call-back of the device SDK may use the logic object, and keeps the object
 * alive until the call-back returns. Call-backs enter the gate from any thread. The GUI thread
 * opens and closes the gate.
 *
 * Call-backs cannot enter the gate while the object is being constructed. The SMS call-back, which
 * is registered last, waits until construction is complete. The device reports only once, soon
 * after the registration, that short messages can be sent.
 */
class CallbackGate
{
public:
    CallbackGate();

    /// Must be called before the calling thread constructs the object.
    void startOpening();
    void open();
    /// Rejects new call-backs. Returns after all other threads have left the gate.
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

/** Enters the gate for the duration of one call-back, if the gate admits the call-back. */
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
