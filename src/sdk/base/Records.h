#ifndef TKSV_INTERNAL_RECORDS_H
#define TKSV_INTERNAL_RECORDS_H

#include <memory>
#include <optional>
#include <string>

#include "Backend.h"
#include "tksv.h"

/* Between the records of tksv.h and plain values, both ways. */

namespace tksv
{

/// The command in UTF-8; nothing when the record is null, its length is 0, odd or too large, or its
/// text is not well formed or holds a zero unit.
std::optional<std::string> decodeRequest(const TKSV_USSDRequest *request);

/// A TKSV_USSDResponse.
std::shared_ptr<void> encodeResponse(const UssdReply &reply);
/// A TKSV_SMSSendResult with the two texts that it points to.
std::shared_ptr<void> encodeSmsResult(const SmsMessage &message, int result);
/// A TKSV_SMSStatus.
std::shared_ptr<void> encodeSmsStatus(bool canSend);

/// The text up to its closing zero unit.
std::u16string decodeText(const unsigned short *text);

} // namespace tksv

#endif
