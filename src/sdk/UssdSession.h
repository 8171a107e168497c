#ifndef TKSV_INTERNAL_USSDSESSION_H
#define TKSV_INTERNAL_USSDSESSION_H

#include <chrono>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "base/Backend.h"
#include "EventService.h"

namespace Tksv
{

/** A message that no call-back of the client accepted. */
struct UntakenText {
    std::chrono::system_clock::time_point receivedAt;
    UssdReply reply;
};

/**
 * The client's view of the only USSD session (3GPP TS 22.090). The class implements the rules
 * documented in tksv.h for every backend.
 *
 * A reply is treated as delivered once its call-back has started. Until then, a newer request or a
 * release cancels the reply. A call-back that makes a request finds the session in the state that
 * the reply has set.
 *
 * m_mutex is locked while the backend is called, but never while a call-back runs.
 */
class UssdSession
{
public:
    using Post = std::function<void(Event)>;

    /// `post` passes an event to the USSD service. `textUntaken` is called on the service's thread
    /// when takeUntakenTexts() has a new text.
    UssdSession(Post post, std::function<void()> textUntaken);
    UssdSession(const UssdSession &) = delete;
    UssdSession &operator=(const UssdSession &) = delete;

    /// Sends the string as an answer or in a new session, depending on the session's state. Returns
    /// a RequestStatus. A request that is not accepted has no effect.
    int request(Backend &backend, const std::string &text);
    /// Ends the session. The request in flight is cancelled and receives no reply.
    void release(Backend &backend);
    /// Ends the request in flight, which then receives an empty reply. Returns false if there is no
    /// request in flight.
    bool cancel(Backend &backend);
    /// Records why a request failed that did not reach the backend.
    void recordRefusal(TKSV_Failure reason);
    /// Returns how the newest request failed. In the call-back of a reply, returns how the request
    /// of this reply failed.
    Failure lastFailure() const;

    /// Delivers the backend's reply to a request. A late reply is dropped.
    void handleReply(RequestToken token, const UssdReply &reply);
    /// Delivers a network-initiated message.
    void handleText(const UssdReply &text);
    /// Ends the session and the request in flight after the device has been lost.
    void deviceLost();

    /// Returns the most recent messages that no call-back accepted, oldest first. Clears the list.
    std::vector<UntakenText> takeUntakenTexts();

private:
    enum class State { Idle, InFlight, WaitsForAnswer };

    void post(const UssdReply &reply, std::function<bool()> beforeDelivery);
    void postReply(RequestToken token, const UssdReply &reply);
    void recordFailure(const Failure &failure);
    bool acceptReply(RequestToken token, const UssdReply &reply);
    void delivered(const UntakenText &text, bool taken);
    bool acceptText(const UssdReply &text);
    void keepUnlessTaken(const UntakenText &text, bool taken);
    void becomeIdle();
    void postHeldTexts();

    const Post m_post;
    const std::function<void()> m_textUntaken;
    mutable std::mutex m_mutex; // guards all members below
    State m_state = State::Idle;
    RequestToken m_token = 0; // identifies the request in flight
    RequestToken m_lastToken = 0;
    std::vector<UssdReply> m_heldTexts; // messages held back until the session ends
    std::deque<UntakenText> m_untaken;
    Failure m_failure; // how the newest request failed
    // While the call-back of a reply runs, its thread sees the failure of this reply.
    std::thread::id m_deliveryThread;
    Failure m_deliveredFailure;
};

} // namespace Tksv

#endif
