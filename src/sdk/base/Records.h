#ifndef TKSV_INTERNAL_RECORDS_H
#define TKSV_INTERNAL_RECORDS_H

#include <memory>
#include <optional>
#include <string>

#include "Backend.h"
#include "tksv.h"

/* Conversions between the records of tksv.h and plain values. */

namespace Tksv
{

/// Returns the command in UTF-8, or no value if the record is null or malformed. A record is
/// malformed if its length is 0, odd or too large, or if its text is not well-formed UTF-16 or
/// contains a zero code unit.
std::optional<std::string> decodeRequest(const TKSV_USSDRequest *request);

/// Returns a TKSV_USSDResponse.
std::shared_ptr<void> encodeResponse(const UssdReply &reply);
/// Returns a TKSV_SMSSendResult, which owns the two strings that it points to.
std::shared_ptr<void> encodeSmsResult(const SmsMessage &message, int result);
/// Returns a TKSV_SMSStatus.
std::shared_ptr<void> encodeSmsStatus(bool canSend);

/// Returns the string up to its terminating zero code unit.
std::u16string decodeText(const unsigned short *text);

} // namespace Tksv

#endif
