#ifndef CHARGERULES_H
#define CHARGERULES_H

#include <QString>

/** What may be entered to top up, as the configuration says it. */
struct ChargeRules {
    int length = 0;    // most characters
    int minlenth = 0;  // fewest characters
    QString limitText; // allowed characters: the inside of a regular expression's class
};

/// How long an entry may get; never negative.
int longestCharge(const ChargeRules &rules);

/// Whether an entry of that many characters may be sent. A minimum beyond the maximum counts for
/// nothing: the maximum is then the minimum too.
bool isChargeLongEnough(const ChargeRules &rules, int characters);

/// The regular expression that an entry has to match, made of its pieces as they are; a length that
/// QRegExp cannot count is cut. Not every one may be used, see below.
QString chargeExpression(const ChargeRules &rules);

/// Whether the expression counts characters of one class: a limit text that closes the class could
/// make QRegExp use up all time and memory. The rule is that of the services' layout.
bool isChargeExpressionUsable(const ChargeRules &rules);

#endif
