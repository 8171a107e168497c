#ifndef CLI_DEVICETEXT_H
#define CLI_DEVICETEXT_H

#include <string>

#include "tksv_device.h"

namespace Cli
{

/// Returns why no codes can be sent, and what the user can do about it, in English sentences.
/// Returns an empty string if the device is registered and has no problem.
std::string deviceText(const TKSV_DeviceInfo &device);

/// Returns the failure of a request that this device could not send.
TKSV_Failure deviceFailure(const TKSV_DeviceInfo &device);

/// Returns the name of the state for scripts, such as "sim-locked".
const char *stateName(TKSV_DeviceState state);

/// Returns the name of the problem for scripts, such as "no-service", or an empty string.
const char *problemName(TKSV_DeviceProblem problem);

} // namespace Cli

#endif
