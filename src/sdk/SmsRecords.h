#ifndef TKSV_INTERNAL_SMSRECORDS_H
#define TKSV_INTERNAL_SMSRECORDS_H

#include <map>
#include <memory>
#include <mutex>
#include <optional>

#include "base/Backend.h"

struct TKSV_SMSRecordData {
    tksv::SmsMessage message;
};

namespace tksv
{

/** The records that clients hold. A handle that is none of them is told apart, not followed. */
class SmsRecords
{
public:
    TKSV_SMSRecord create(SmsMessage message);
    std::optional<SmsMessage> find(TKSV_SMSRecord record) const;
    /// Whether it was one of them.
    bool release(TKSV_SMSRecord record);

private:
    mutable std::mutex m_mutex; // guards the map
    std::map<TKSV_SMSRecord, std::unique_ptr<TKSV_SMSRecordData>> m_records;
};

} // namespace tksv

#endif
