#ifndef TKSV_INTERNAL_SESSIONTURN_H
#define TKSV_INTERNAL_SESSIONTURN_H

#include <string>

namespace Tksv
{

/**
 * A program's place in the queue for the USSD session of one modem. The programs of one user take
 * turns, first come first served.
 *
 * The queue is a folder that contains one file, the ticket, for each program. The name of the
 * ticket is a number. A program locks its ticket with flock() while it waits and while it uses the
 * session. If a program crashes, the kernel unlocks its ticket, and the next program removes the
 * ticket. If the folder cannot be used, programs do not wait.
 */
class SessionTurn
{
public:
    /// `modem` identifies the modem. Characters that are unsafe in file names are replaced.
    explicit SessionTurn(const std::string &modem);
    ~SessionTurn();
    SessionTurn(const SessionTurn &) = delete;
    SessionTurn &operator=(const SessionTurn &) = delete;

    /// Joins the queue unless the program is already in the queue. Returns true if it is the
    /// program's turn. Never blocks. The caller must repeat the call until it returns true.
    bool tryEnter();
    /// Leaves the queue. Has no effect if the program is not in the queue.
    void leave();
    /// Returns true if the program is in the queue.
    bool isInQueue() const { return m_ticket >= 0; }
    /// Returns true if another program may be waiting behind this program, which must be in the
    /// queue.
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
    bool m_isFirst = false;     // there is no ticket with a lower number, and none can be added
    bool m_isUnusable = false;  // the folder cannot be used
};

} // namespace Tksv

#endif
