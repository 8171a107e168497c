#include "Text.h"

#include <algorithm>
#include <cstring>
#include <glib.h>

namespace Tksv
{

std::optional<std::string> toUtf8(const std::u16string &text)
{
    const auto *units = reinterpret_cast<const gunichar2 *>(text.data());
    if (text.find(u'\0') != std::u16string::npos)
        return std::nullopt; // GLib would treat a null character as the end of the string
    glong bytes = 0;
    char *converted =
        g_utf16_to_utf8(units, static_cast<glong>(text.size()), nullptr, &bytes, nullptr);
    if (!converted)
        return std::nullopt;
    std::string result(converted, static_cast<std::size_t>(bytes));
    g_free(converted);
    return result;
}

std::optional<std::u16string> toUtf16(const std::string &text)
{
    glong length = 0;
    gunichar2 *units =
        g_utf8_to_utf16(text.data(), static_cast<glong>(text.size()), nullptr, &length, nullptr);
    if (!units)
        return std::nullopt;
    std::u16string result(units, units + length);
    g_free(units);
    return result;
}

bool isDigits(const std::string &text)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

bool startsWith(const std::string &text, const std::string &start)
{
    return text.compare(0, start.size(), start) == 0;
}

bool endsWith(const std::string &text, const std::string &end)
{
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void copyText(const std::string &text, char *target, std::size_t size)
{
    if (size == 0)
        return;
    std::size_t length = std::min(text.size(), size - 1);
    const auto isContinuation = [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
    };
    while (length > 0 && length < text.size() && isContinuation(text[length]))
        --length;
    std::memcpy(target, text.data(), length);
    target[length] = '\0';
}

} // namespace Tksv
