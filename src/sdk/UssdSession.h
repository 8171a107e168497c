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

/** A text that no call-back of the client accepted. */
struct UntakenText {
    std::chrono::system_clock::time_point receivedAt;
    UssdReply reply;
};

/**
 * The client's view of the only USSD session (3GPP TS 22.090). The class implements the rules that
 * tksv.h documents, for every backend.
 *
 * A reply is treated as delivered once its call-back has started. Until then, a newer request or a
 * release cancels the reply. When a call-back makes a request, the session is already in the state
 * that the reply has set.
 *
 * The lock is held while the backend is called, and never while a call-back runs.
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

    /// Sends the text as an answer or in a new session, depending on the state of the session.
    /// Returns a RequestStatus. A request that is not accepted changes nothing.
    int request(Backend &backend, const std::string &text);
    /// Ends the session and cancels the request in flight, which then receives no reply.
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
    /// Delivers a text that the network sent of its own accord.
    void handleText(const UssdReply &text);
    /// Ends the session and the request in flight after the device was lost.
    void deviceLost();

    /// Returns the last texts that no call-back accepted, the oldest first, and clears the list.
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
    mutable std::mutex m_mutex; // guards everything below
    State m_state = State::Idle;
    RequestToken m_token = 0; // identifies the request in flight
    RequestToken m_lastToken = 0;
    std::vector<UssdReply> m_heldTexts; // texts that wait for the end of the session
    std::deque<UntakenText> m_untaken;
    Failure m_failure; // how the newest request failed
    // While the call-back of a reply runs, its thread sees the failure of this reply.
    std::thread::id m_deliveryThread;
    Failure m_deliveredFailure;
};

} // namespace Tksv

#endif
