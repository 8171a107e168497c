#ifndef USSDCODE_H
#define USSDCODE_H

#include <QLatin1String>
#include <QString>

#include "tksv.h"

namespace Formats
{

/*
 * Rules for USSD commands such as *100# or *101*%s#: the position of the user's input, the maximum
 * length, the format that networks accept, and the reading direction. The windows use these rules
 * to build and show commands. The provisioning library and the tools use the rules to check files.
 */

/// The placeholder for the user's input in a command.
const QLatin1String INPUT_PLACEHOLDER("%s");

/// The length of the longest command that the plug-in sends, in UTF-16 code units.
const int LONGEST_COMMAND = TKSV_USSD_MAX_COMMAND_BYTES / int(sizeof(unsigned short));

/// Returns true if `text` contains only digits, stars and hashes, which a phone can dial.
bool isDialable(const QString &text);

/// Returns true if a network accepts `text` as a code. A code consists of digits, stars and hashes,
/// begins with a star or a hash, and ends with a hash (3GPP TS 22.090).
bool isUssdCode(const QString &text);

/// Returns true if `text` begins with a star or a hash, as in *100#, or contains no letters, as in
/// a phone number. Such strings are displayed from left to right in every language. All other
/// strings follow the direction of the language.
bool isCodeLike(const QString &text);

/// Returns the length of the command in UTF-16 code units if each placeholder is replaced with
/// `input` characters.
int commandLength(const QString &command, int input);

/// Returns the maximum number of characters that the user can enter before the command exceeds
/// LONGEST_COMMAND. Returns 0 for a command without a placeholder.
int longestInput(const QString &command);

} // namespace Formats

#endif
