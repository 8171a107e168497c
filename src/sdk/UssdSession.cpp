#include "UssdSession.h"

#include <utility>

#include "base/CodeForm.h"
#include "base/Records.h"

namespace tksv
{

namespace
{
const std::size_t MAX_UNTAKEN_TEXTS = 20;
}

UssdSession::UssdSession(EventService &service, std::function<void()> untakenCame)
    : m_service(service), m_untakenCame(std::move(untakenCame))
{
}

int UssdSession::request(Backend &backend, const std::string &text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool isAnswer = m_state == State::WaitsForAnswer && !hasFormOfCode(text);
    const RequestToken token = ++m_lastToken;
    const int status =
        backend.request(token, isAnswer ? RequestKind::Answer : RequestKind::NewSession, text);
    if (status == RequestAccepted) {
        m_state = State::InFlight;
        m_token = token;
    }
    return status;
}

void UssdSession::release(Backend &backend)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    becomeIdle();
    backend.endSession();
}

void UssdSession::replyCame(RequestToken token, const UssdReply &reply)
{
    post(reply, [this, token, type = reply.type] { return beginReply(token, type); });
}

void UssdSession::textCame(const UssdReply &text)
{
    post(text, [this, text] { return beginText(text); });
}

void UssdSession::deviceLost()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    becomeIdle();
}

std::vector<UntakenText> UssdSession::takeUntakenTexts()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const std::deque<UntakenText> texts = std::exchange(m_untaken, {});
    return std::vector<UntakenText>(texts.begin(), texts.end());
}

void UssdSession::post(const UssdReply &reply, std::function<bool()> begin)
{
    Event event;
    event.data = encodeResponse(reply);
    event.beforeDelivery = std::move(begin);
    const UntakenText text{std::chrono::system_clock::now(), reply};
    event.afterDelivery = [this, text](bool taken) { ended(text, taken); };
    m_service.post(std::move(event));
}

bool UssdSession::beginReply(RequestToken token, int type)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_state != State::InFlight || token != m_token)
        return false; // too late: replaced, released, or lost with the device
    if (type == UssdWaitsForAnswer)
        m_state = State::WaitsForAnswer;
    else
        becomeIdle();
    return true;
}

/// Text of the network's own accord must not pass for the reply to a request: it waits until
/// nothing else goes on. By then its own session has ended, so that it cannot be answered.
bool UssdSession::beginText(const UssdReply &text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_state != State::Idle) {
        m_heldTexts.push_back(UssdReply{UssdFinal, text.text});
        return false;
    }
    if (text.type == UssdWaitsForAnswer)
        m_state = State::WaitsForAnswer;
    return true;
}

/// A question that waits for its answer is told even when its text is not known.
void UssdSession::ended(const UntakenText &text, bool taken)
{
    if (taken || (text.reply.text.empty() && text.reply.type != UssdWaitsForAnswer))
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_untaken.push_back(text);
        if (m_untaken.size() > MAX_UNTAKEN_TEXTS)
            m_untaken.pop_front();
    }
    m_untakenCame();
}

/// With the lock held.
void UssdSession::becomeIdle()
{
    m_state = State::Idle;
    m_token = 0;
    postHeldTexts();
}

/// With the lock held. They stand behind the reply whose call-back is about to begin.
void UssdSession::postHeldTexts()
{
    const std::vector<UssdReply> texts = std::exchange(m_heldTexts, {});
    for (const UssdReply &text : texts)
        textCame(text);
}

} // namespace tksv
