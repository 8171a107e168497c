#ifndef TKSV_INTERNAL_USSDSESSION_H
#define TKSV_INTERNAL_USSDSESSION_H

#include <chrono>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "base/Backend.h"
#include "EventService.h"

namespace Tksv
{

/** A text that no call-back of the client took. */
struct UntakenText {
    std::chrono::system_clock::time_point receivedAt;
    UssdReply reply;
};

/**
 * The client's view of the only USSD session (3GPP TS 22.090). The class implements the rules that
 * tksv.h documents, for every backend.
 *
 * A reply counts as delivered once its call-back has started. Until then, a newer request or a
 * release cancels the reply. A request that is made from inside the call-back finds the session in
 * the state that the reply has set.
 *
 * The lock is held while the backend is called, and never while a call-back runs.
 */
class UssdSession
{
public:
    /// `textUntaken` is called on the service's thread when takeUntakenTexts() has a new text.
    UssdSession(EventService &service, std::function<void()> textUntaken);
    UssdSession(const UssdSession &) = delete;
    UssdSession &operator=(const UssdSession &) = delete;

    /// Sends a text as an answer or in a new session, as the state of the session requires. Returns
    /// a RequestStatus; a request that is not accepted changes nothing.
    int request(Backend &backend, const std::string &text);
    /// Ends the session and the request in flight, which then gets no reply.
    void release(Backend &backend);

    /// The backend's reply to a request. A late reply is dropped.
    void handleReply(RequestToken token, const UssdReply &reply);
    /// Text that the network sent of its own accord.
    void handleText(const UssdReply &text);
    /// The session and the request in flight ended with the device.
    void deviceLost();

    /// Returns the last texts that no call-back took, the oldest first, and clears the list.
    std::vector<UntakenText> takeUntakenTexts();

private:
    enum class State { Idle, InFlight, WaitsForAnswer };

    void post(const UssdReply &reply, std::function<bool()> beforeDelivery);
    bool acceptReply(RequestToken token, int type);
    bool acceptText(const UssdReply &text);
    void keepUnlessTaken(const UntakenText &text, bool taken);
    void becomeIdle();
    void postHeldTexts();

    EventService &m_service;
    const std::function<void()> m_textUntaken;
    mutable std::mutex m_mutex; // guards everything below
    State m_state = State::Idle;
    RequestToken m_token = 0; // of the request in flight
    RequestToken m_lastToken = 0;
    std::vector<UssdReply> m_heldTexts; // texts that wait for the session's end
    std::deque<UntakenText> m_untaken;
};

} // namespace Tksv

#endif
