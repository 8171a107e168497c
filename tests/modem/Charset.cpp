#include "Charset.h"

#include <utility>

#include "base/Text.h"

namespace FakeModems
{

namespace
{

const unsigned char ESCAPE = 0x1B;
const char16_t REPLACEMENT = 0xFFFD;

/// The default alphabet of 3GPP TS 23.038, 6.2.1. U+FFFF replaces the escape character.
const char16_t DEFAULT_ALPHABET[] = u"@£$¥èéùìòÇ\nØø\rÅåΔ_ΦΓΛΩΠΨΣΘΞ\uFFFFÆæßÉ !\"#¤%&'()*+,-./"
                                    u"0123456789:;<=>?¡ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÑÜ§¿"
                                    u"abcdefghijklmnopqrstuvwxyzäöñüà";
const std::size_t ALPHABET_SIZE = 128;
static_assert(sizeof DEFAULT_ALPHABET / sizeof DEFAULT_ALPHABET[0] == ALPHABET_SIZE + 1,
              "one character for each septet");

/// The characters that are encoded as the escape character and a second septet (3GPP TS 23.038,
/// 6.2.1.1).
const std::pair<unsigned char, char16_t> EXTENSION[] = {
    {0x0A, u'\f'}, {0x14, u'^'}, {0x28, u'{'}, {0x29, u'}'}, {0x2F, u'\\'},
    {0x3C, u'['},  {0x3D, u'~'}, {0x3E, u']'}, {0x40, u'|'}, {0x65, u'€'}};

char16_t extended(unsigned char septet)
{
    for (const auto &entry : EXTENSION) {
        if (entry.first == septet)
            return entry.second;
    }
    return u' ';
}

/// Appends the encoded character. Returns false if the alphabet does not contain the character.
bool appendSeptets(Bytes &septets, char16_t unit)
{
    for (std::size_t i = 0; i < ALPHABET_SIZE; ++i) {
        if (DEFAULT_ALPHABET[i] == unit && i != ESCAPE) {
            septets.push_back(static_cast<unsigned char>(i));
            return true;
        }
    }
    for (const auto &entry : EXTENSION) {
        if (entry.second == unit) {
            septets.push_back(ESCAPE);
            septets.push_back(entry.first);
            return true;
        }
    }
    return false;
}

std::u16string unitsOf(const std::string &text)
{
    return Tksv::toUtf16(text).value_or(std::u16string(1, REPLACEMENT));
}

Bytes toUcs2(const std::string &text)
{
    Bytes bytes;
    for (const char16_t unit : unitsOf(text)) {
        bytes.push_back(static_cast<unsigned char>(unit >> 8));
        bytes.push_back(static_cast<unsigned char>(unit & 0xFF));
    }
    return bytes;
}

Bytes toGsm(const std::string &text)
{
    Bytes septets;
    for (const char16_t unit : unitsOf(text)) {
        if (!appendSeptets(septets, unit))
            septets.push_back('?');
    }
    return septets;
}

Bytes toIra(const std::string &text)
{
    Bytes bytes;
    for (const char16_t unit : unitsOf(text))
        bytes.push_back(unit < 0x80 ? static_cast<unsigned char>(unit) : '?');
    return bytes;
}

int digitValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    return digit >= 'a' && digit <= 'f' ? digit - 'a' + 10 : -1;
}

} // namespace

std::string toHex(const Bytes &bytes)
{
    const char digits[] = "0123456789ABCDEF";
    std::string hex;
    for (const unsigned char byte : bytes) {
        hex += digits[byte >> 4];
        hex += digits[byte & 0xF];
    }
    return hex;
}

std::optional<Bytes> fromHex(const std::string &hex)
{
    if (hex.size() % 2)
        return std::nullopt;
    Bytes bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        const int high = digitValue(hex[i]);
        const int low = digitValue(hex[i + 1]);
        if (high < 0 || low < 0)
            return std::nullopt;
        bytes.push_back(static_cast<unsigned char>(high << 4 | low));
    }
    return bytes;
}

const char *charsetName(Charset charset)
{
    switch (charset) {
    case Charset::Gsm:
        return "GSM";
    case Charset::Ira:
        return "IRA";
    default:
        return "UCS2";
    }
}

std::optional<Charset> charsetOf(const std::string &name)
{
    for (const Charset charset : {Charset::Ucs2, Charset::Gsm, Charset::Ira}) {
        if (name == charsetName(charset))
            return charset;
    }
    return std::nullopt;
}

std::string encodeText(const std::string &text, Charset charset)
{
    switch (charset) {
    case Charset::Gsm:
        return toHex(toGsm(text));
    case Charset::Ira:
        return toHex(toIra(text));
    default:
        return toHex(toUcs2(text));
    }
}

std::string decodeText(const std::string &raw, Charset charset)
{
    const std::optional<Bytes> bytes = fromHex(raw);
    if (!bytes)
        return raw;
    switch (charset) {
    case Charset::Gsm:
        return fromSeptets(*bytes);
    case Charset::Ira:
        return std::string(bytes->begin(), bytes->end());
    default:
        return fromUcs2(*bytes);
    }
}

std::string fromUcs2(const Bytes &bytes)
{
    std::u16string units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        units += static_cast<char16_t>(bytes[i] << 8 | bytes[i + 1]);
    return Tksv::toUtf8(units).value_or("\uFFFD");
}

std::string fromSeptets(const Bytes &septets)
{
    std::u16string units;
    for (std::size_t i = 0; i < septets.size(); ++i) {
        const bool escaped = septets[i] == ESCAPE && i + 1 < septets.size();
        units += escaped ? extended(septets[++i]) : DEFAULT_ALPHABET[septets[i] % ALPHABET_SIZE];
    }
    return Tksv::toUtf8(units).value_or(std::string());
}

std::optional<Bytes> toSeptets(const std::string &text)
{
    Bytes septets;
    for (const char16_t unit : unitsOf(text)) {
        if (!appendSeptets(septets, unit))
            return std::nullopt;
    }
    return septets;
}

Bytes unpackSeptets(const Bytes &packed, std::size_t count, std::size_t skippedBits)
{
    Bytes septets;
    for (std::size_t i = 0; i < count; ++i) {
        unsigned septet = 0;
        for (std::size_t bit = 0; bit < 7; ++bit) {
            const std::size_t place = skippedBits + i * 7 + bit;
            if (place / 8 < packed.size() && (packed[place / 8] >> (place % 8) & 1U))
                septet |= 1U << bit;
        }
        septets.push_back(static_cast<unsigned char>(septet));
    }
    return septets;
}

} // namespace FakeModems
