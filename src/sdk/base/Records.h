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

/// Returns the command in UTF-8. Returns no value if the record is null or malformed. A record is
/// malformed if its length is 0, odd or too large, or if its text is malformed or contains a zero
/// code unit.
std::optional<std::string> decodeRequest(const TKSV_USSDRequest *request);

/// Returns a TKSV_USSDResponse.
std::shared_ptr<void> encodeResponse(const UssdReply &reply);
/// Returns a TKSV_SMSSendResult. The two texts that it points to are destroyed together with it.
std::shared_ptr<void> encodeSmsResult(const SmsMessage &message, int result);
/// Returns a TKSV_SMSStatus.
std::shared_ptr<void> encodeSmsStatus(bool canSend);

/// Returns the text up to its terminating zero code unit.
std::u16string decodeText(const unsigned short *text);

} // namespace Tksv

#endif
