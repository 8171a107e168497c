#ifndef TKSV_INTERNAL_USSDERRORS_H
#define TKSV_INTERNAL_USSDERRORS_H

#include <gio/gio.h>

#include "../base/Backend.h"

/* The meaning of ModemManager's errors, which docs/modems.md lists. */

namespace Tksv
{

/** The ways to end a USSD command whose call has failed. */
enum class UssdFailure {
    Replied,      // the client receives an empty reply of UssdVerdict::type
    SessionOpen,  // the daemon assumes an open session, which must end before a retry
    NotPermitted, // polkit denied the call; the client receives an empty reply
    ServiceLost   // the daemon or the modem has disappeared, and a device event ends the command
};

struct UssdVerdict {
    UssdFailure failure = UssdFailure::Replied;
    TKSV_Failure reason = TKSV_FAILURE_ENDED_BY_NETWORK;
};

UssdVerdict classifyUssdError(const GError &error);

/// Returns whether the system's policy denied the call.
bool isNotPermitted(const GError &error);

/// Returns the problem to show to the user after ModemManager has not enabled the modem.
TKSV_DeviceProblem problemOfEnableError(const GError &error);

/// Returns the problem to show to the user after ModemManager has rejected a PIN.
TKSV_DeviceProblem problemOfPinError(const GError &error);

} // namespace Tksv

#endif
