#ifndef MODEM_MODEMSETTINGS_H
#define MODEM_MODEMSETTINGS_H

#include <string>
#include <vector>

#include "Charset.h"
#include "SimCard.h"

namespace modem
{

/**
 * What a modem is, apart from its network. IMSI, PIN, home network and, unless it is given, the
 * SIM's operator name are those of the scenario.
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
    bool tellsSignal = false; // in five steps, but at once; else the daemon asks every 30 s
    std::vector<Charset> charsets = {Charset::Ucs2, Charset::Gsm, Charset::Ira};
};

/** What happens to the modem as a piece of hardware. */
enum class PlugChange {
    Gone,   // pulled out
    Reset,  // restarted by itself
    Back,   // after either
    Changed // its SIM or its power switch: a daemon sees that when the modem is plugged in again
};

} // namespace modem

#endif
