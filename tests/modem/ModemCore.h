#ifndef MODEM_MODEMCORE_H
#define MODEM_MODEMCORE_H

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "AtCommand.h"
#include "AtPort.h"
#include "Charset.h"
#include "LoopThread.h"
#include "Misbehaviour.h"
#include "ModemSettings.h"
#include "NetworkLink.h"
#include "SimCard.h"
#include "SmsPdu.h"

namespace FakeModems
{

/** Notifications from the modem. All functions are called from the modem's thread. */
struct ModemNews {
    std::function<void(const std::string &)> received; // a command, or "PDU " and hex digits
    std::function<void(const SubmittedSms &)> submitted;
    std::function<void(PlugChange)> plugChanged;
};

/**
 * Implements the AT protocol of the modem: parses commands, and sends answers and unsolicited
 * lines. All functions must be called from the modem's thread.
 */
class ModemCore
{
public:
    ModemCore(LoopThread &thread, const std::string &port, ModemSettings settings, ModemNews news);

    void useNetwork(Tksv::Scenario scenario);
    void startClock();
    /// Returns an empty string on success, otherwise an error message.
    std::string plugIn() { return m_port.listen(); }
    void unplug();
    bool isPresent() const;

    Misbehaviours &misbehaviours() { return m_faults; }
    void setPieces(bool pieces) { m_port.setPieces(pieces); }
    void hangUp() { m_port.hangUp(); }
    void holdReplies(bool hold);
    /// Sends the string unchanged as an unsolicited line.
    void say(const std::string &line);
    void sayUssd(int type, const std::string &text);
    void receiveSms(const std::string &pdu);

private:
    using Handler = AtAnswer (ModemCore::*)(const AtCommand &);
    static const std::map<std::string, Handler> &handlers();

    void opened();
    void take(const std::string &bytes);
    void takeByte(char byte);
    void takeLine(const std::string &line);
    void takePdu(bool isWhole);
    void perform(const std::string &line, const std::function<AtAnswer()> &action);
    AtAnswer handle(const std::string &line);
    void finish(const AtAnswer &answer);
    void misbehave(const Misbehaviour &fault, const std::function<AtAnswer()> &action);
    void send(const std::string &line);
    void sayHeldReplies();

    AtAnswer fixedText(const AtCommand &command);
    AtAnswer accept(const AtCommand &command);
    AtAnswer charset(const AtCommand &command);
    AtAnswer functionality(const AtCommand &command);
    AtAnswer simCommand(const AtCommand &command);
    AtAnswer facilityLock(const AtCommand &command);
    AtAnswer registration(const AtCommand &command);
    AtAnswer allowedNetworks(const AtCommand &command);
    AtAnswer technology(const AtCommand &command);
    AtAnswer operatorName(const AtCommand &command);
    AtAnswer signal(const AtCommand &command);
    AtAnswer indicators(const AtCommand &command);
    AtAnswer ussd(const AtCommand &command);
    AtAnswer smsIndication(const AtCommand &command);
    AtAnswer smsStorage(const AtCommand &command);
    AtAnswer smsFormat(const AtCommand &command);
    AtAnswer submit(const AtCommand &command);
    AtAnswer readSms(const AtCommand &command);
    AtAnswer ownNumber(const AtCommand &command);

    AtAnswer startUssd(const std::string &text);
    AtAnswer deliverPart(const SubmittedSms &sms);
    AtAnswer deliver(const Tksv::SmsMessage &message);
    AtAnswer submitted();
    NetworkNews networkNews();
    void smsFinished(int result);
    void networkLost(int event);
    void networkChanged();
    Tksv::DeviceInfo device() const;
    int registrationStatus() const;
    std::string registrationPlace() const;
    void sayRegistration();
    std::string networkCode() const;

    LoopThread &m_thread;
    const ModemSettings m_settings;
    const ModemNews m_news;
    AtPort m_port;
    SimCard m_sim;
    std::shared_ptr<NetworkLink> m_network;
    Misbehaviours m_faults;
    // The most recently reported state.
    bool m_present = false;
    TKSV_DeviceState m_toldState = TKSV_DEVICE_ABSENT;

    std::string m_line; // the beginning of a line that is not complete yet
    bool m_readsPdu = false;
    std::size_t m_pduLength = 0;

    Charset m_charset = Charset::Gsm;
    bool m_numericOperator = false;
    int m_functionality = 1;
    int m_allowedNetworks; // a value of +WS46, or 0
    int m_toldRegistration = 0;
    int m_toldSignal = 0;
    // Set by AT+CUSD=1. Until then, messages from the network are delayed.
    bool m_tellsUssd = false;
    bool m_holdsReplies = false;
    std::vector<std::string> m_heldReplies;
    int m_smsReference = 0;
    bool m_smsOnItsWay = false;
    std::map<int, std::map<int, std::string>> m_smsParts; // by reference, then by part number
    std::map<int, std::string> m_storedSms;               // PDUs by index
};

} // namespace FakeModems

#endif
