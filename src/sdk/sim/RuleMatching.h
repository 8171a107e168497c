#ifndef TKSV_INTERNAL_RULEMATCHING_H
#define TKSV_INTERNAL_RULEMATCHING_H

#include <optional>
#include <string>

#include "Scenario.h"

/* Functions that find the rule for a code, an answer or a short message. */

namespace Tksv
{

/** The rule that matches a string from the client. */
struct Match {
    std::string group;  // name of the group; empty if no rule matches
    std::string digits; // the digits matched by %s
};

/// Returns the group whose name equals the code, or else the group with the longest matching
/// pattern.
Match findCode(const Scenario &scenario, const std::string &code);
/// Returns the group for exactly this answer, or else the group for any other answer.
Match findAnswer(const Scenario &scenario, const std::string &menu, const std::string &answer);
/// Returns true if the group has answers, so that its reply leaves the session open.
bool isMenu(const Scenario &scenario, const std::string &group);
/// Returns the rule for this number, or else the rule for all other numbers. If there is neither,
/// returns a rule that sends messages successfully.
SmsRule findSms(const Scenario &scenario, const std::string &number);

/// Returns the digits matched by %s, or std::nullopt if the code does not match the pattern.
std::optional<std::string> matchPattern(const std::string &pattern, const std::string &code);

} // namespace Tksv

#endif
