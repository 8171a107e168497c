#include "CommandText.h"

#include <cstring>
#include <glib.h>
#include <memory>

namespace Cli
{

namespace
{

using Units = std::unique_ptr<gunichar2, decltype(&g_free)>;

Units toUtf16(const std::string &text, long &count)
{
    return Units(
        g_utf8_to_utf16(text.data(), static_cast<glong>(text.size()), nullptr, &count, nullptr),
        g_free);
}

/// Returns true for quotes and control characters, which could end the quoted string of an AT
/// command.
bool breaksCommand(gunichar character)
{
    return character == '"' || g_unichar_type(character) == G_UNICODE_CONTROL;
}

bool isHighSurrogate(unsigned short unit)
{
    return unit >= 0xd800 && unit < 0xdc00;
}

bool isLowSurrogate(unsigned short unit)
{
    return unit >= 0xdc00 && unit < 0xe000;
}

/// Returns the character at `text` and advances `text` to the next character.
gunichar takeCharacter(const unsigned short *&text)
{
    const unsigned short unit = *text++;
    if (isHighSurrogate(unit) && isLowSurrogate(*text))
        return 0x10000 + ((unit - 0xd800U) << 10) + (*text++ - 0xdc00U);
    return isHighSurrogate(unit) || isLowSurrogate(unit) ? 0xfffd : unit;
}

} // namespace

std::string commandProblem(const std::string &text)
{
    if (text.empty())
        return "it is empty";
    if (!g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr))
        return "it is not UTF-8";
    for (const char *at = text.c_str(); *at; at = g_utf8_next_char(at)) {
        if (breaksCommand(g_utf8_get_char(at)))
            return "it contains a quote or a control character";
    }
    long count = 0;
    toUtf16(text, count);
    if (count > TKSV_USSD_MAX_UNITS)
        return "it is longer than " + std::to_string(TKSV_USSD_MAX_UNITS) + " characters";
    return std::string();
}

bool hasFormOfCode(const std::string &text)
{
    return text.size() > 1 && (text.front() == '*' || text.front() == '#') && text.back() == '#';
}

TKSV_USSDRequest requestOf(const std::string &text)
{
    TKSV_USSDRequest request = {};
    long count = 0;
    const Units units = toUtf16(text, count);
    request.length = static_cast<unsigned int>(count) * sizeof *request.text;
    std::memcpy(request.text, units.get(), request.length);
    return request;
}

std::string fromUtf16(const unsigned short *text)
{
    std::string result;
    while (*text) {
        char bytes[6];
        result.append(bytes,
                      static_cast<std::size_t>(g_unichar_to_utf8(takeCharacter(text), bytes)));
    }
    return result;
}

} // namespace Cli
