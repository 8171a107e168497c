#ifndef MODEM_SIMCARD_H
#define MODEM_SIMCARD_H

#include <string>

#include "AtCommand.h"

namespace FakeModems
{

/** The data stored on the SIM card. */
struct SimData {
    std::string imsi;
    std::string iccid = "8949000000000000017"; // 19 or 20 digits
    std::string operatorName;                  // the service provider name, or an empty string
    int mncLength = 2;
    std::string pin = "0000";
    std::string puk = "12345678";
};

/**
 * Implements the AT commands for a SIM card: the PIN lock, the retry counters, and the files that
 * ModemManager reads.
 */
class SimCard
{
public:
    explicit SimCard(SimData data);

    void setData(SimData data);
    const SimData &data() const { return m_data; }
    void setMissing(bool missing) { m_missing = missing; }
    /// Makes the card require its PIN.
    void lock() { m_lock = Lock::Pin; }
    bool isUsable() const { return !m_missing && m_lock == Lock::None; }
    bool isLocked() const { return !m_missing && m_lock != Lock::None; }

    AtAnswer pin(const AtCommand &command);  // answers +CPIN
    AtAnswer imsi() const;                   // answers +CIMI
    AtAnswer file(const AtCommand &command); // answers +CRSM, 3GPP TS 27.007, 8.18
    AtAnswer raw(const AtCommand &command);  // answers the +CSIM requests for the retry counters

private:
    enum class Lock { None, Pin, Puk };
    AtAnswer pinState() const;
    AtAnswer enterPin(const std::string &pin);
    AtAnswer enterPuk(const std::string &puk, const std::string &newPin);
    std::string content(const std::string &fileId) const;

    SimData m_data;
    bool m_missing = false;
    Lock m_lock = Lock::None;
    int m_pinTries = 3;
    int m_pukTries = 10;
};

} // namespace FakeModems

#endif
