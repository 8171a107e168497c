#ifndef MODEM_MODEMSETTINGS_H
#define MODEM_MODEMSETTINGS_H

#include <string>
#include <vector>

#include "Charset.h"
#include "SimCard.h"

namespace FakeModems
{

/**
 * The properties of a modem except for its network. The IMSI, the PIN and the home network come
 * from the scenario, and so does the operator name of the SIM card unless it is set here.
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
    // Whether each change of the signal is reported at once, in five steps. Otherwise the daemon
    // polls the signal every 30 s.
    bool tellsSignal = false;
    std::vector<Charset> charsets = {Charset::Ucs2, Charset::Gsm, Charset::Ira};
};

/** The changes of the modem hardware. */
enum class PlugChange {
    Gone,  // the modem was pulled out
    Reset, // the modem has restarted by itself
    Back,  // the modem is back after either of them
    // The SIM card or the power switch has changed. A daemon notices it when the modem is plugged
    // in again.
    Changed
};

} // namespace FakeModems

#endif
