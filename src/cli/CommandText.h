#ifndef CLI_COMMANDTEXT_H
#define CLI_COMMANDTEXT_H

#include <optional>
#include <string>

#include "tksv.h"

namespace Cli
{

/// Returns the reason why the UTF-8 string cannot be sent as a code or an answer. Returns an empty
/// string if the string can be sent.
std::string commandProblem(const std::string &text);

/// Returns true if the string starts with * or # and ends with #. The device library sends such a
/// string as a new code, even if a menu is open.
bool hasFormOfCode(const std::string &text);

/// Converts the string to a request record. commandProblem() must have returned an empty string for
/// this string.
TKSV_USSDRequest requestOf(const std::string &text);

/// Converts the string of a response to UTF-8. Unpaired surrogates are replaced with U+FFFD.
std::string fromUtf16(const unsigned short *text);

} // namespace Cli

#endif
