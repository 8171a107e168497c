#ifndef CLI_FAILURETEXT_H
#define CLI_FAILURETEXT_H

#include <string>

#include "tksv_device.h"

namespace Cli
{

/// Returns the exit code for a request that failed for this reason.
int exitCodeOf(TKSV_Failure reason);

/// Returns an English error message for the failure. The message contains "It was not carried out."
/// only if the command certainly did not reach the network. If the outcome is unknown, the message
/// states that the network may have executed the command. The closing message of the network is not
/// included. Returns an empty string for TKSV_FAILURE_NONE.
std::string failureText(const TKSV_FailureInfo &failure);

/// Returns the name of the reason for scripts, such as "in-use".
const char *reasonName(TKSV_Failure reason);

} // namespace Cli

#endif
