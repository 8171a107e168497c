#ifndef COMMANDQUEUE_H
#define COMMANDQUEUE_H

#include <QList>

#include "USSDCommand.h"

/**
 * The commands that wait for the device, in FIFO order. The head of the queue is the command in
 * flight. Before a thread reports the outcome of a command, such as a reply or a time-out, it
 * claims the head. Only one thread can claim a head, so an outcome is reported only once.
 *
 * The class is not thread-safe. Threads that share a queue must lock a mutex for each call. Because
 * the queue may change between two calls, each head has a unique number, by which threads refer to
 * it. A thread can therefore never mark or remove a newer head by mistake.
 */
class CommandQueue
{
public:
    /// The first command, with a number that identifies it uniquely.
    struct Head {
        Head() : number(0) {}
        quint64 number; // 0 only if there is no head
        USSDCmdOrResp command;
    };

    enum Claim {
        Empty,            // there is no head
        WaitsForHandOver, // a thread is about to pass the head to the device
        ClaimedByOther,   // another caller reports the outcome, or `number` does not match
        Claimed           // the caller reports the outcome and removes the head
    };

    /// The progress of the queue, expressed as numbers of heads.
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

    /// Returns the number of the head, or the number of the next head if the queue is empty.
    quint64 headNumber() const { return m_marks.current; }
    /// Returns true if `number` is the number of the head and the head has not been claimed.
    bool isOpenHead(quint64 number) const;
    /// Returns true if neither this head nor a later one has been claimed. The result is also true
    /// for a head that was removed by clear(), because its time-out keeps running until the next
    /// command is answered.
    bool awaitsReply(quint64 number) const { return m_marks.claimed < number; }

    /// Appends a command, even if the queue already contains the same command.
    void append(const USSDCmdOrResp &command);
    /// Claims the head, so that only one caller reports its outcome. If `number` is not 0, claims
    /// only the head with this number. If the result is Claimed, sets `head` to the head. If the
    /// result is Empty, sets `head.number` to the number of the most recent head.
    Claim claimHead(Head &head, quint64 number = 0);
    /// Like claimHead(), except for a head that is marked as sent and has not been passed to the
    /// device yet. The reply or the time-out then belongs to an earlier head. In this case, the
    /// result is WaitsForHandOver, and `head.number` is set to the number of the previous head.
    Claim claimHeadInFlight(Head &head, quint64 number = 0);
    /// Marks the head as sent and stores it in `head`. Returns false if the queue is empty or if
    /// the head is already marked.
    bool markHeadSent(Head &head);
    /// Records that the head with this number is about to be passed to the device. Returns false if
    /// it is no longer the head or has already been claimed.
    bool startHandOver(quint64 number);
    /// Removes the head if it has this number.
    void removeHead(quint64 number);
    /// Removes all commands.
    void clear();
    /// Removes all commands for which `keep` returns false, without reordering the others.
    void keepOnly(bool (*keep)(const USSDCmdOrResp &));

private:
    QList<USSDCmdOrResp> m_commands;
    Marks m_marks;
};

#endif
