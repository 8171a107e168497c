#ifndef CLI_COMMANDTEXT_H
#define CLI_COMMANDTEXT_H

#include <optional>
#include <string>

#include "tksv.h"

namespace Cli
{

/// Returns why the UTF-8 text cannot be sent as a code or an answer, or an empty string if it can.
std::string commandProblem(const std::string &text);

/// Returns true if the text starts with * or # and ends with #. The device library sends such a
/// text as a new code, even if a menu is open.
bool hasFormOfCode(const std::string &text);

/// Converts the text to a request record. commandProblem() must have returned an empty string.
TKSV_USSDRequest requestOf(const std::string &text);

/// Returns the text of a response in UTF-8. Lone surrogates are replaced with U+FFFD.
std::string fromUtf16(const unsigned short *text);

} // namespace Cli

#endif
