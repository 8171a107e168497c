#ifndef WANTEDDEVICE_H
#define WANTEDDEVICE_H

#include "device/DeviceChoice.h"

namespace Dashboard
{

class DashboardSettings;
struct Arguments;

/// Returns the device to use. The command line takes precedence over the environment variables,
/// which take precedence over the last selection in the window. `--send` ignores a simulated
/// network that was selected in the window, because a script must not mistake an invented reply for
/// a real one.
DeviceChoice wantedDevice(const Arguments &arguments, const DashboardSettings &settings);

/// Returns true if the choice results in a simulated network. If the device is selected
/// automatically, this depends on $TKSV_BACKEND.
bool isDemonstration(const DeviceChoice &choice);

} // namespace Dashboard

#endif
