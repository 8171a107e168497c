#ifndef CLI_SAFETEXT_H
#define CLI_SAFETEXT_H

#include <string>

namespace Cli
{

/*
 * Replies come from the network and can contain characters that control a terminal or disguise the
 * meaning of the reply. All programs of this project treat the same characters as unsafe: control
 * characters (C0, DEL and C1), and the directional formatting characters U+202A to U+202E and
 * U+2066 to U+2069. Line feeds and tabs are safe. All other line terminators are converted to line
 * feeds.
 */

/// Returns a copy of the UTF-8 string that is safe to print to a terminal. Unsafe characters and
/// invalid bytes are replaced with U+FFFD.
std::string safeText(const std::string &text);

/// Returns the JSON text with all unsafe characters escaped. No information is lost.
std::string safeJson(const std::string &json);

} // namespace Cli

#endif
