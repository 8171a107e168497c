#ifndef FAILUREWORDS_H
#define FAILUREWORDS_H

#include <QString>

#include "tksv_device.h"

namespace Dashboard
{

/// Returns the failure of the newest request. May be called from any thread.
TKSV_FailureInfo lastFailure();

/// Returns an error message in the user's language, including the closing message of the network if
/// there is one. Returns an empty string for TKSV_FAILURE_NONE.
QString failureWords(const TKSV_FailureInfo &failure);

} // namespace Dashboard

#endif
