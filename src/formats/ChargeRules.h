#ifndef CHARGERULES_H
#define CHARGERULES_H

#include <QString>

namespace Formats
{

/** The configured limits of what the user may enter to top up. */
struct ChargeRules {
    int length = 0;    // maximum number of characters
    int minlenth = 0;  // minimum number of characters
    QString limitText; // allowed characters, as between the brackets of a regular expression
};

/// Returns the maximum length of an entry, which is never negative.
int longestCharge(const ChargeRules &rules);

/// Returns true if an entry of that many characters may be sent. If the minimum exceeds the
/// maximum, an entry needs the maximum number of characters.
bool isChargeLongEnough(const ChargeRules &rules, int characters);

/// Returns the regular expression that an entry has to match. The limit text goes in unchanged; the
/// length is limited to what QRegExp can count. Only an expression that passes
/// isChargeExpressionUsable() may be used.
QString chargeExpression(const ChargeRules &rules);

/// Returns true if the expression counts characters of one class. A limit text that closes the
/// class could make QRegExp use up all time and memory. The layout of the services window follows
/// the same rule.
bool isChargeExpressionUsable(const ChargeRules &rules);

} // namespace Formats

#endif
