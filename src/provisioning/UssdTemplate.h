#ifndef USSDTEMPLATE_H
#define USSDTEMPLATE_H

#include "ProviderDatabase.h"

/** A database code in the plug-in's form. */
struct UssdTemplate {
    QString code;            // with "%s" where the user's input goes; empty when it cannot be used
    bool takesInput = false; // whether there is a "%s"
    QString problem;         // why it cannot be used; empty when it can
};

/// The longest command that the plug-in sends, in UTF-16 code units.
const int LONGEST_USSD_COMMAND = 91;

/// Turns "*103*CODE#" with the replacement "CODE" into "*103*%s#". What is replaced is what the
/// attribute says and nothing else: without one the code takes no input, whatever it looks like.
UssdTemplate ussdTemplate(const ProviderCode &code);

/// Whether the text is one that a network takes as a code: of digits, stars and hashes, beginning
/// with one of the two signs and ending with a hash (3GPP TS 22.090).
bool isUssdCode(const QString &text);

/// How many characters the user can enter before the command becomes too long.
int longestInput(const QString &codeWithPlaceholder);

#endif
