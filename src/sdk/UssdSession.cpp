#include "UssdSession.h"

#include <utility>

#include "base/CodeForm.h"
#include "base/Records.h"

namespace Tksv
{

namespace
{
const std::size_t MAX_UNTAKEN_TEXTS = 20;
}

UssdSession::UssdSession(Post post, std::function<void()> textUntaken,
                         std::function<void()> changed)
    : m_post(std::move(post)), m_textUntaken(std::move(textUntaken)), m_changed(std::move(changed))
{
}

int UssdSession::request(Backend &backend, const std::string &text)
{
    const int status = startRequest(backend, text);
    if (status == RequestAccepted)
        m_changed();
    return status;
}

int UssdSession::startRequest(Backend &backend, const std::string &text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool isAnswer = m_state == State::WaitsForAnswer && !hasFormOfCode(text);
    const RequestToken token = ++m_lastToken;
    const RequestResult result =
        backend.request(token, isAnswer ? RequestKind::Answer : RequestKind::NewSession, text);
    const bool isAccepted = result.status == RequestAccepted;
    recordFailure(Failure{result.refusal, !isAccepted});
    if (isAccepted) {
        m_state = State::InFlight;
        m_token = token;
        m_request = text;
        ++m_requestCount;
    }
    return result.status;
}

void UssdSession::release(Backend &backend)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        becomeIdle();
        backend.endSession();
    }
    m_changed();
}

bool UssdSession::cancel(Backend &backend)
{
    const bool isCancelled = cancelRequest(backend);
    if (isCancelled)
        m_changed();
    return isCancelled;
}

/// Cancels the request in flight by assigning a new token. A reply that has already been posted
/// then counts as late and is dropped, so that the client receives only the empty reply.
bool UssdSession::cancelRequest(Backend &backend)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_state != State::InFlight)
        return false;
    m_token = ++m_lastToken;
    backend.endSession();
    postReply(m_token, failedReply(Failure{TKSV_FAILURE_CANCELLED}));
    return true;
}

void UssdSession::handleReply(RequestToken token, const UssdReply &reply)
{
    postReply(token, reply);
}

void UssdSession::postReply(RequestToken token, const UssdReply &reply)
{
    post(reply, [this, token, reply] { return acceptReply(token, reply); });
}

void UssdSession::recordRefusal(TKSV_Failure reason)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    recordFailure(Failure{reason, true});
}

Failure UssdSession::lastFailure() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return isInCallback() ? m_deliveredFailure : m_failure;
}

SessionInfo UssdSession::info() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return SessionInfo{static_cast<TKSV_SessionState>(m_state), m_requestCount,
                       isInCallback() ? m_deliveredRequest : m_request};
}

/// Returns true if called from the call-back of a reply or of a network-initiated message. Must be
/// called with m_mutex locked.
bool UssdSession::isInCallback() const
{
    return m_deliveryThread == std::this_thread::get_id();
}

/// Stores the failure of the newest request. If the request was made in a call-back, lastFailure()
/// returns the failure to this call-back as well. Must be called with m_mutex locked.
void UssdSession::recordFailure(const Failure &failure)
{
    m_failure = failure;
    if (isInCallback())
        m_deliveryThread = std::thread::id();
}

void UssdSession::handleText(const UssdReply &text)
{
    post(text, [this, text] { return acceptText(text); });
}

void UssdSession::deviceLost()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_state == State::InFlight)
            recordFailure(Failure{TKSV_FAILURE_DEVICE_LOST});
        becomeIdle();
    }
    m_changed();
}

std::vector<UntakenText> UssdSession::takeUntakenTexts()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const std::deque<UntakenText> texts = std::exchange(m_untaken, {});
    return std::vector<UntakenText>(texts.begin(), texts.end());
}

void UssdSession::post(const UssdReply &reply, std::function<bool()> beforeDelivery)
{
    Event event;
    event.data = encodeResponse(reply);
    event.beforeDelivery = std::move(beforeDelivery);
    const UntakenText text{std::chrono::system_clock::now(), reply};
    event.afterDelivery = [this, text](bool taken) { delivered(text, taken); };
    m_post(std::move(event));
}

bool UssdSession::acceptReply(RequestToken token, const UssdReply &reply)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_state != State::InFlight || token != m_token)
        return false; // the request was replaced or released, or the device was lost
    m_failure = m_deliveredFailure = reply.failure;
    m_deliveredRequest = m_request;
    m_deliveryThread = std::this_thread::get_id();
    if (reply.type == UssdWaitsForAnswer)
        m_state = State::WaitsForAnswer;
    else
        becomeIdle();
    return true;
}

/// Returns true if the message can be delivered now. While a session is open, a network-initiated
/// message is held back so that it is not mistaken for the reply to a request. When it is finally
/// delivered, it can no longer be answered.
bool UssdSession::acceptText(const UssdReply &text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_state != State::Idle) {
        m_heldTexts.push_back(UssdReply{UssdFinal, text.text});
        return false;
    }
    if (text.type == UssdWaitsForAnswer)
        m_state = State::WaitsForAnswer;
    m_deliveredFailure = m_failure;
    m_deliveredRequest.clear();
    m_deliveryThread = std::this_thread::get_id();
    return true;
}

void UssdSession::delivered(const UntakenText &text, bool taken)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_deliveryThread = std::thread::id();
    }
    m_changed();
    keepUnlessTaken(text, taken);
}

/// Stores a message that no call-back accepted. An empty message is dropped unless the network is
/// waiting for an answer: the client must then be notified although the message has no text.
void UssdSession::keepUnlessTaken(const UntakenText &text, bool taken)
{
    if (taken || (text.reply.text.empty() && text.reply.type != UssdWaitsForAnswer))
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_untaken.push_back(text);
        if (m_untaken.size() > MAX_UNTAKEN_TEXTS)
            m_untaken.pop_front();
    }
    m_textUntaken();
}

/// Marks the session as idle and posts the messages that were held back. Must be called with
/// m_mutex locked.
void UssdSession::becomeIdle()
{
    m_state = State::Idle;
    m_token = 0;
    postHeldTexts();
}

/// Posts the messages that were held back. They are delivered after the current reply. Must be
/// called with m_mutex locked.
void UssdSession::postHeldTexts()
{
    const std::vector<UssdReply> texts = std::exchange(m_heldTexts, {});
    for (const UssdReply &text : texts)
        handleText(text);
}

} // namespace Tksv
