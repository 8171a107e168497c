#ifndef TKSV_INTERNAL_TEXT_H
#define TKSV_INTERNAL_TEXT_H

#include <cstddef>
#include <optional>
#include <string>

namespace Tksv
{

/// Returns the string in UTF-8, or std::nullopt if it contains an unpaired surrogate or a null
/// character.
std::optional<std::string> toUtf8(const std::u16string &text);
/// Returns the string in UTF-16, or std::nullopt if it is not well-formed UTF-8.
std::optional<std::u16string> toUtf16(const std::string &text);

/// Returns true if the string consists of one or more ASCII digits.
bool isDigits(const std::string &text);
bool startsWith(const std::string &text, const std::string &start);
bool endsWith(const std::string &text, const std::string &end);

/// Copies the UTF-8 string to the buffer `target` of `size` bytes and null-terminates it. A string
/// that is too long is truncated at a character boundary. Does nothing if `size` is 0.
void copyText(const std::string &text, char *target, std::size_t size);

} // namespace Tksv

#endif
