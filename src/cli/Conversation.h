#ifndef CLI_CONVERSATION_H
#define CLI_CONVERSATION_H

#include <functional>
#include <string>

#include "Device.h"
#include "tksv_device.h"
#include "Waits.h"

namespace Cli
{

/** The result of sending a code or an answer. */
struct Outcome {
    TKSV_FailureInfo failure = {}; // the reason is TKSV_FAILURE_NONE if there is a reply
    int type = 0;                  // the type of the TKSV_USSDResponse
    std::string text;              // the reply, in UTF-8
    double seconds = 0;            // the time between the request and its outcome
    bool hasMissedTurn = false;    // true if another program has not released the modem in time

    bool hasFailed() const { return failure.reason != TKSV_FAILURE_NONE; }
    bool isMenu() const { return !hasFailed() && type == 1; }
};

/**
 * The program's USSD session. Only one object may exist at a time, because the call-backs of the
 * device library have no context argument.
 */
class Conversation
{
public:
    /// `device` and `waits` must outlive the object. `timeout` is the time limit for each reply.
    Conversation(Device &device, Waits &waits, Milliseconds timeout);
    /// Ends the session if a menu is open.
    ~Conversation();
    Conversation(const Conversation &) = delete;
    Conversation &operator=(const Conversation &) = delete;

    /// Sets a function that is called once for every request that has to wait for another program.
    void onTurnAwaited(std::function<void()> notify) { m_turnAwaited = std::move(notify); }

    /// Sends the string, waits for the reply and returns the outcome. If the time limit expires or
    /// a signal arrives first, cancels the request. Does not send the string if a signal has
    /// arrived, or if the modem has been replaced since the first string was sent, because another
    /// subscriber would be charged.
    Outcome send(const std::string &text);
    /// Ends the session if a menu is open.
    void end();
    bool isMenuOpen() const;

private:
    TKSV_Failure reasonNotToSend();
    Outcome await(Clock::time_point start);
    Outcome giveUp(TKSV_Failure reason);

    Device &m_device;
    Waits &m_waits;
    const Milliseconds m_timeout;
    std::string m_modem; // the identifier of the modem to which the first string was sent
    std::function<void()> m_turnAwaited;
};

} // namespace Cli

#endif
