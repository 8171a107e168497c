#ifndef MODEM_NETWORKLINK_H
#define MODEM_NETWORKLINK_H

#include <functional>
#include <memory>
#include <string>

#include "base/Backend.h"
#include "LoopThread.h"
#include "sim/Scenario.h"
#include "sim/SimulatedNetwork.h"

namespace FakeModems
{

/** Notifications from the network. All functions are called from the modem's thread. */
struct NetworkNews {
    std::function<void(const Tksv::UssdReply &)> ussd;
    std::function<void(int event)> lost;
    std::function<void(const Tksv::SmsMessage &, int result)> smsFinished;
    std::function<void()> infoChanged;
};

/**
 * Connects the modem to its simulated network, which executes a scenario on a separate thread. The
 * events of the network are passed to the modem's thread in the same order. All functions must be
 * called from the modem's thread.
 */
class NetworkLink : public std::enable_shared_from_this<NetworkLink>, private Tksv::BackendObserver
{
public:
    /// The times in the scenario are relative to start().
    NetworkLink(LoopThread &thread, Tksv::Scenario scenario, NetworkNews news);
    ~NetworkLink() override;

    void start();
    bool isStarted() const { return m_started; }

    /// Returns a Tksv::RequestStatus. While a menu is open, a string that does not have the form of
    /// a code is sent as an answer.
    int sendUssd(const std::string &text);
    void endUssd();
    bool sendSms(const Tksv::SmsMessage &message);
    Tksv::DeviceInfo info() const { return m_network.info(); }
    bool isSmsReadyAtFirst() const { return m_smsReadyAtFirst; }

private:
    void ussdReply(Tksv::RequestToken token, const Tksv::UssdReply &reply) override;
    void ussdText(const Tksv::UssdReply &text) override;
    void deviceLost(int event) override;
    void smsStatusChanged(bool canSend) override;
    void smsFinished(const Tksv::SmsMessage &message, int result) override;
    void infoChanged() override;
    void post(std::function<void(NetworkLink &)> action);
    void deliver(const Tksv::UssdReply &reply);

    LoopThread &m_thread;
    const NetworkNews m_news;
    const bool m_smsReadyAtFirst;
    bool m_started = false;
    bool m_waitsForAnswer = false;
    Tksv::RequestToken m_lastToken = 0;
    Tksv::SimulatedNetwork m_network;
};

} // namespace FakeModems

#endif
