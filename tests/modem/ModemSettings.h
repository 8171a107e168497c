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
 * from the scenario. The operator name of the SIM card also comes from the scenario unless it is
 * set here.
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
    // Otherwise, the daemon polls the signal strength every 30 s.
    bool tellsSignal = false;
    std::vector<Charset> charsets = {Charset::Ucs2, Charset::Gsm, Charset::Ira};
};

/** The changes of the modem hardware. */
enum class PlugChange {
    Gone,  // the modem was unplugged
    Reset, // the modem has restarted on its own
    Back,  // the modem has returned after it was unplugged or has restarted
    // The SIM card or the radio switch has changed. The daemon notices this when the modem is
    // plugged in again.
    Changed
};

} // namespace FakeModems

#endif
