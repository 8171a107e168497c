#ifndef CLI_SAFETEXT_H
#define CLI_SAFETEXT_H

#include <string>

namespace Cli
{

/*
 * Replies come from the network and may therefore contain characters that control a terminal or
 * disguise the meaning of the reply. All programs of the project treat these characters as unsafe:
 * control characters (C0, DEL and C1), and characters that embed, override or isolate a text
 * direction (U+202A to U+202E and U+2066 to U+2069). Line feeds and tabs are safe. Every other line
 * terminator is printed as a line feed.
 */

/// Returns the UTF-8 string in a form that is safe for a terminal. Unsafe characters and bytes that
/// are not valid UTF-8 are replaced with U+FFFD.
std::string safeText(const std::string &text);

/// Returns the JSON text with all unsafe characters escaped, so that no information is lost.
std::string safeJson(const std::string &json);

} // namespace Cli

#endif
