#ifndef CLI_DEVICETEXT_H
#define CLI_DEVICETEXT_H

#include <string>

#include "tksv_device.h"

namespace Cli
{

/// Returns an English message that explains why codes cannot be sent and what the user can do.
/// Returns an empty string if the device is registered and has no problem.
std::string deviceText(const TKSV_DeviceInfo &device);

/// Returns the reason why a device in this state cannot send a request.
TKSV_Failure deviceFailure(const TKSV_DeviceInfo &device);

/// Returns the name of the state for use in scripts, such as "sim-locked".
const char *stateName(TKSV_DeviceState state);

/// Returns the name of the problem for use in scripts, such as "no-service", or an empty string if
/// there is no problem.
const char *problemName(TKSV_DeviceProblem problem);

} // namespace Cli

#endif
