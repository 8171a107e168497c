#ifndef TKSV_INTERNAL_USSDERRORS_H
#define TKSV_INTERNAL_USSDERRORS_H

#include <gio/gio.h>

#include "../base/Backend.h"

/* What ModemManager's errors mean; docs/modems.md has them as a table. */

namespace tksv
{

/** What becomes of a USSD command whose call has failed. */
enum class UssdFailure {
    Replied,      // the client gets an empty reply of the type beside it
    SessionOpen,  // the daemon believes a session to be open: end it and try once more
    NotPermitted, // polkit; an empty reply as well
    ServiceLost   // the daemon or the modem is gone: the device event ends the command
};

struct UssdVerdict {
    UssdFailure failure = UssdFailure::Replied;
    int type = UssdEndedByNetwork;
};

UssdVerdict judgeUssdError(const GError &error);

bool isNotPermitted(const GError &error);
/// The caller has cancelled it.
bool isCancelled(const GError &error);

/// What sending a PIN that ModemManager did not take means for the user.
TKSV_DeviceProblem problemOfPinError(const GError &error);

} // namespace tksv

#endif
