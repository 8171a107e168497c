#ifndef TKSV_INTERNAL_TEXT_H
#define TKSV_INTERNAL_TEXT_H

#include <cstddef>
#include <optional>
#include <string>

namespace Tksv
{

/// Returns the text in UTF-8. Returns no value if the text has an unpaired surrogate or a zero code
/// unit.
std::optional<std::string> toUtf8(const std::u16string &text);
/// Returns the text in UTF-16, or no value if the text is malformed.
std::optional<std::u16string> toUtf16(const std::string &text);

/// Returns whether the text consists of one or more ASCII digits.
bool isDigits(const std::string &text);
bool startsWith(const std::string &text, const std::string &start);
bool endsWith(const std::string &text, const std::string &end);

/// Copies the UTF-8 text to the `size` bytes at `target` and terminates it with a zero byte. A text
/// that is too long is cut off at the end of a whole character. Does nothing if `size` is 0.
void copyText(const std::string &text, char *target, std::size_t size);

} // namespace Tksv

#endif
