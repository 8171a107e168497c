#ifndef FAILUREWORDS_H
#define FAILUREWORDS_H

#include <QString>

#include "tksv_device.h"

namespace Dashboard
{

/// Returns how the newest request failed. May be called on any thread.
TKSV_FailureInfo lastFailure();

/// Returns the failure in sentences of the user's language, with the closing text of the network if
/// there is one. Returns an empty string for TKSV_FAILURE_NONE.
QString failureWords(const TKSV_FailureInfo &failure);

} // namespace Dashboard

#endif
