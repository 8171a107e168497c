#ifndef COMMANDQUEUE_H
#define COMMANDQUEUE_H

#include <QList>

#include "USSDCommand.h"

/**
 * The commands that wait for the device, first in, first out. The head is the command in flight.
 *
 * The queue is a plain value without a lock. Threads that share a queue hold a mutex for one call
 * at a time, so each call is atomic. Between two calls of a thread, other threads may change the
 * queue. Therefore every head has a unique number, which a thread passes to name the head. It can
 * thus never mark or remove a command that became the head in the meantime.
 */
class CommandQueue
{
public:
    /// The command at the front, and the number that distinguishes it from earlier and later heads.
    struct Head {
        Head() : number(0) {}
        quint64 number; // never 0 for a head
        USSDCmdOrResp command;
    };

    enum Claim {
        Empty,          // there is no head
        ClaimedByOther, // another caller announces the outcome, or the head has another number
        Claimed         // the caller announces the outcome and removes the head
    };

    /// The numbers that record the progress of the heads.
    struct Marks {
        quint64 current; // the current head, or the next one if the queue is empty
        quint64 sent;    // the last head that was taken to be sent
        quint64 claimed; // the last head that was claimed
    };

    CommandQueue();

    int count() const { return m_commands.count(); }
    const QList<USSDCmdOrResp> &commands() const { return m_commands; }
    const Marks &marks() const { return m_marks; }

    /// Returns the number of the head. If the queue is empty, this is the number of the next head.
    quint64 headNumber() const { return m_marks.current; }
    /// Returns whether the head with this number is still the head and has not been claimed.
    bool isOpenHead(quint64 number) const;
    /// Returns whether neither this head nor a later head has been claimed. This also applies to a
    /// head that was cleared, because its time-out is still running and answers the next command.
    bool awaitsReply(quint64 number) const { return m_marks.claimed < number; }

    /// Adds a command at the end, even if the same command is already waiting.
    void append(const USSDCmdOrResp &command);
    /// Claims the head for the one caller that announces its outcome. If `number` is not 0, only
    /// the head with this number can be claimed. `head` is filled in if the result is Claimed. If
    /// the result is Empty, `head.number` is the number of the last head that there was.
    Claim claimHead(Head &head, quint64 number = 0);
    /// Marks the head as sent and returns it. Returns false if the queue is empty, or if another
    /// caller is sending the head.
    bool markHeadSent(Head &head);
    /// Removes the head with this number. Does nothing if it is no longer the head.
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
