#ifndef CLI_DEVICETEXT_H
#define CLI_DEVICETEXT_H

#include <string>

#include "tksv_device.h"

namespace Cli
{

/// Returns an English message that explains why no codes can be sent and how the user can solve the
/// problem. Returns an empty string if the device is registered and has no problem.
std::string deviceText(const TKSV_DeviceInfo &device);

/// Returns the reason why a device in this state cannot send a request.
TKSV_Failure deviceFailure(const TKSV_DeviceInfo &device);

/// Returns the name of the state for scripts, such as "sim-locked".
const char *stateName(TKSV_DeviceState state);

/// Returns the name of the problem for scripts, such as "no-service", or an empty string.
const char *problemName(TKSV_DeviceProblem problem);

} // namespace Cli

#endif
