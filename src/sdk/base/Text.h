#ifndef TKSV_INTERNAL_TEXT_H
#define TKSV_INTERNAL_TEXT_H

#include <cstddef>
#include <optional>
#include <string>

namespace tksv
{

/// Nothing when the text is not well formed (a lone surrogate) or holds a zero unit.
std::optional<std::string> toUtf8(const std::u16string &text);
/// Nothing when the text is not well formed.
std::optional<std::u16string> toUtf16(const std::string &text);

bool isDigits(const std::string &text);
bool startsWith(const std::string &text, const std::string &start);
bool endsWith(const std::string &text, const std::string &end);

/// Copies as much of `text` (UTF-8) as fits into `size` bytes with the closing zero, and never half
/// a character. Nothing when `size` is 0.
void copyText(const std::string &text, char *target, std::size_t size);

} // namespace tksv

#endif
