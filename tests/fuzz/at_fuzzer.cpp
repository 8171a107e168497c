/*
 * Fuzzes the protocol between a modem and its host: text encodings, command lines, and short
 * messages in PDU mode.
 */
#include "FuzzSupport.h"

#include <algorithm>
#include <string>

#include "AtCommand.h"
#include "base/Text.h"
#include "Charset.h"
#include "SmsPdu.h"

namespace
{

bool isText(const std::string &text)
{
    return text.empty() || Tksv::toUtf16(text).has_value();
}

void checkHex(const std::string &raw)
{
    const FakeModems::Bytes bytes(raw.begin(), raw.end());
    const auto back = FakeModems::fromHex(FakeModems::toHex(bytes));
    FUZZ_REQUIRE(back && *back == bytes);
    const auto read = FakeModems::fromHex(raw);
    FUZZ_REQUIRE(!read || read->size() * 2 == raw.size());
}

/// Checks that arbitrary bytes can be converted to a string, and that converting the string to UCS2
/// and back does not change it.
void checkCharsets(const std::string &raw)
{
    const FakeModems::Bytes bytes(raw.begin(), raw.end());
    const std::string text = FakeModems::fromUcs2(bytes);
    FUZZ_REQUIRE(isText(text));
    const std::string coded = FakeModems::encodeText(text, FakeModems::Charset::Ucs2);
    if (text.find('\0') == std::string::npos)
        FUZZ_REQUIRE(FakeModems::decodeText(coded, FakeModems::Charset::Ucs2) == text);
    for (const FakeModems::Charset charset : {FakeModems::Charset::Gsm, FakeModems::Charset::Ira}) {
        const std::string once = FakeModems::encodeText(text, charset);
        FUZZ_REQUIRE(FakeModems::encodeText(text, charset) == once);
    }
    for (const FakeModems::Charset charset :
         {FakeModems::Charset::Ucs2, FakeModems::Charset::Gsm, FakeModems::Charset::Ira})
        FUZZ_REQUIRE(isText(FakeModems::decodeText(FakeModems::toHex(bytes), charset)) ||
                     charset == FakeModems::Charset::Ira);
}

void checkSeptets(const std::string &raw)
{
    const FakeModems::Bytes packed(raw.begin(), raw.end());
    const std::size_t skipped = packed.empty() ? 0 : packed[0] % 7;
    const std::size_t count = (packed.size() * 8 - std::min(packed.size() * 8, skipped)) / 7;
    const FakeModems::Bytes septets = FakeModems::unpackSeptets(packed, count, skipped);
    FUZZ_REQUIRE(septets.size() == count);
    for (const unsigned char septet : septets)
        FUZZ_REQUIRE(septet < 128);
    const std::string text = FakeModems::fromSeptets(septets);
    FUZZ_REQUIRE(isText(text));
}

void checkMessage(const std::string &raw)
{
    for (const std::string &pdu :
         {raw, FakeModems::toHex(FakeModems::Bytes(raw.begin(), raw.end()))}) {
        const std::size_t smsc = raw.empty() ? 0 : static_cast<unsigned char>(raw[0]);
        const std::size_t octets = pdu.size() / 2;
        const auto message = FakeModems::decodeSubmit(pdu, octets > smsc ? octets - smsc - 1 : 0);
        FUZZ_REQUIRE(!message || isText(message->number));
        FUZZ_REQUIRE(!message || message->text.size() <=
                                     // Euro signs give the longest text: seven octets contain four
                                     // of them, which are twelve bytes in UTF-8.
                                     2 * raw.size());
    }
}

void checkLine(const std::string &line)
{
    const FakeModems::AtCommand command = FakeModems::parseAtCommand(line);
    FUZZ_REQUIRE(command.value(command.values.size()).empty());
    FUZZ_REQUIRE(command.name.size() <= line.size());
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string raw(reinterpret_cast<const char *>(data), size);
    checkHex(raw);
    checkCharsets(raw);
    checkSeptets(raw);
    checkMessage(raw);
    checkLine(raw);
    return 0;
}
