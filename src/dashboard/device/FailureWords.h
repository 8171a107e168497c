#ifndef FAILUREWORDS_H
#define FAILUREWORDS_H

#include <QString>

#include "tksv_device.h"

namespace Dashboard
{

/// Returns the failure of the most recent request. May be called from any thread.
TKSV_FailureInfo lastFailure();

/// Returns an error message in the user's language, including the closing message of the network if
/// there is one. Returns an empty string for TKSV_FAILURE_NONE.
QString failureWords(const TKSV_FailureInfo &failure);

/// Returns a title in the user's language that contains the code, for example "No reply to *104#".
QString failureTitle(const TKSV_FailureInfo &failure, const QString &code);

/// Returns one or two sentences in the user's language that explain the consequences of the
/// failure, including whether the network may have executed the code.
QString failureMeaning(const TKSV_FailureInfo &failure, const QString &code);

/// Returns true if sending the code again may succeed. Returns false if the network has executed
/// the code or if the code would fail again.
bool mayBeSentAgain(const TKSV_FailureInfo &failure);

/// Returns true if the network may have executed the code.
bool mayHaveBeenExecuted(const TKSV_FailureInfo &failure);

} // namespace Dashboard

#endif
