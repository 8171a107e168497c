#ifndef CLI_FAILURETEXT_H
#define CLI_FAILURETEXT_H

#include <string>

#include "tksv_device.h"

namespace Cli
{

/// Returns the exit code for a failure with this reason.
int exitCodeOf(TKSV_Failure reason);

/// Returns an English message for the failure, or an empty string for TKSV_FAILURE_NONE. The
/// message contains "It was not carried out." if the command definitely did not reach the network.
/// If this is unknown, the message states that the network may have executed the command. The
/// network's final message is not included.
std::string failureText(const TKSV_FailureInfo &failure);

/// Returns the name of the reason for use in scripts, such as "in-use".
const char *reasonName(TKSV_Failure reason);

} // namespace Cli

#endif
