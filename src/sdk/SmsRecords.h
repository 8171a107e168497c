#ifndef TKSV_INTERNAL_SMSRECORDS_H
#define TKSV_INTERNAL_SMSRECORDS_H

#include <map>
#include <memory>
#include <mutex>
#include <optional>

#include "base/Backend.h"

struct TKSV_SMSRecordData {
    Tksv::SmsMessage message;
};

namespace Tksv
{

/** The messages owned by clients. A handle is used only as a key and is never dereferenced. */
class SmsRecords
{
public:
    TKSV_SMSRecord create(SmsMessage message);
    /// Returns the message, or std::nullopt if the handle is invalid.
    std::optional<SmsMessage> find(TKSV_SMSRecord record) const;
    /// Deletes the message. Returns false if the handle is invalid.
    bool release(TKSV_SMSRecord record);

private:
    mutable std::mutex m_mutex; // guards m_records
    std::map<TKSV_SMSRecord, std::unique_ptr<TKSV_SMSRecordData>> m_records;
};

} // namespace Tksv

#endif
