#ifndef TKSV_INTERNAL_USSDERRORS_H
#define TKSV_INTERNAL_USSDERRORS_H

#include <gio/gio.h>

#include "../base/Backend.h"

/* Functions that classify the errors of ModemManager. The errors are listed in docs/modems.md. */

namespace Tksv
{

/** The circumstances of a failed USSD call. */
struct UssdCallContext {
    double seconds = 0; // the duration of the call
    bool isOnlyOn4G = false;
};

/// Returns the reason why a USSD call has failed. Must not be called if isServiceLost() returns
/// true.
Failure failureOfUssdError(const GError &error, const UssdCallContext &context);

/// Returns true if ModemManager is still busy with an earlier call.
bool isInProgress(const GError &error);

/// Returns true if ModemManager or the modem has disappeared. In this case, a device event ends the
/// command.
bool isServiceLost(const GError &error);

/// Returns true if the system's policy denied the call, or if polkit is missing or does not
/// respond.
bool isNotPermitted(const GError &error);

/// Returns the problem to report to the user if the modem could not be enabled.
TKSV_DeviceProblem problemOfEnableError(const GError &error);

/// Returns the problem to report to the user if the PIN could not be verified.
TKSV_DeviceProblem problemOfPinError(const GError &error);

} // namespace Tksv

#endif
