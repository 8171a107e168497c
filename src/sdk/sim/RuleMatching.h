#ifndef TKSV_INTERNAL_RULEMATCHING_H
#define TKSV_INTERNAL_RULEMATCHING_H

#include <optional>
#include <string>

#include "Scenario.h"

/* Finds the rule of a scenario that applies to a code, to an answer or to a short message. */

namespace Tksv
{

/** The rule that matches a string sent by the client. */
struct Match {
    std::string group;  // empty if no rule matches
    std::string digits; // the digits that replace %s
};

/// Returns the group whose name is this code, or else the longest pattern that matches the code.
Match findCode(const Scenario &scenario, const std::string &code);
/// Returns the group whose name is this answer, or else the group of ANY_ANSWER.
Match findAnswer(const Scenario &scenario, const std::string &menu, const std::string &answer);
/// Returns true if the group has answers. Its reply then leaves the session open.
bool isMenu(const Scenario &scenario, const std::string &group);
/// Returns the rule for the number, or else the rule for all other numbers.
SmsRule findSms(const Scenario &scenario, const std::string &number);

/// Returns the digits that replace %s, or no value if the code does not match the pattern.
std::optional<std::string> matchPattern(const std::string &pattern, const std::string &code);

} // namespace Tksv

#endif
