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
    std::vector<Charset> charsets = {Charset::Ucs2, Charset::Gsm, Charset::Ira};
};

/** Changes of the modem hardware. */
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
