/*
 * Fuzzes the device SDK's records in both directions. Each record is allocated with its exact size,
 * so that reading beyond its end is detected.
 */
#include "FuzzSupport.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

#include "base/Records.h"
#include "base/Text.h"
#include "requests/SdkRecords.h"

namespace
{

std::vector<unsigned short> terminated(const QString &text)
{
    std::vector<unsigned short> result(text.utf16(), text.utf16() + text.length());
    result.push_back(0);
    result.shrink_to_fit();
    return result;
}

/// Returns the string up to its first null character.
QString upToZero(const QString &text)
{
    const int zero = text.indexOf(QChar(0));
    return zero < 0 ? text : text.left(zero);
}

void checkResponse(const QString &text, int type)
{
    const std::vector<unsigned short> units = terminated(text);
    const size_t textAt = offsetof(TKSV_USSDResponse, text);
    const size_t bytes = textAt + units.size() * sizeof(unsigned short);
    const std::unique_ptr<unsigned char[]> record(new unsigned char[bytes]());
    std::memcpy(record.get(), &type, sizeof type);
    std::memcpy(record.get() + textAt, units.data(), bytes - textAt);
    FUZZ_REQUIRE(SdkRecords::responseText(record.get()) == upToZero(text));
    FUZZ_REQUIRE(SdkRecords::responseType(record.get()) == type);
}

void checkSmsResult(const QString &number, const QString &text, int result)
{
    const std::vector<unsigned short> numberUnits = terminated(number);
    const std::vector<unsigned short> textUnits = terminated(text);
    TKSV_SMSSendResult record = {};
    record.result = result;
    record.number = result % 3 ? numberUnits.data() : nullptr;
    record.text = result % 5 ? textUnits.data() : nullptr;
    const SdkRecords::SmsSendResult read = SdkRecords::smsSendResult(&record);
    FUZZ_REQUIRE(read.sent == (result == 0) && read.result == result);
    FUZZ_REQUIRE(read.number == (record.number ? upToZero(number) : QString()));
    FUZZ_REQUIRE(read.text == (record.text ? upToZero(text) : QString()));
}

/// Checks that a command of a permitted length either arrives unchanged or is rejected as invalid
/// UTF-16.
void checkRequest(const QString &command)
{
    TKSV_USSDRequest request;
    const bool fits = SdkRecords::encodeRequest(command, request);
    FUZZ_REQUIRE(fits == (command.length() <= 91));
    const auto decoded = Tksv::decodeRequest(&request);
    if (!fits || command.isEmpty()) {
        FUZZ_REQUIRE(request.length == 0 && !decoded);
        return;
    }
    const bool isText = Tksv::toUtf8(command.toStdU16String()).has_value();
    FUZZ_REQUIRE(!isText || !command.contains(QChar(0)));
    FUZZ_REQUIRE(decoded.has_value() == isText);
    FUZZ_REQUIRE(!isText || Tksv::toUtf16(*decoded) == command.toStdU16String());
}

/// Checks a record with arbitrary content.
void checkRawRequest(const uint8_t *data, size_t size)
{
    TKSV_USSDRequest request = {};
    std::memcpy(&request, data, std::min(size, sizeof request));
    const auto decoded = Tksv::decodeRequest(&request);
    FUZZ_REQUIRE(!decoded || request.length <= sizeof request.text);
    FUZZ_REQUIRE(!decoded || Tksv::toUtf16(*decoded).has_value());
}

/// Checks a reply from a modem. Invalid UTF-8 must be converted to an empty reply.
void checkReply(const std::string &bytes)
{
    Tksv::UssdReply reply;
    reply.text = bytes;
    const std::shared_ptr<void> record = Tksv::encodeResponse(reply);
    const QString text = SdkRecords::responseText(record.get());
    const auto units = Tksv::toUtf16(bytes);
    FUZZ_REQUIRE(text == upToZero(QString::fromStdU16String(units.value_or(u""))));
}

void checkCopiedText(const std::string &bytes, size_t size)
{
    std::vector<char> target(size + 1, 'x');
    Tksv::copyText(bytes, target.data(), size);
    FUZZ_REQUIRE(target[size] == 'x');
    if (size == 0)
        return;
    const std::string copied(target.data());
    FUZZ_REQUIRE(copied.size() < size && Tksv::startsWith(bytes, copied));
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 4)
        return 0;
    int number = 0;
    std::memcpy(&number, data, sizeof number);
    const QString text = FuzzSupport::units(data + 4, size - 4);
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    checkResponse(text, number);
    checkSmsResult(text.left(size % 30), text, number % 4);
    checkRequest(text);
    checkRequest(text.left(91));
    checkRawRequest(data, size);
    checkReply(bytes);
    checkCopiedText(bytes, size % 50);
    return 0;
}
