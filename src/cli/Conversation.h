#ifndef CLI_CONVERSATION_H
#define CLI_CONVERSATION_H

#include <functional>
#include <string>

#include "Device.h"
#include "tksv_device.h"
#include "Waits.h"

namespace Cli
{

/** The outcome of sending a code or an answer. */
struct Outcome {
    TKSV_FailureInfo failure = {}; // TKSV_FAILURE_NONE if there is a reply
    int type = 0;                  // see TKSV_USSDResponse
    std::string text;              // the reply, in UTF-8
    double seconds = 0;            // the time from the request to its outcome
    bool hasMissedTurn = false;    // another program of the user did not release the modem in time

    bool hasFailed() const { return failure.reason != TKSV_FAILURE_NONE; }
    bool isMenu() const { return !hasFailed() && type == 1; }
};

/**
 * The USSD session of this program. Only one object may exist at a time, because the call-backs of
 * the device library do not have a context argument.
 */
class Conversation
{
public:
    /// `device` and `waits` must outlive the object. `timeout` is the time limit for each reply.
    Conversation(Device &device, Waits &waits, Milliseconds timeout);
    /// Ends an open session.
    ~Conversation();
    Conversation(const Conversation &) = delete;
    Conversation &operator=(const Conversation &) = delete;

    /// Sets a function that is called once for each request that has to wait for another program.
    void onTurnAwaited(std::function<void()> notify) { m_turnAwaited = std::move(notify); }

    /// Sends the string and waits for the reply. Cancels the request on the device if the reply
    /// does not arrive in time or a signal arrives first. Does not send the string if a signal has
    /// already arrived, or if another modem has replaced the modem of the first string, because the
    /// string would then be charged to another subscriber.
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
    std::string m_modem; // the identifier of the modem that the first string was sent to
    std::function<void()> m_turnAwaited;
};

} // namespace Cli

#endif
