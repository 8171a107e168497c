#ifndef CLI_FAILURETEXT_H
#define CLI_FAILURETEXT_H

#include <string>

#include "tksv_device.h"

namespace Cli
{

/// Returns the exit code for a request that failed for this reason, see ExitCodes.h.
int exitCodeOf(TKSV_Failure reason);

/// Returns the failure in English sentences. The text contains "It was not carried out." only if
/// the command certainly did not reach the network. If the outcome is unknown, the text says that
/// the network may have carried out the command. The closing text of the network is not part of the
/// text. Returns an empty string for TKSV_FAILURE_NONE.
std::string failureText(const TKSV_FailureInfo &failure);

/// Returns the name of the reason for scripts, such as "in-use".
const char *reasonName(TKSV_Failure reason);

} // namespace Cli

#endif
