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

/** A message that none of the client's call-backs accepted. */
struct UntakenText {
    std::chrono::system_clock::time_point receivedAt;
    UssdReply reply;
};

/** The state of the session; see TKSV_SessionInfo. */
struct SessionInfo {
    TKSV_SessionState state = TKSV_SESSION_IDLE;
    unsigned long requestCount = 0;
    std::string request; // the newest accepted request, in UTF-8
};

/**
 * The USSD session (3GPP TS 22.090) from the client's point of view. The class implements the rules
 * of tksv.h for all backends.
 *
 * A reply counts as delivered as soon as its call-back starts. Until then, a new request or a
 * release cancels the reply. If the call-back makes a request, the session already reflects the
 * reply.
 *
 * m_mutex is locked while the backend is called, but never while a call-back runs.
 */
class UssdSession
{
public:
    using Post = std::function<void(Event)>;

    /// `post` passes an event to the USSD service. `textUntaken` is called from the service's
    /// thread when takeUntakenTexts() has a new message. `changed` is called, with no lock held,
    /// when the result of info() may have changed.
    UssdSession(Post post, std::function<void()> textUntaken, std::function<void()> changed);
    UssdSession(const UssdSession &) = delete;
    UssdSession &operator=(const UssdSession &) = delete;

    /// Sends the string, either as an answer or in a new session, depending on the state of the
    /// session. Returns a RequestStatus. A rejected request has no effect.
    int request(Backend &backend, const std::string &text);
    /// Ends the session. The request in flight is cancelled and receives no reply.
    void release(Backend &backend);
    /// Cancels the request in flight, which receives an empty reply. Returns false if there is no
    /// request in flight.
    bool cancel(Backend &backend);
    /// Records the failure of a request that was rejected before it reached the backend.
    void recordRefusal(TKSV_Failure reason);
    /// Returns the failure of the newest request. In the call-back of a reply, returns the failure
    /// of the request that the reply belongs to.
    Failure lastFailure() const;
    /// Returns the state of the session and the newest accepted request. In the call-back of a
    /// reply, returns the request that the reply belongs to. In the call-back of a
    /// network-initiated message, the request is empty.
    SessionInfo info() const;

    /// Delivers the backend's reply to a request. Drops the reply if the request is no longer in
    /// flight.
    void handleReply(RequestToken token, const UssdReply &reply);
    /// Delivers a network-initiated message.
    void handleText(const UssdReply &text);
    /// Ends the session and the request in flight after the device has been lost.
    void deviceLost();

    /// Removes and returns the most recent messages that no call-back accepted, oldest first.
    std::vector<UntakenText> takeUntakenTexts();

private:
    enum class State {
        Idle = TKSV_SESSION_IDLE,
        InFlight = TKSV_SESSION_IN_FLIGHT,
        WaitsForAnswer = TKSV_SESSION_WAITS_FOR_ANSWER
    };

    int startRequest(Backend &backend, const std::string &text);
    bool cancelRequest(Backend &backend);
    bool isInCallback() const;
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
    const std::function<void()> m_changed;
    mutable std::mutex m_mutex; // guards all members below
    State m_state = State::Idle;
    RequestToken m_token = 0; // identifies the request in flight
    RequestToken m_lastToken = 0;
    std::vector<UssdReply> m_heldTexts; // messages held back until the session ends
    std::deque<UntakenText> m_untaken;
    Failure m_failure; // the failure of the newest request
    unsigned long m_requestCount = 0;
    std::string m_request; // the newest accepted request
    // The thread that is running the call-back of a reply or of a network-initiated message. If
    // called from this thread, lastFailure() and info() return the two values below.
    std::thread::id m_deliveryThread;
    Failure m_deliveredFailure;
    std::string m_deliveredRequest;
};

} // namespace Tksv

#endif
