#ifndef USSDCODE_H
#define USSDCODE_H

#include <QLatin1String>
#include <QString>

#include "tksv.h"

namespace Formats
{

/*
 * Rules for a USSD command such as *100# or *101*%s#: where the user's input goes, how long the
 * command may get, whether a network accepts it, and in which direction it is read. The windows use
 * these rules to build and show commands; the provisioning and the tools use them to check files.
 */

/// The placeholder in a command that the user's input replaces.
const QLatin1String INPUT_PLACEHOLDER("%s");

/// The longest command that the plug-in sends, in UTF-16 units.
const int LONGEST_COMMAND = TKSV_USSD_MAX_COMMAND_BYTES / int(sizeof(unsigned short));

/// Returns true if `text` contains only digits, stars and hashes, which a telephone can dial.
bool isDialable(const QString &text);

/// Returns true if a network accepts `text` as a code: digits, stars and hashes that begin with a
/// star or a hash and end with a hash (3GPP TS 22.090).
bool isUssdCode(const QString &text);

/// Returns true if `text` begins with a star or a hash, as *100# does, or contains no letter, like
/// a number. Such a text is read from left to right in every language, while any other text follows
/// the language.
bool isCodeLike(const QString &text);

/// Returns the length of the command in UTF-16 units after `input` characters have replaced each
/// placeholder.
int commandLength(const QString &command, int input);

/// Returns how many characters the user can enter before the command becomes longer than
/// LONGEST_COMMAND; 0 for a command without a placeholder.
int longestInput(const QString &command);

} // namespace Formats

#endif
