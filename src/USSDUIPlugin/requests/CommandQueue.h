#ifndef COMMANDQUEUE_H
#define COMMANDQUEUE_H

#include <QList>

#include "USSDCommand.h"

/**
 * The commands that wait for the device, in FIFO order. The head is the command in flight.
 *
 * The queue is a plain value type without a lock. Threads that share a queue lock a mutex for one
 * call at a time, so that each call is atomic. Between two calls, other threads may change the
 * queue. Therefore, every head has a unique number by which a thread refers to it. Thus, the thread
 * can never mark or remove a command that has become the head in the meantime.
 */
class CommandQueue
{
public:
    /// The first command, and the number that distinguishes it from earlier and later heads.
    struct Head {
        Head() : number(0) {}
        quint64 number; // never 0 if there is a head
        USSDCmdOrResp command;
    };

    enum Claim {
        Empty,            // there is no head
        WaitsForHandOver, // a thread is about to pass the head to the device
        ClaimedByOther,   // another caller reports the outcome, or the head has another number
        Claimed           // the caller reports the outcome and removes the head
    };

    /// The numbers that record the progress of the heads.
    struct Marks {
        quint64 current; // the current head, or the next head if the queue is empty
        quint64 sent;    // the last head that was marked as sent
        quint64 handed;  // the last head that was passed to the device
        quint64 claimed; // the last head that was claimed
    };

    CommandQueue();

    int count() const { return m_commands.count(); }
    const QList<USSDCmdOrResp> &commands() const { return m_commands; }
    const Marks &marks() const { return m_marks; }

    /// Returns the number of the head. If the queue is empty, returns the number of the next head.
    quint64 headNumber() const { return m_marks.current; }
    /// Returns true if the head with this number is still the head and has not been claimed.
    bool isOpenHead(quint64 number) const;
    /// Returns true if neither this head nor a later head has been claimed. This also applies to a
    /// head that was cleared, because its time-out keeps running until the next command is
    /// answered.
    bool awaitsReply(quint64 number) const { return m_marks.claimed < number; }

    /// Appends a command, even if the same command is already in the queue.
    void append(const USSDCmdOrResp &command);
    /// Claims the head for the one caller that reports its outcome. If `number` is not 0, only the
    /// head with this number can be claimed. If the result is Claimed, `head` is set to the head.
    /// If the result is Empty, `head.number` is set to the number of the most recent head.
    Claim claimHead(Head &head, quint64 number = 0);
    /// Like claimHead(), but does not claim a head that is marked as sent and has not been passed
    /// to the device yet. A reply or a time-out at this time belongs to an earlier head. If the
    /// result is WaitsForHandOver, `head.number` is set to the number of the previous head.
    Claim claimHeadInFlight(Head &head, quint64 number = 0);
    /// Marks the head as sent and returns it. Returns false if the queue is empty or another caller
    /// is already sending the head.
    bool markHeadSent(Head &head);
    /// Records that the head with this number is now passed to the device. Returns false if it is
    /// no longer the head or has been claimed.
    bool startHandOver(quint64 number);
    /// Removes the head with this number. Does nothing if another command has become the head.
    void removeHead(quint64 number);
    /// Removes all commands.
    void clear();
    /// Removes the commands for which `keep` returns false. The other commands keep their order.
    void keepOnly(bool (*keep)(const USSDCmdOrResp &));

private:
    QList<USSDCmdOrResp> m_commands;
    Marks m_marks;
};

#endif
