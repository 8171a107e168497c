#include "NetworkLink.h"

#include <utility>

#include "base/CodeForm.h"

namespace FakeModems
{

NetworkLink::NetworkLink(LoopThread &thread, Tksv::Scenario scenario, NetworkNews news)
    : m_thread(thread), m_news(std::move(news)), m_smsReadyAtFirst(scenario.smsReady),
      m_network(std::move(scenario))
{
}

NetworkLink::~NetworkLink()
{
    m_network.stop();
}

void NetworkLink::start()
{
    m_started = true;
    m_network.start(*this);
}

/// Starts a new session for each code, even if a menu is open. A real network would treat the code
/// as an answer. However, the session may have been cancelled although the modem has not received
/// the cancellation, because the daemon sends only the first cancellation to the modem.
int NetworkLink::sendUssd(const std::string &text)
{
    if (!m_started)
        return Tksv::RequestNoDevice;
    const bool isAnswer = m_waitsForAnswer && !Tksv::hasFormOfCode(text);
    const Tksv::RequestKind kind =
        isAnswer ? Tksv::RequestKind::Answer : Tksv::RequestKind::NewSession;
    const int status = m_network.request(++m_lastToken, kind, text).status;
    if (status == Tksv::RequestAccepted)
        m_waitsForAnswer = false;
    return status;
}

void NetworkLink::endUssd()
{
    m_waitsForAnswer = false;
    ++m_lastToken;
    m_network.endSession();
}

bool NetworkLink::sendSms(const Tksv::SmsMessage &message)
{
    return m_started && m_network.sendSms(message);
}

/* ---- on the network's thread ------------------------------------------------------------- */

void NetworkLink::post(std::function<void(NetworkLink &)> action)
{
    m_thread.post([weak = weak_from_this(), action = std::move(action)] {
        if (const std::shared_ptr<NetworkLink> self = weak.lock())
            action(*self);
    });
}

void NetworkLink::ussdReply(Tksv::RequestToken token, const Tksv::UssdReply &reply)
{
    post([=](NetworkLink &link) {
        if (token == link.m_lastToken)
            link.deliver(reply);
    });
}

void NetworkLink::ussdText(const Tksv::UssdReply &text)
{
    post([=](NetworkLink &link) { link.deliver(text); });
}

void NetworkLink::deviceLost(int event)
{
    post([=](NetworkLink &link) {
        link.m_waitsForAnswer = false;
        link.m_news.lost(event);
    });
}

/// Does nothing, because the device information contains the same status.
void NetworkLink::smsStatusChanged(bool) {}

void NetworkLink::smsFinished(const Tksv::SmsMessage &message, int result)
{
    post([=](NetworkLink &link) { link.m_news.smsFinished(message, result); });
}

void NetworkLink::infoChanged()
{
    post([](NetworkLink &link) { link.m_news.infoChanged(); });
}

void NetworkLink::deliver(const Tksv::UssdReply &reply)
{
    m_waitsForAnswer = reply.type == Tksv::UssdWaitsForAnswer;
    m_news.ussd(reply);
}

} // namespace FakeModems
