#ifndef SIMWINDOWS_H
#define SIMWINDOWS_H

#include <QString>

class IUSSD;

namespace Dashboard
{

/**
 * The windows to offer for a SIM. The values of the first four constants are the flags that
 * IUSSD::CheckImsiIsValid() sets.
 */
enum SimWindow {
    SIM_WINDOW_PREPAID = 1,
    SIM_WINDOW_POSTPAID = 2,
    SIM_WINDOW_SERVICES = 4,
    SIM_WINDOW_GENERAL = 8,
    SIM_WINDOWS_ALL = 15
};

/// Returns the windows to offer for the SIM with this IMSI, as a combination of SimWindow flags. An
/// empty IMSI means that there is no SIM. The result contains
///
/// - all windows, if the plug-in's configuration leaves the choice to the user;
/// - the windows that the configuration lists for the IMSI;
/// - the general window and the services window, if the IMSI is not listed or is empty. These
///   windows are suitable for every subscriber, whereas an account window could send codes that are
///   intended for another type of contract.
int windowsForSim(IUSSD *ussd, const QString &imsi);

} // namespace Dashboard

#endif
