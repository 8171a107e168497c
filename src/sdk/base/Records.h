#ifndef TKSV_INTERNAL_RECORDS_H
#define TKSV_INTERNAL_RECORDS_H

#include <memory>
#include <optional>
#include <string>

#include "Backend.h"
#include "tksv.h"

/* Conversions between the records of tksv.h and C++ value types. */

namespace Tksv
{

/// Returns the command in UTF-8, or std::nullopt if the record is null or malformed. A record is
/// malformed if its length is 0, odd or too large, or if its text is not well-formed UTF-16 or
/// contains a null character.
std::optional<std::string> decodeRequest(const TKSV_USSDRequest *request);

/// Returns the reply as a TKSV_USSDResponse.
std::shared_ptr<void> encodeResponse(const UssdReply &reply);
/// Returns the result as a TKSV_SMSSendResult. The record owns the strings that it points to.
std::shared_ptr<void> encodeSmsResult(const SmsMessage &message, int result);
/// Returns the status as a TKSV_SMSStatus.
std::shared_ptr<void> encodeSmsStatus(bool canSend);

/// Converts the null-terminated array, which must not be null, to a string.
std::u16string decodeText(const unsigned short *text);

} // namespace Tksv

#endif
