#ifndef COMMANDQUEUE_H
#define COMMANDQUEUE_H

#include <QList>

#include "USSDCommand.h"

/**
 * The commands that wait for the device, first in, first out. The head is the command in flight.
 *
 * The queue is a plain value without a lock. Threads that share a queue hold a mutex for one call
 * at a time, so each call is one step that no other thread divides. Between two calls of a thread
 * the others may change the queue. Therefore every head has a number of its own, and a thread names
 * the head that it means: its mark, or its removal, never hits the command that became the head in
 * the meantime.
 */
class CommandQueue
{
public:
    /// A command at the front, and the number by which it is told from the heads before and after.
    struct Head {
        Head() : number(0) {}
        quint64 number; // of a head never 0
        USSDCmdOrResp command;
    };

    enum Claim {
        Empty,          // there is no head
        ClaimedByOther, // somebody else announces the outcome, or the head is not the one meant
        Claimed         // the caller announces the outcome and removes the head
    };

    /// The numbers of the heads that something has happened to.
    struct Marks {
        quint64 current; // the head, or the one to come
        quint64 sent;    // the last head that was taken for its hand-over
        quint64 claimed; // the last head that was claimed
    };

    CommandQueue();

    int count() const { return m_commands.count(); }
    const QList<USSDCmdOrResp> &commands() const { return m_commands; }
    const Marks &marks() const { return m_marks; }

    /// Returns the number of the head. An empty queue gives its next head this number.
    quint64 headNumber() const { return m_marks.current; }
    /// Returns whether the head with this number is still the head, and unclaimed.
    bool isOpenHead(quint64 number) const;
    /// Returns whether neither this head nor a later one was claimed. A head that was cleared
    /// counts as well: its time-out still runs, and answers the command behind it.
    bool awaitsReply(quint64 number) const { return m_marks.claimed < number; }

    /// Adds a command at the end, even when the same command is waiting.
    void append(const USSDCmdOrResp &command);
    /// Claims the head for the one caller that announces its outcome. With `number`, only the head
    /// of this number is meant. `head` is filled in when the result is Claimed. When the result is
    /// Empty, `head.number` is the number of the last head that there was.
    Claim claimHead(Head &head, quint64 number = 0);
    /// Marks the head as sent and returns it. Returns false for an empty queue, and for a head that
    /// another caller hands over.
    bool markHeadSent(Head &head);
    /// Removes the head with this number. Nothing happens when it is not the head any more.
    void removeHead(quint64 number);
    /// Removes all commands.
    void clear();
    /// Removes the commands for which `keep` returns false; the others keep their order.
    void keepOnly(bool (*keep)(const USSDCmdOrResp &));

private:
    QList<USSDCmdOrResp> m_commands;
    Marks m_marks;
};

#endif
