#ifndef USSDCODE_H
#define USSDCODE_H

#include <QLatin1String>
#include <QString>

#include "tksv.h"

/* A command that is sent to the network, such as *100# or *101*%s#. */

/// Stands in a command for what the user enters.
const QLatin1String INPUT_PLACEHOLDER("%s");

/// The longest command that the plug-in sends, in UTF-16 units.
const int LONGEST_COMMAND = TKSV_USSD_MAX_COMMAND_BYTES / int(sizeof(unsigned short));

/// Whether all characters are digits, stars and hashes, which a telephone can dial.
bool isDialable(const QString &text);

/// Whether a network takes the text as a code: digits, stars and hashes that begin with a star or a
/// hash and end with a hash (3GPP TS 22.090).
bool isUssdCode(const QString &text);

/// Whether a text is a code such as *100# or *101*%s#, or has no letter, as a number. Such a text
/// reads from left to right in every language, while any other text follows the language.
bool isCodeLike(const QString &text);

/// The length of the command, in UTF-16 units, once `input` characters stand for each placeholder.
int commandLength(const QString &command, int input);

/// How many characters the user can enter before the command becomes longer than LONGEST_COMMAND.
/// Returns 0 for a command without a placeholder.
int longestInput(const QString &command);

#endif
