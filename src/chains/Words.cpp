#include "Words.h"

#include <glib.h>
#include <memory>

namespace Chains
{

namespace
{

using Text = std::unique_ptr<char, decltype(&g_free)>;

bool isDirectionMark(gunichar character)
{
    return character == 0x200e || character == 0x200f || character == 0x061c ||
           (character >= 0x202a && character <= 0x202e) ||
           (character >= 0x2066 && character <= 0x2069);
}

void append(std::string &text, gunichar character)
{
    char bytes[6];
    text.append(bytes, static_cast<std::size_t>(g_unichar_to_utf8(character, bytes)));
}

/// Returns the words in composed form (NFC), separated by single spaces. Direction marks are
/// removed.
std::string simplified(const std::string &text)
{
    const Text composed(g_utf8_normalize(text.c_str(), -1, G_NORMALIZE_NFC), g_free);
    std::string words;
    bool isBetween = false;
    for (const char *at = composed ? composed.get() : ""; *at; at = g_utf8_next_char(at)) {
        const gunichar character = g_utf8_get_char(at);
        if (isDirectionMark(character))
            continue;
        if (g_unichar_isspace(character)) {
            isBetween = !words.empty();
            continue;
        }
        if (isBetween)
            words += ' ';
        isBetween = false;
        append(words, character);
    }
    return words;
}

} // namespace

std::string trimmed(const std::string &text)
{
    const char *start = text.c_str();
    const char *end = start + text.size();
    while (start < end && g_unichar_isspace(g_utf8_get_char(start)))
        start = g_utf8_next_char(start);
    while (end > start) {
        const char *last = g_utf8_prev_char(end);
        if (!g_unichar_isspace(g_utf8_get_char(last)))
            break;
        end = last;
    }
    return std::string(start, end);
}

std::string withoutDirectionMarks(const std::string &text)
{
    std::string rest;
    for (const char *at = text.c_str(); *at; at = g_utf8_next_char(at)) {
        const gunichar character = g_utf8_get_char(at);
        if (!isDirectionMark(character))
            append(rest, character);
    }
    return rest;
}

bool areSameWords(const std::string &a, const std::string &b)
{
    return simplified(a) == simplified(b);
}

bool areSameNames(const std::string &a, const std::string &b)
{
    const Text first(g_utf8_casefold(simplified(a).c_str(), -1), g_free);
    const Text second(g_utf8_casefold(simplified(b).c_str(), -1), g_free);
    return g_strcmp0(first.get(), second.get()) == 0;
}

} // namespace Chains
