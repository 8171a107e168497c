#ifndef SIMWINDOWS_H
#define SIMWINDOWS_H

#include <QString>

class IUSSD;

/** Windows that go with a SIM; the values of the first four are those of IUSSD's question. */
enum SimWindow {
    SIM_WINDOW_PREPAID = 1,
    SIM_WINDOW_POSTPAID = 2,
    SIM_WINDOW_SERVICES = 4,
    SIM_WINDOW_GENERAL = 8,
    SIM_WINDOWS_ALL = 15
};

/// The set of windows to offer for the SIM with this IMSI, which is empty when there is none:
///
/// - those that the plug-in's configuration names for it;
/// - for a SIM that it does not know, and without one, those that serve any subscriber: general
///   window and services. An account window would send the codes of another contract;
/// - all of them when the configuration leaves the choice to the user.
int windowsForSim(IUSSD *ussd, const QString &imsi);

#endif
