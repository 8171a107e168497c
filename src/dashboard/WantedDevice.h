#ifndef WANTEDDEVICE_H
#define WANTEDDEVICE_H

#include "device/DeviceChoice.h"

namespace Dashboard
{

class DashboardSettings;
struct Arguments;

/// Returns the device that the command line names, or else the one that the environment names, or
/// else the one that was chosen last. `--send` does not use a simulated network that was chosen in
/// the window, because a script must not mistake an invented reply for a real one.
DeviceChoice wantedDevice(const Arguments &arguments, const DashboardSettings &settings);

/// Returns true if the choice selects a simulated network. Considers $TKSV_BACKEND for the
/// automatic choice.
bool isDemonstration(const DeviceChoice &choice);

} // namespace Dashboard

#endif
