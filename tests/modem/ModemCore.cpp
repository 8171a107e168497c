#include "ModemCore.h"

#include <utility>

#include "base/Text.h"

namespace FakeModems
{

namespace
{

const char END_OF_PDU = 0x1A;
const char ABORT_PDU = 0x1B;

TKSV_DeviceState stateOf(const std::shared_ptr<NetworkLink> &network)
{
    return network ? network->info().state : TKSV_DEVICE_ABSENT;
}

} // namespace

ModemCore::ModemCore(LoopThread &thread, const std::string &port, ModemSettings settings,
                     ModemNews news)
    : m_thread(thread), m_settings(std::move(settings)), m_news(std::move(news)),
      m_port(
          thread.context(), port, [this](const std::string &bytes) { take(bytes); },
          [this] { opened(); }),
      m_sim(m_settings.sim), m_allowedNetworks(m_settings.allowedNetworks)
{
}

/* ---- the network ------------------------------------------------------------------------- */

/// Starts the network of the scenario. If the SIM card is locked, the network starts in the
/// registered state, because the modem itself implements the lock.
void ModemCore::useNetwork(Tksv::Scenario scenario)
{
    SimData sim = m_settings.sim;
    sim.imsi = scenario.imsi;
    sim.pin = scenario.pin;
    if (!scenario.homeNetwork.empty())
        sim.mncLength = static_cast<int>(scenario.homeNetwork.size()) - 3;
    if (sim.operatorName.empty())
        sim.operatorName = scenario.operatorName;
    m_sim.setData(sim);
    m_sim.setMissing(scenario.state == TKSV_DEVICE_SIM_MISSING);
    if (m_settings.asksForPin || scenario.state == TKSV_DEVICE_SIM_LOCKED)
        m_sim.lock();
    if (scenario.state == TKSV_DEVICE_SIM_LOCKED)
        scenario.state = TKSV_DEVICE_REGISTERED;
    m_functionality = scenario.state == TKSV_DEVICE_DISABLED ? 4 : 1;
    m_network = std::make_shared<NetworkLink>(m_thread, std::move(scenario), networkNews());
    m_heldReplies.clear();
    m_tellsUssd = false;
    m_smsParts.clear();
    m_smsOnItsWay = false;
    m_toldState = device().state;
    m_toldRegistration = registrationStatus();
    m_toldSignal = device().signalPercent;
}

NetworkNews ModemCore::networkNews()
{
    NetworkNews news;
    news.ussd = [this](const Tksv::UssdReply &reply) {
        // True if the type is a value of <m> in +CUSD.
        const bool isNetworks = reply.type <= TKSV_FAILURE_NETWORK_TIMEOUT;
        sayUssd(isNetworks ? reply.type : TKSV_FAILURE_ENDED_BY_NETWORK,
                reply.text + reply.failure.text); // the closing message if there is no reply
    };
    news.lost = [this](int event) { networkLost(event); };
    news.smsFinished = [this](const Tksv::SmsMessage &, int result) { smsFinished(result); };
    news.infoChanged = [this] { networkChanged(); };
    return news;
}

void ModemCore::startClock()
{
    if (m_network && !m_network->isStarted())
        m_network->start();
}

bool ModemCore::isPresent() const
{
    return stateOf(m_network) != TKSV_DEVICE_ABSENT;
}

Tksv::DeviceInfo ModemCore::device() const
{
    return m_network ? m_network->info() : Tksv::DeviceInfo();
}

void ModemCore::unplug()
{
    m_port.hangUp();
    m_port.stopListening();
    m_tellsUssd = false;
}

void ModemCore::networkLost(int event)
{
    m_smsOnItsWay = false;
    m_toldState = TKSV_DEVICE_ABSENT;
    m_news.plugChanged(event == TKSV_DEV_EVENT_RESET ? PlugChange::Reset : PlugChange::Gone);
}

/// Sends changes in the registration and the signal as unsolicited lines. AT commands cannot report
/// that only SMS is unavailable, so the modem loses its registration instead.
void ModemCore::networkChanged()
{
    const Tksv::DeviceInfo now = device();
    const TKSV_DeviceState before = std::exchange(m_toldState, now.state);
    if (before == now.state || now.state == TKSV_DEVICE_ABSENT) {
        // the modem was neither unplugged nor changed
    } else if (before == TKSV_DEVICE_ABSENT) {
        m_news.plugChanged(PlugChange::Back);
    } else if (before < TKSV_DEVICE_SEARCHING || now.state < TKSV_DEVICE_SEARCHING) {
        m_sim.setMissing(now.state == TKSV_DEVICE_SIM_MISSING);
        m_functionality = now.state == TKSV_DEVICE_DISABLED ? 4 : 1;
        m_news.plugChanged(PlugChange::Changed);
    }
    const int registration = registrationStatus();
    if (std::exchange(m_toldRegistration, registration) != registration)
        sayRegistration();
    if (std::exchange(m_toldSignal, now.signalPercent) != now.signalPercent &&
        m_settings.tellsSignal)
        say("+CIEV: 2," + std::to_string((now.signalPercent + 10) / 20));
}

/// Returns <stat> as defined in 3GPP TS 27.007, 7.2: 1 for the home network, 2 while searching, 5
/// for roaming.
int ModemCore::registrationStatus() const
{
    const Tksv::DeviceInfo now = device();
    const bool lostSms = m_network && m_network->isSmsReadyAtFirst() && !now.canSendSms;
    if (now.state != TKSV_DEVICE_REGISTERED || lostSms || !m_sim.isUsable() || m_functionality != 1)
        return 2;
    return m_settings.isRoaming ? 5 : 1;
}

/// Returns the place in the network and, if the modem has 4G, the technology (3GPP TS 27.007, 7.2):
/// 2 for 3G, 7 for 4G.
std::string ModemCore::registrationPlace() const
{
    if (registrationStatus() == 2)
        return std::string();
    const std::string place = ",\"1234\",\"001122BB\"";
    return m_allowedNetworks == 0 ? place : place + (m_allowedNetworks == ONLY_4G ? ",7" : ",2");
}

void ModemCore::sayRegistration()
{
    const std::string status = std::to_string(registrationStatus()) + registrationPlace();
    say("+CREG: " + status);
    say("+CGREG: " + status);
}

/* ---- input ------------------------------------------------------------------------------- */

void ModemCore::opened()
{
    m_line.clear();
    m_readsPdu = false;
}

void ModemCore::take(const std::string &bytes)
{
    for (const char byte : bytes)
        takeByte(byte);
}

void ModemCore::takeByte(char byte)
{
    if (m_readsPdu && (byte == END_OF_PDU || byte == ABORT_PDU)) {
        takePdu(byte == END_OF_PDU);
    } else if (!m_readsPdu && byte == '\r') {
        takeLine(std::exchange(m_line, std::string()));
    } else if (byte != '\n' && byte != '\r') {
        m_line += byte;
    }
}

void ModemCore::takeLine(const std::string &line)
{
    if (line.empty())
        return;
    m_news.received(line);
    perform(line, [this, line] { return handle(line); });
}

void ModemCore::takePdu(bool isWhole)
{
    m_readsPdu = false;
    const std::string pdu = std::exchange(m_line, std::string());
    if (!isWhole) {
        finish(ok());
        return;
    }
    m_news.received("PDU " + pdu);
    perform("PDU " + pdu, [this, pdu] {
        const std::optional<SubmittedSms> sms = decodeSubmit(pdu, m_pduLength);
        return sms ? deliverPart(*sms) : messageError(304); // invalid PDU mode parameter
    });
}

void ModemCore::perform(const std::string &line, const std::function<AtAnswer()> &action)
{
    Misbehaviour fault;
    if (m_faults.take(line, fault))
        misbehave(fault, action);
    else
        finish(action());
}

void ModemCore::misbehave(const Misbehaviour &fault, const std::function<AtAnswer()> &action)
{
    switch (fault.fault) {
    case Fault::Error:
        return finish(error());
    case Fault::EquipmentError:
        return finish(equipmentError(fault.value));
    case Fault::MessageError:
        return finish(messageError(fault.value));
    case Fault::Silence:
        return;
    case Fault::Late:
        return m_thread.post([this, action] { finish(action()); },
                             static_cast<unsigned>(fault.value));
    case Fault::Garbled: {
        AtAnswer answer = action();
        for (std::string &line : answer.lines)
            line = garbled(line);
        return finish(answer);
    }
    case Fault::HangUp:
        return m_port.hangUp();
    }
}

AtAnswer ModemCore::handle(const std::string &line)
{
    if (!Tksv::startsWith(line, "AT"))
        return error();
    const AtCommand command = parseAtCommand(line.substr(2));
    const auto found = handlers().find(command.name);
    return found == handlers().end() ? error() : (this->*found->second)(command);
}

/* ---- output ------------------------------------------------------------------------------ */

void ModemCore::send(const std::string &line)
{
    m_port.write("\r\n" + line + "\r\n");
}

void ModemCore::finish(const AtAnswer &answer)
{
    for (const std::string &line : answer.lines)
        send(line);
    if (!answer.result.empty())
        send(answer.result);
}

void ModemCore::say(const std::string &line)
{
    Misbehaviour fault;
    if (!m_faults.take(line, fault))
        return send(line);
    if (fault.fault == Fault::HangUp)
        m_port.hangUp();
    else if (fault.fault == Fault::Garbled)
        send(garbled(line));
    else if (fault.fault == Fault::Late)
        m_thread.post([this, line] { send(line); }, static_cast<unsigned>(fault.value));
}

/// Sends a +CUSD line (3GPP TS 27.007, 7.15). The data coding scheme describes the message on the
/// radio link: 15 for the default alphabet, 72 for UCS2 (3GPP TS 23.038, 5). The string in the line
/// is encoded as selected with +CSCS.
void ModemCore::sayUssd(int type, const std::string &text)
{
    std::string line = "+CUSD: " + std::to_string(type);
    if (!text.empty())
        line += ",\"" + encodeText(text, m_charset) + "\"," + (toSeptets(text) ? "15" : "72");
    if (m_holdsReplies || !m_tellsUssd)
        m_heldReplies.push_back(line);
    else
        say(line);
}

void ModemCore::holdReplies(bool hold)
{
    m_holdsReplies = hold;
    sayHeldReplies();
}

void ModemCore::sayHeldReplies()
{
    if (m_holdsReplies || !m_tellsUssd)
        return;
    const std::vector<std::string> held = std::exchange(m_heldReplies, {});
    for (const std::string &line : held)
        say(line);
}

} // namespace FakeModems
