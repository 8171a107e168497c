#include "Records.h"

#include <cstddef>
#include <cstring>
#include <vector>

#include "Text.h"

namespace Tksv
{

namespace
{

struct SmsResultRecord {
    TKSV_SMSSendResult record = {};
    std::vector<unsigned short> number;
    std::vector<unsigned short> text;
};

std::vector<unsigned short> terminated(const std::u16string &text)
{
    std::vector<unsigned short> units(text.begin(), text.end());
    units.push_back(0);
    return units;
}

} // namespace

std::optional<std::string> decodeRequest(const TKSV_USSDRequest *request)
{
    if (!request || request->length == 0 || request->length % 2 != 0 ||
        request->length > sizeof request->text)
        return std::nullopt;
    return toUtf8(std::u16string(request->text, request->text + request->length / 2));
}

std::shared_ptr<void> encodeResponse(const UssdReply &reply)
{
    const std::vector<unsigned short> text = terminated(toUtf16(reply.text).value_or(u""));
    const std::size_t textBytes = text.size() * sizeof(unsigned short);
    const std::size_t bytes = offsetof(TKSV_USSDResponse, text) + textBytes;
    const auto storage =
        std::make_shared<std::vector<int>>((bytes + sizeof(int) - 1) / sizeof(int));
    auto *record = reinterpret_cast<unsigned char *>(storage->data());
    std::memcpy(record, &reply.type, sizeof reply.type);
    std::memcpy(record + offsetof(TKSV_USSDResponse, text), text.data(), textBytes);
    return std::shared_ptr<void>(storage, record);
}

std::shared_ptr<void> encodeSmsResult(const SmsMessage &message, int result)
{
    const auto storage = std::make_shared<SmsResultRecord>();
    storage->number = terminated(message.number);
    storage->text = terminated(message.text);
    storage->record.result = result;
    storage->record.number = storage->number.data();
    storage->record.text = storage->text.data();
    return std::shared_ptr<void>(storage, &storage->record);
}

std::shared_ptr<void> encodeSmsStatus(bool canSend)
{
    return std::make_shared<TKSV_SMSStatus>(
        TKSV_SMSStatus{canSend ? TKSV_SMS_STATUS_CAN_SEND : TKSV_SMS_STATUS_CANNOT_SEND});
}

std::u16string decodeText(const unsigned short *text)
{
    const unsigned short *end = text;
    while (*end != 0)
        ++end;
    return std::u16string(text, end);
}

} // namespace Tksv
