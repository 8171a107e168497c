#ifndef MODEM_MODEMSETTINGS_H
#define MODEM_MODEMSETTINGS_H

#include <string>
#include <vector>

#include "Charset.h"
#include "SimCard.h"

namespace FakeModems
{

/**
 * The properties of a modem that are independent of its network. The IMSI, the PIN and the home
 * network are specified in the scenario. The operator name on the SIM card is also taken from the
 * scenario unless it is set here.
 */
struct ModemSettings {
    std::string manufacturer = "Example";
    std::string model = "Fake One";
    std::string revision = "1.0";
    std::string imei = "350000000000017";
    std::string ownNumber;
    SimData sim;
    bool asksForPin = false;
    bool isRoaming = false;
    // If true, the modem reports each change in signal strength immediately, in five steps.
    // Otherwise, the daemon queries the signal strength every 30 s.
    bool tellsSignal = false;
    // The name of the daemon's plug-in for the modem. The "generic" plug-in cannot change the
    // networks that a modem may use.
    std::string plugin = "generic";
    // The networks that the modem may use at first, as a value of +WS46 (3GPP TS 27.007, 5.9). If
    // the value is 0, the modem has no 4G and always uses 2G or 3G. A modem that may use only 4G
    // does not support USSD.
    int allowedNetworks = 0;
    std::vector<Charset> charsets = {Charset::Ucs2, Charset::Gsm, Charset::Ira};
};

/** The value of +WS46 for a modem that may use only 4G. */
const int ONLY_4G = 28;

/** Changes to the modem hardware. */
enum class PlugChange {
    Gone,  // unplugged
    Reset, // restarted on its own
    Back,  // returned after it was unplugged or restarted
    // The SIM card or the hardware switch has changed. The daemon notices the change when the modem
    // is plugged in again.
    Changed
};

} // namespace FakeModems

#endif
