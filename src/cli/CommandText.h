#ifndef CLI_COMMANDTEXT_H
#define CLI_COMMANDTEXT_H

#include <optional>
#include <string>

#include "tksv.h"

namespace Cli
{

/// Returns an empty string if the UTF-8 string can be sent as a code or an answer, otherwise the
/// reason why it cannot be sent.
std::string commandProblem(const std::string &text);

/// Returns true if the string starts with * or # and ends with #. The device library treats such a
/// string as a new code, even if a menu is open.
bool hasFormOfCode(const std::string &text);

/// Converts the string to a request record. The string must have passed the check of
/// commandProblem().
TKSV_USSDRequest requestOf(const std::string &text);

/// Converts the text of a response to UTF-8. Unpaired surrogates are replaced with U+FFFD.
std::string fromUtf16(const unsigned short *text);

} // namespace Cli

#endif
