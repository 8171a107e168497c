#ifndef TOPUPINPUTLIMITS_H
#define TOPUPINPUTLIMITS_H

#include <QString>

namespace Formats
{

/** The configured limits for the user's input when topping up. */
struct TopUpInputLimits {
    int length = 0;    // maximum number of characters
    int minlenth = 0;  // minimum number of characters
    QString limitText; // allowed characters, as in a character class of a regular expression
};

/// Returns the maximum number of characters, or 0 if the configured maximum is negative.
int longestCharge(const TopUpInputLimits &rules);

/// Returns true if an input with this number of characters is long enough to be sent. If the
/// configured minimum exceeds the maximum, the input must have exactly the maximum length.
bool isChargeLongEnough(const TopUpInputLimits &rules, int characters);

/// Returns the regular expression that the input must match. LimitText is inserted unchanged. The
/// length is limited to the highest repetition count that QRegExp supports. Call
/// isChargeExpressionUsable() before you use the expression.
QString chargeExpression(const TopUpInputLimits &rules);

/// Returns true if the expression is a single character class with a repetition count. Any other
/// expression is rejected, because a LimitText that closes the character class could make QRegExp
/// hang or exhaust the memory. The layout of the services window applies the same rule.
bool isChargeExpressionUsable(const TopUpInputLimits &rules);

} // namespace Formats

#endif
