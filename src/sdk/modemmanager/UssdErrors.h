#ifndef TKSV_INTERNAL_USSDERRORS_H
#define TKSV_INTERNAL_USSDERRORS_H

#include <gio/gio.h>

#include "../base/Backend.h"

/* The meaning of ModemManager's errors. docs/modems.md lists the errors. */

namespace Tksv
{

/** The circumstances of a USSD call that has failed. */
struct UssdCallContext {
    double seconds = 0; // the duration of the call
    bool isOnlyOn4G = false;
};

/// Returns the reason why a USSD call has failed. Must not be called if isServiceLost().
Failure failureOfUssdError(const GError &error, const UssdCallContext &context);

/// Returns true if the daemon has not finished an earlier call.
bool isInProgress(const GError &error);

/// Returns true if the daemon or the modem has disappeared. A device event then ends the command.
bool isServiceLost(const GError &error);

/// Returns true if the system's policy denied the call.
bool isNotPermitted(const GError &error);

/// Returns the problem to show to the user after ModemManager has not enabled the modem.
TKSV_DeviceProblem problemOfEnableError(const GError &error);

/// Returns the problem to report to the user after ModemManager has rejected a PIN.
TKSV_DeviceProblem problemOfPinError(const GError &error);

} // namespace Tksv

#endif
