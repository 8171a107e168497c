#ifndef TKSV_INTERNAL_USSDERRORS_H
#define TKSV_INTERNAL_USSDERRORS_H

#include <gio/gio.h>

#include "../base/Backend.h"

/* The meaning of ModemManager's errors. docs/modems.md lists the errors. */

namespace Tksv
{

/** The ways to end a USSD command whose call has failed. */
enum class UssdFailure {
    Replied,      // the client receives an empty reply with the type UssdVerdict::type
    SessionOpen,  // the daemon assumes an open session, which must end before a retry
    NotPermitted, // polkit denied the call; the client receives an empty reply
    ServiceLost   // the daemon or the modem has disappeared; a device event ends the command
};

struct UssdVerdict {
    UssdFailure failure = UssdFailure::Replied;
    int type = UssdEndedByNetwork;
};

UssdVerdict classifyUssdError(const GError &error);

/// Returns true if the system's policy denied the call.
bool isNotPermitted(const GError &error);

/// Returns the problem to report to the user after ModemManager has rejected a PIN.
TKSV_DeviceProblem problemOfPinError(const GError &error);

} // namespace Tksv

#endif
