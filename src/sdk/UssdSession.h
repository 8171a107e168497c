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

namespace tksv
{

/** A text that the client's call-backs did not take. */
struct UntakenText {
    std::chrono::system_clock::time_point receivedAt;
    UssdReply reply;
};

/**
 * The client's view of the one USSD session (3GPP TS 22.090), with the rules that tksv.h promises.
 *
 * A reply counts as given at the moment its call-back begins: until then a newer request or a
 * release still takes it back. A request made from inside that call-back finds the session as the
 * reply has left it.
 *
 * The lock is held while the backend is called, and never while a call-back runs.
 */
class UssdSession
{
public:
    /// `untakenCame` is called, on the service's thread, when there is a text to take.
    UssdSession(EventService &service, std::function<void()> untakenCame);
    UssdSession(const UssdSession &) = delete;
    UssdSession &operator=(const UssdSession &) = delete;

    /// A RequestStatus. What is not accepted leaves everything as it was.
    int request(Backend &backend, const std::string &text);
    /// Ends request and session; no reply comes any more.
    void release(Backend &backend);

    /// From the backend.
    void replyCame(RequestToken token, const UssdReply &reply);
    void textCame(const UssdReply &text);
    /// Request and session ended with the device.
    void deviceLost();

    /// Hands out the last texts that no call-back took, oldest first, and forgets them.
    std::vector<UntakenText> takeUntakenTexts();

private:
    enum class State { Idle, InFlight, WaitsForAnswer };

    void post(const UssdReply &reply, std::function<bool()> begin);
    bool beginReply(RequestToken token, int type);
    bool beginText(const UssdReply &text);
    void ended(const UntakenText &text, bool taken);
    void becomeIdle();
    void postHeldTexts();

    EventService &m_service;
    const std::function<void()> m_untakenCame;
    mutable std::mutex m_mutex; // guards everything below
    State m_state = State::Idle;
    RequestToken m_token = 0; // of the request in flight
    RequestToken m_lastToken = 0;
    std::vector<UssdReply> m_heldTexts; // came when a request was in flight or a session open
    std::deque<UntakenText> m_untaken;
};

} // namespace tksv

#endif
