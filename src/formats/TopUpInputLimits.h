#ifndef TOPUPINPUTLIMITS_H
#define TOPUPINPUTLIMITS_H

#include <QString>

namespace Formats
{

/** The configured rules for the user's input for a top-up. */
struct TopUpInputLimits {
    int length = 0;    // maximum number of characters
    int minlenth = 0;  // minimum number of characters
    QString limitText; // allowed characters, as in a character class of a regular expression
};

/// Returns the maximum length of the input, which is never negative.
int longestCharge(const TopUpInputLimits &rules);

/// Returns true if an input with this number of characters may be sent. If the minimum exceeds the
/// maximum, the input must have exactly the maximum number of characters.
bool isChargeLongEnough(const TopUpInputLimits &rules, int characters);

/// Returns the regular expression that the input must match. LimitText is inserted unchanged. The
/// length is limited to the highest repetition count that QRegExp supports. The expression may be
/// used only if isChargeExpressionUsable() returns true.
QString chargeExpression(const TopUpInputLimits &rules);

/// Returns true if the expression is a single character class with a repetition count. A LimitText
/// that closes the character class could make QRegExp use up all time and memory. The same rule
/// applies to the layout of the services window.
bool isChargeExpressionUsable(const TopUpInputLimits &rules);

} // namespace Formats

#endif
