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

/// Returns the command in UTF-8, or nothing when the record is null or malformed: a length of 0,
/// odd or too large, or text that is malformed or contains a zero unit.
std::optional<std::string> decodeRequest(const TKSV_USSDRequest *request);

/// Returns a TKSV_USSDResponse.
std::shared_ptr<void> encodeResponse(const UssdReply &reply);
/// Returns a TKSV_SMSSendResult together with the two texts that it points to.
std::shared_ptr<void> encodeSmsResult(const SmsMessage &message, int result);
/// Returns a TKSV_SMSStatus.
std::shared_ptr<void> encodeSmsStatus(bool canSend);

/// Returns the text up to its terminating zero unit.
std::u16string decodeText(const unsigned short *text);

} // namespace Tksv

#endif
