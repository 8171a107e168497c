#ifndef CLI_SAFETEXT_H
#define CLI_SAFETEXT_H

#include <string>

namespace Cli
{

/*
 * Replies come from the network, so they may contain characters that control a terminal or disguise
 * the text. All programs of the project follow the same rule. It applies to the control characters
 * (C0, DEL and C1) and to the characters that embed, override or isolate a direction (U+202A to
 * U+202E and U+2066 to U+2069). Line feeds and tabs are harmless. Every other kind of line end is
 * printed as a line feed.
 */

/// Returns the UTF-8 text in a form that is safe for a terminal. Characters to which the rule
/// applies are replaced with U+FFFD. Bytes that are not UTF-8 are replaced as well.
std::string safeText(const std::string &text);

/// Returns the JSON text with the same characters escaped, so that no information is lost.
std::string safeJson(const std::string &json);

} // namespace Cli

#endif
