#include "SimCard.h"

#include <cstdio>
#include <utility>

#include "Charset.h"

namespace FakeModems
{

namespace
{

/// Error codes defined in 3GPP TS 27.007, 9.2.1.
enum EquipmentError {
    NotAllowed = 3,
    SimMissing = 10,
    PinNeeded = 11,
    PukNeeded = 12,
    WrongCode = 16
};

const int PIN_TRIES = 3;
const int PUK_TRIES = 10;

/// Files defined in 3GPP TS 31.102, with their decimal identifiers.
const char ICCID_FILE[] = "12258";
const char ADMINISTRATIVE_FILE[] = "28589";
const char PROVIDER_NAME_FILE[] = "28486";

const std::size_t PROVIDER_NAME_SIZE = 16;

std::string swapped(std::string digits)
{
    if (digits.size() % 2)
        digits += 'F';
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        std::swap(digits[i], digits[i + 1]);
    return digits;
}

/// Returns the content of the file with the service provider name: the display condition and the
/// padded name in the default alphabet (3GPP TS 31.102, 4.2.12).
std::string providerName(const std::string &name)
{
    Bytes bytes = toSeptets(name).value_or(Bytes());
    bytes.resize(PROVIDER_NAME_SIZE, 0xFF);
    bytes.insert(bytes.begin(), 0x00);
    return toHex(bytes);
}

/// Returns the status words that report the remaining attempts after a VERIFY command without a PIN
/// (ETSI TS 102 221, 11.1.9).
std::string triesLeft(int tries)
{
    char words[16];
    std::snprintf(words, sizeof words, "63C%X", static_cast<unsigned>(tries) & 0xFU);
    return words;
}

} // namespace

SimCard::SimCard(SimData data) : m_data(std::move(data)) {}

void SimCard::setData(SimData data)
{
    *this = SimCard(std::move(data));
}

AtAnswer SimCard::pin(const AtCommand &command)
{
    if (command.form == AtCommand::Test)
        return ok();
    if (m_missing)
        return equipmentError(SimMissing);
    if (command.form == AtCommand::Read)
        return pinState();
    switch (m_lock) {
    case Lock::Pin:
        return enterPin(command.value(0));
    case Lock::Puk:
        return enterPuk(command.value(0), command.value(1));
    default:
        return equipmentError(NotAllowed);
    }
}

AtAnswer SimCard::pinState() const
{
    switch (m_lock) {
    case Lock::Pin:
        return info("+CPIN: SIM PIN");
    case Lock::Puk:
        return info("+CPIN: SIM PUK");
    default:
        return info("+CPIN: READY");
    }
}

AtAnswer SimCard::enterPin(const std::string &pin)
{
    if (pin == m_data.pin) {
        m_lock = Lock::None;
        m_pinTries = PIN_TRIES;
        return ok();
    }
    if (--m_pinTries > 0)
        return equipmentError(WrongCode);
    m_lock = Lock::Puk;
    return equipmentError(PukNeeded);
}

AtAnswer SimCard::enterPuk(const std::string &puk, const std::string &newPin)
{
    if (puk != m_data.puk || m_pukTries == 0) {
        m_pukTries -= m_pukTries > 0 ? 1 : 0;
        return equipmentError(WrongCode);
    }
    m_data.pin = newPin;
    m_lock = Lock::None;
    m_pinTries = PIN_TRIES;
    m_pukTries = PUK_TRIES;
    return ok();
}

AtAnswer SimCard::imsi() const
{
    if (m_missing)
        return equipmentError(SimMissing);
    if (m_lock != Lock::None)
        return equipmentError(m_lock == Lock::Pin ? PinNeeded : PukNeeded);
    return info(m_data.imsi);
}

AtAnswer SimCard::file(const AtCommand &command)
{
    const std::string hex = m_missing ? std::string() : content(command.value(1));
    if (hex.empty() || command.value(0) != "176") // READ BINARY
        return equipmentError(m_missing ? SimMissing : NotAllowed);
    return info("+CRSM: 144,0,\"" + hex + "\"");
}

std::string SimCard::content(const std::string &fileId) const
{
    if (fileId == ICCID_FILE)
        return swapped(m_data.iccid);
    if (m_lock != Lock::None)
        return std::string();
    if (fileId == ADMINISTRATIVE_FILE)
        return toHex({0, 0, 0, static_cast<unsigned char>(m_data.mncLength)});
    if (fileId == PROVIDER_NAME_FILE && !m_data.operatorName.empty())
        return providerName(m_data.operatorName);
    return std::string();
}

AtAnswer SimCard::raw(const AtCommand &command)
{
    const std::string request = command.value(1);
    if (request == "0020000100") // VERIFY PIN
        return info("+CSIM: 4,\"" + triesLeft(m_pinTries) + "\"");
    if (request == "002C000100") // RESET RETRY COUNTER of the PIN
        return info("+CSIM: 4,\"" + triesLeft(m_pukTries) + "\"");
    return equipmentError(NotAllowed);
}

} // namespace FakeModems
