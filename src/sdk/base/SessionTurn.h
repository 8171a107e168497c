#ifndef TKSV_INTERNAL_SESSIONTURN_H
#define TKSV_INTERNAL_SESSIONTURN_H

#include <string>

namespace Tksv
{

/**
 * A program's place in the queue for the USSD session of a modem. The programs of a user take turns
 * on a first-come, first-served basis.
 *
 * The queue is a folder that contains a file, the ticket, for each program. The tickets are
 * numbered. A program locks its ticket with flock() while it waits and while it uses the session.
 * If a program crashes, the kernel unlocks the ticket, and the next program deletes it. If the
 * folder is not usable, programs do not wait for each other.
 */
class SessionTurn
{
public:
    /// `modem` identifies the modem. Characters that are not safe in file names are replaced.
    explicit SessionTurn(const std::string &modem);
    ~SessionTurn();
    SessionTurn(const SessionTurn &) = delete;
    SessionTurn &operator=(const SessionTurn &) = delete;

    /// Joins the queue if the program is not in it yet. Returns true if it is the program's turn,
    /// or if the folder is not usable. The function never blocks; call it repeatedly until it
    /// returns true.
    bool tryEnter();
    /// Leaves the queue. Does nothing if the program is not in the queue.
    void leave();
    /// Returns true if the program is in the queue.
    bool isInQueue() const { return m_ticket >= 0; }
    /// Returns true if another program may be waiting behind this program. May be called only while
    /// the program is in the queue.
    bool isWanted() const;

private:
    bool openFolder();
    bool takeTicket();
    bool createTicket();
    bool isBehindAnother() const;
    void giveUp(const char *what);

    const std::string m_modem;
    int m_folder = -1;
    int m_ticket = -1;
    unsigned long m_number = 0; // the number of the ticket
    bool m_isFirst = false;     // true if no ticket with a lower number exists or can be added
    bool m_isUnusable = false;  // true if the folder is not usable
};

} // namespace Tksv

#endif
