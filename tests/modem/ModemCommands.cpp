/*
 * The commands that the modem supports. The modem immediately answers ERROR to any other command,
 * as a real modem would.
 */
#include "ModemCore.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "base/Text.h"

namespace FakeModems
{

namespace
{

const int SMALLEST_SMS_ERROR = 1;
const int NO_NETWORK_SERVICE = 30; // 3GPP TS 27.007, 9.2.1
const int NOT_ALLOWED = 3;         // 3GPP TS 27.007, 9.2.1
const int SMS_NO_NETWORK = 331;    // 3GPP TS 27.005, 3.2.5
const int SMS_INVALID_INDEX = 321; // 3GPP TS 27.005, 3.2.5

std::string quoted(const std::string &text)
{
    return '"' + text + '"';
}

std::string joined(const std::vector<std::string> &parts)
{
    std::string all;
    for (const std::string &part : parts)
        all += (all.empty() ? "" : ",") + part;
    return all;
}

} // namespace

const std::map<std::string, ModemCore::Handler> &ModemCore::handlers()
{
    // The table is never destroyed, because a static modem may still answer while the program
    // exits.
    static const auto *const table = new std::map<std::string, Handler>{
        {"", &ModemCore::accept},
        {"Z", &ModemCore::accept},
        {"E0", &ModemCore::accept},
        {"V1", &ModemCore::accept},
        {"X4", &ModemCore::accept},
        {"H", &ModemCore::accept},
        {"&C1", &ModemCore::accept},
        {"+CMEE", &ModemCore::accept},
        {"+CTZU", &ModemCore::accept},
        {"+IFC", &ModemCore::accept},
        {"+CMER", &ModemCore::accept},
        {"I", &ModemCore::fixedText},
        {"+GCAP", &ModemCore::fixedText},
        {"+WS46", &ModemCore::allowedNetworks},
        {"+CLAC", &ModemCore::fixedText},
        {"+CGMI", &ModemCore::fixedText},
        {"+CGMM", &ModemCore::fixedText},
        {"+CGMR", &ModemCore::fixedText},
        {"+CGSN", &ModemCore::fixedText},
        {"+CNUM", &ModemCore::ownNumber},
        {"+CSCS", &ModemCore::charset},
        {"+CFUN", &ModemCore::functionality},
        {"+CPIN", &ModemCore::simCommand},
        {"+CIMI", &ModemCore::simCommand},
        {"+CRSM", &ModemCore::simCommand},
        {"+CSIM", &ModemCore::simCommand},
        {"+CLCK", &ModemCore::facilityLock},
        {"+CREG", &ModemCore::registration},
        {"+CGREG", &ModemCore::registration},
        {"#PSNT", &ModemCore::technology},
        {"+COPS", &ModemCore::operatorName},
        {"+CSQ", &ModemCore::signal},
        {"+CIND", &ModemCore::indicators},
        {"+CUSD", &ModemCore::ussd},
        {"+CNMI", &ModemCore::smsIndication},
        {"+CPMS", &ModemCore::smsStorage},
        {"+CMGF", &ModemCore::smsFormat},
        {"+CMGL", &ModemCore::accept},
        {"+CMGS", &ModemCore::submit},
        {"+CMGR", &ModemCore::readSms},
        {"+CMGD", &ModemCore::readSms},
    };
    return *table;
}

/* ---- the modem --------------------------------------------------------------------------- */

AtAnswer ModemCore::accept(const AtCommand &)
{
    return ok();
}

AtAnswer ModemCore::fixedText(const AtCommand &command)
{
    const std::map<std::string, std::string> texts = {
        {"I", "+GCAP: +CGSM,+DS,+ES"},      {"+GCAP", "+GCAP: +CGSM,+DS,+ES"},
        {"+CGMI", m_settings.manufacturer}, {"+CGMM", m_settings.model},
        {"+CGMR", m_settings.revision},     {"+CGSN", m_settings.imei}};
    if (command.name != "+CLAC")
        return info(texts.at(command.name));
    AtAnswer answer;
    for (const auto &handler : handlers())
        answer.lines.push_back("AT" + handler.first);
    return answer;
}

AtAnswer ModemCore::ownNumber(const AtCommand &)
{
    if (m_settings.ownNumber.empty())
        return ok();
    const int type = m_settings.ownNumber.front() == '+' ? 145 : 129;
    return info("+CNUM: ," + quoted(m_settings.ownNumber) + "," + std::to_string(type));
}

AtAnswer ModemCore::charset(const AtCommand &command)
{
    const std::vector<Charset> &known = m_settings.charsets;
    if (command.form == AtCommand::Read)
        return info(std::string("+CSCS: ") + quoted(charsetName(m_charset)));
    if (command.form == AtCommand::Test) {
        std::vector<std::string> names;
        std::transform(known.begin(), known.end(), std::back_inserter(names),
                       [](Charset charset) { return quoted(charsetName(charset)); });
        return info("+CSCS: (" + joined(names) + ")");
    }
    const std::optional<Charset> wanted = charsetOf(decodeText(command.value(0), Charset::Ira));
    if (!wanted || std::find(known.begin(), known.end(), *wanted) == known.end())
        return equipmentError(NOT_ALLOWED);
    m_charset = *wanted;
    return ok();
}

/// Keeps the modem in low-power mode if the device is disabled in the scenario, as a hardware
/// switch would. The daemon ignores the error and keeps searching for a network.
AtAnswer ModemCore::functionality(const AtCommand &command)
{
    if (command.form == AtCommand::Read)
        return info("+CFUN: " + std::to_string(m_functionality));
    if (command.form == AtCommand::Test)
        return info("+CFUN: (0,1,4),(0,1)");
    if (device().state == TKSV_DEVICE_DISABLED)
        return equipmentError(NOT_ALLOWED);
    m_functionality = command.value(0) == "1" ? 1 : 4;
    networkChanged();
    return ok();
}

/* ---- the SIM card ------------------------------------------------------------------------ */

AtAnswer ModemCore::simCommand(const AtCommand &command)
{
    if (command.name == "+CIMI")
        return m_sim.imsi();
    if (command.name == "+CRSM")
        return m_sim.file(command);
    if (command.name == "+CSIM")
        return m_sim.raw(command);
    AtAnswer answer = m_sim.pin(command);
    networkChanged(); // the modem registers when the SIM card is unlocked
    return answer;
}

AtAnswer ModemCore::facilityLock(const AtCommand &command)
{
    if (command.form == AtCommand::Test)
        return info("+CLCK: (\"SC\",\"FD\",\"PS\")");
    const bool isPin = command.value(0) == "SC";
    return info(isPin && m_settings.asksForPin ? "+CLCK: 1" : "+CLCK: 0");
}

/* ---- the network ------------------------------------------------------------------------- */

AtAnswer ModemCore::registration(const AtCommand &command)
{
    if (command.form == AtCommand::Test)
        return info(command.name + ": (0-2)");
    if (command.form == AtCommand::Set)
        return ok();
    return info(command.name + ": 2," + std::to_string(registrationStatus()) + registrationPlace());
}

/// Selects the networks that the modem may use. The modem then registers with the best of them.
AtAnswer ModemCore::allowedNetworks(const AtCommand &command)
{
    const std::set<std::string> selectable = {"12", "22", "25", "28", "29", "30", "31"};
    if (m_allowedNetworks == 0)
        return command.form == AtCommand::Test ? info("+WS46: (12,22,25)") : error();
    if (command.form == AtCommand::Test)
        return info("+WS46: (12,22,25,28,29,30,31)");
    if (command.form == AtCommand::Read)
        return info("+WS46: " + std::to_string(m_allowedNetworks));
    if (selectable.count(command.value(0)) == 0)
        return equipmentError(NOT_ALLOWED);
    m_allowedNetworks = std::stoi(command.value(0));
    sayRegistration();
    return ok();
}

/// Answers with the access technology: 2 for 3G, 4 for 4G. The daemon's "telit" plug-in uses this
/// command instead of +CREG.
AtAnswer ModemCore::technology(const AtCommand &)
{
    if (m_allowedNetworks == 0)
        return error();
    return info(m_allowedNetworks == ONLY_4G ? "#PSNT: 0,4" : "#PSNT: 0,2");
}

std::string ModemCore::networkCode() const
{
    const std::size_t mccLength = 3;
    const auto mncLength = static_cast<std::size_t>(m_sim.data().mncLength);
    return m_sim.data().imsi.substr(0, mccLength + mncLength);
}

/// Sets the format of the operator name, or answers with the name: format 0 is the long name, and
/// format 2 is the numeric operator code (3GPP TS 27.007, 7.3).
AtAnswer ModemCore::operatorName(const AtCommand &command)
{
    if (command.form == AtCommand::Set && command.value(0) == "3")
        m_numericOperator = command.value(1) == "2";
    if (command.form != AtCommand::Read)
        return ok();
    if (registrationStatus() == 2)
        return info("+COPS: 0");
    const std::string name = encodeText(device().operatorName, m_charset);
    return info(m_numericOperator ? "+COPS: 0,2," + quoted(networkCode()) + ",2"
                                  : "+COPS: 0,0," + quoted(name) + ",2");
}

/// Answers with the signal strength: 0 to 31, or 99 if it is unknown (3GPP TS 27.007, 8.5).
AtAnswer ModemCore::signal(const AtCommand &)
{
    const int percent = device().signalPercent;
    const int steps = percent < 0 ? 99 : (percent * 31 + 50) / 100;
    return info("+CSQ: " + std::to_string(steps) + ",99");
}

AtAnswer ModemCore::indicators(const AtCommand &command)
{
    if (!m_settings.tellsSignal)
        return error();
    if (command.form == AtCommand::Test)
        return info("+CIND: (\"battchg\",(0-5)),(\"signal\",(0-5)),(\"service\",(0,1))");
    const int steps = (std::max(device().signalPercent, 0) + 10) / 20;
    return info("+CIND: 5," + std::to_string(steps) + ",1");
}

/* ---- USSD -------------------------------------------------------------------------------- */

AtAnswer ModemCore::ussd(const AtCommand &command)
{
    if (command.form == AtCommand::Test)
        return info("+CUSD: (0-2)");
    if (command.form != AtCommand::Set)
        return info("+CUSD: 1");
    if (command.value(0) == "2" && m_network)
        m_network->endUssd();
    if (command.value(0) != "1")
        return ok();
    m_tellsUssd = true;
    sayHeldReplies();
    return command.values.size() < 2 ? ok() : startUssd(decodeText(command.value(1), m_charset));
}

/// Sends the USSD command to the network. With `device-timeout`, the modem does not answer. With
/// `no-device`, it answers with an error.
AtAnswer ModemCore::startUssd(const std::string &text)
{
    if (m_allowedNetworks == ONLY_4G) {
        m_thread.post([this] { sayUssd(TKSV_FAILURE_NOT_SUPPORTED, std::string()); });
        return ok();
    }
    switch (m_network ? m_network->sendUssd(text) : Tksv::RequestNoDevice) {
    case Tksv::RequestAccepted:
        return ok();
    case Tksv::RequestDeviceTimeout:
        return noAnswer();
    default:
        return equipmentError(NO_NETWORK_SERVICE);
    }
}

/* ---- short messages ---------------------------------------------------------------------- */

/// Rejects the command if the scenario starts without SMS. The daemon does not support messaging
/// for a modem without +CNMI.
AtAnswer ModemCore::smsIndication(const AtCommand &command)
{
    if (!m_network || !m_network->isSmsReadyAtFirst())
        return equipmentError(NOT_ALLOWED);
    return command.form == AtCommand::Test ? info("+CNMI: (0-2),(0-3),(0,2),(0-2),(0,1)") : ok();
}

AtAnswer ModemCore::smsStorage(const AtCommand &command)
{
    const std::string used = std::to_string(m_storedSms.size()) + ",50";
    switch (command.form) {
    case AtCommand::Test:
        return info("+CPMS: (\"SM\",\"ME\"),(\"SM\",\"ME\"),(\"SM\",\"ME\")");
    case AtCommand::Read:
        return info("+CPMS: \"SM\"," + used + ",\"SM\"," + used + ",\"SM\"," + used);
    default:
        return info("+CPMS: " + used + "," + used + "," + used);
    }
}

AtAnswer ModemCore::smsFormat(const AtCommand &command)
{
    if (command.form == AtCommand::Test)
        return info("+CMGF: (0)");
    return command.form == AtCommand::Read ? info("+CMGF: 0")
           : command.value(0) == "0"       ? ok()
                                           : equipmentError(NOT_ALLOWED);
}

AtAnswer ModemCore::submit(const AtCommand &command)
{
    m_pduLength = Tksv::isDigits(command.value(0)) ? std::stoul(command.value(0)) : 0;
    m_readsPdu = true;
    m_port.write("\r\n> ");
    return noAnswer();
}

AtAnswer ModemCore::submitted()
{
    m_smsReference = (m_smsReference + 1) % 256;
    return info("+CMGS: " + std::to_string(m_smsReference));
}

/// Accepts one part of a long message. The network joins the parts, so the result of the complete
/// message is the answer to the last part.
AtAnswer ModemCore::deliverPart(const SubmittedSms &sms)
{
    m_news.submitted(sms);
    std::map<int, std::string> &parts = m_smsParts[sms.reference];
    parts[sms.part] = sms.text;
    if (static_cast<int>(parts.size()) < sms.parts)
        return submitted();
    std::string text;
    for (const auto &part : parts)
        text += part.second;
    m_smsParts.erase(sms.reference);
    return deliver(Tksv::SmsMessage{Tksv::toUtf16(sms.number).value_or(std::u16string()),
                                    Tksv::toUtf16(text).value_or(std::u16string())});
}

AtAnswer ModemCore::deliver(const Tksv::SmsMessage &message)
{
    if (!m_network || !m_network->sendSms(message))
        return messageError(SMS_NO_NETWORK);
    m_smsOnItsWay = true;
    return noAnswer();
}

/// Reports the result of the pending message. There is at most one, because the port sends one
/// message at a time.
void ModemCore::smsFinished(int result)
{
    if (!std::exchange(m_smsOnItsWay, false))
        return;
    finish(result >= SMALLEST_SMS_ERROR ? messageError(result) : submitted());
}

void ModemCore::receiveSms(const std::string &pdu)
{
    const int index = m_storedSms.empty() ? 1 : m_storedSms.rbegin()->first + 1;
    m_storedSms[index] = pdu;
    say("+CMTI: \"SM\"," + std::to_string(index));
}

AtAnswer ModemCore::readSms(const AtCommand &command)
{
    const int index = Tksv::isDigits(command.value(0)) ? std::stoi(command.value(0)) : 0;
    const auto found = m_storedSms.find(index);
    if (found == m_storedSms.end())
        return messageError(SMS_INVALID_INDEX);
    if (command.name == "+CMGD") {
        m_storedSms.erase(found);
        return ok();
    }
    const Bytes bytes = fromHex(found->second).value_or(Bytes(1));
    const std::size_t length = bytes.size() - 1 - bytes.front();
    return AtAnswer{{"+CMGR: 0,," + std::to_string(length), found->second}, "OK"};
}

} // namespace FakeModems
