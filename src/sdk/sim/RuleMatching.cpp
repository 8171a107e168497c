#include "RuleMatching.h"

#include "../base/Text.h"

namespace Tksv
{

namespace
{

/// Returns true if the string contains characters that have a special meaning in group names. Such
/// a string from a client must not match the name of a group.
bool hasSyntaxMarks(const std::string &text)
{
    return text.find_first_of("%/ ") != std::string::npos;
}

} // namespace

std::optional<std::string> matchPattern(const std::string &pattern, const std::string &code)
{
    const std::size_t place = pattern.find(ANY_DIGITS);
    if (place == std::string::npos || pattern.find('/') != std::string::npos)
        return std::nullopt;
    const std::string before = pattern.substr(0, place);
    const std::string after = pattern.substr(place + sizeof ANY_DIGITS - 1);
    if (code.size() < before.size() + after.size() || !startsWith(code, before) ||
        !endsWith(code, after))
        return std::nullopt;
    const std::string digits =
        code.substr(before.size(), code.size() - before.size() - after.size());
    return isDigits(digits) ? std::optional<std::string>(digits) : std::nullopt;
}

Match findCode(const Scenario &scenario, const std::string &code)
{
    if (!hasSyntaxMarks(code) && scenario.rules.count(code))
        return Match{code, std::string()};
    Match best;
    for (const auto &rule : scenario.rules) {
        const std::optional<std::string> digits = matchPattern(rule.first, code);
        if (digits && rule.first.size() > best.group.size())
            best = Match{rule.first, *digits};
    }
    return best;
}

Match findAnswer(const Scenario &scenario, const std::string &menu, const std::string &answer)
{
    const std::string exact = menu + "/" + answer;
    const bool canBeExact = answer.find_first_of("%/") == std::string::npos;
    if (canBeExact && scenario.rules.count(exact))
        return Match{exact, std::string()};
    const std::string any = menu + "/" + ANY_ANSWER;
    return Match{scenario.rules.count(any) ? any : std::string(), std::string()};
}

bool isMenu(const Scenario &scenario, const std::string &group)
{
    const std::string start = group + "/";
    const auto first = scenario.rules.lower_bound(start);
    return first != scenario.rules.end() && startsWith(first->first, start);
}

SmsRule findSms(const Scenario &scenario, const std::string &number)
{
    const auto exact = scenario.smsRules.find(number);
    if (exact != scenario.smsRules.end())
        return exact->second;
    const auto other = scenario.smsRules.find(std::string());
    return other != scenario.smsRules.end() ? other->second : SmsRule{0, scenario.delay};
}

} // namespace Tksv
