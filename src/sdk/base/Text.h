#ifndef TKSV_INTERNAL_TEXT_H
#define TKSV_INTERNAL_TEXT_H

#include <cstddef>
#include <optional>
#include <string>

namespace Tksv
{

/// Returns nothing when the text is malformed (a lone surrogate) or contains a zero unit.
std::optional<std::string> toUtf8(const std::u16string &text);
/// Returns nothing when the text is malformed.
std::optional<std::u16string> toUtf16(const std::string &text);

/// Returns whether the text consists of one or more ASCII digits.
bool isDigits(const std::string &text);
bool startsWith(const std::string &text, const std::string &start);
bool endsWith(const std::string &text, const std::string &end);

/// Copies the UTF-8 text to the `size` bytes at `target` and terminates it by a zero byte. A text
/// that is too long is cut between two characters. Does nothing when `size` is 0.
void copyText(const std::string &text, char *target, std::size_t size);

} // namespace Tksv

#endif
