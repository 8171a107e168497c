#include "SafeText.h"

#include <glib.h>
#include <memory>

namespace Cli
{

namespace
{

const gunichar REPLACEMENT = 0xfffd;
const gunichar LINE_SEPARATOR = 0x2028;
const gunichar PARAGRAPH_SEPARATOR = 0x2029;
const int LONGEST_CHARACTER = 6; // in bytes, for g_unichar_to_utf8()

bool isIn(gunichar character, gunichar first, gunichar last)
{
    return first <= character && character <= last;
}

bool overridesDirection(gunichar character)
{
    return isIn(character, 0x202a, 0x202e) || isIn(character, 0x2066, 0x2069);
}

bool isUnsafe(gunichar character)
{
    return g_unichar_type(character) == G_UNICODE_CONTROL || overridesDirection(character);
}

/// Returns the character that is printed in place of `character`.
gunichar shown(gunichar character)
{
    if (character == '\n' || character == '\t')
        return character;
    if (character == '\r' || character == LINE_SEPARATOR || character == PARAGRAPH_SEPARATOR)
        return '\n';
    return isUnsafe(character) ? REPLACEMENT : character;
}

void append(std::string &text, gunichar character)
{
    char bytes[LONGEST_CHARACTER];
    text.append(bytes, static_cast<std::size_t>(g_unichar_to_utf8(character, bytes)));
}

std::string withoutInvalidBytes(const std::string &text)
{
    const std::unique_ptr<char, decltype(&g_free)> valid(
        g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())), g_free);
    return valid.get();
}

} // namespace

std::string safeText(const std::string &text)
{
    const std::string valid = withoutInvalidBytes(text);
    std::string safe;
    safe.reserve(valid.size());
    bool followsReturn = false;
    for (const char *at = valid.c_str(); *at; at = g_utf8_next_char(at)) {
        const gunichar character = g_utf8_get_char(at);
        if (character != '\n' || !followsReturn) // CR LF is a single line terminator
            append(safe, shown(character));
        followsReturn = character == '\r';
    }
    return safe;
}

std::string safeJson(const std::string &json)
{
    std::string safe;
    safe.reserve(json.size());
    for (const char *at = json.c_str(); *at; at = g_utf8_next_char(at)) {
        const gunichar character = g_utf8_get_char(at);
        if (!isUnsafe(character)) {
            append(safe, character);
            continue;
        }
        char escaped[sizeof "\\u0000"];
        g_snprintf(escaped, sizeof escaped, "\\u%04x", character);
        safe += escaped;
    }
    return safe;
}

} // namespace Cli
