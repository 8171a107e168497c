#ifndef TOPUPINPUTLIMITS_H
#define TOPUPINPUTLIMITS_H

#include <QString>

namespace Formats
{

/** The configured limits of the user's input for a top-up. */
struct TopUpInputLimits {
    int length = 0;    // maximum number of characters
    int minlenth = 0;  // minimum number of characters
    QString limitText; // allowed characters, as between the brackets of a regular expression
};

/// Returns the maximum length of the input, which is never negative.
int longestCharge(const TopUpInputLimits &rules);

/// Returns true if an input with this number of characters may be sent. If the minimum exceeds the
/// maximum, the input must have the maximum number of characters.
bool isChargeLongEnough(const TopUpInputLimits &rules, int characters);

/// Returns the regular expression that the input must match. The limit text is inserted unchanged.
/// The length is limited to the highest count that QRegExp supports. The expression may be used
/// only if isChargeExpressionUsable() returns true.
QString chargeExpression(const TopUpInputLimits &rules);

/// Returns true if the expression matches a number of characters of one class. A limit text that
/// closes the class could make QRegExp use up all time and memory. The same rule applies to the
/// layout of the services window.
bool isChargeExpressionUsable(const TopUpInputLimits &rules);

} // namespace Formats

#endif
