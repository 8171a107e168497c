#include "SmsRecords.h"

#include <utility>

namespace Tksv
{

TKSV_SMSRecord SmsRecords::create(SmsMessage message)
{
    auto data = std::make_unique<TKSV_SMSRecordData>(TKSV_SMSRecordData{std::move(message)});
    TKSV_SMSRecord record = data.get();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_records[record] = std::move(data);
    return record;
}

std::optional<SmsMessage> SmsRecords::find(TKSV_SMSRecord record) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_records.find(record);
    if (found == m_records.end())
        return std::nullopt;
    return found->second->message;
}

bool SmsRecords::release(TKSV_SMSRecord record)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_records.erase(record) > 0;
}

} // namespace Tksv
