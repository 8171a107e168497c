#include "RuleCheck.h"

#include <algorithm>

#include "../base/CodeForm.h"
#include "GroupName.h"
#include "ScenarioValue.h"

namespace Tksv
{

namespace
{

std::string inBraces(std::vector<std::string> names)
{
    for (std::string &name : names)
        name.insert(0, 1, '{').push_back('}');
    return enumerate(names);
}

/**
 * Checks a rule: a group that specifies the response to a code or an answer, or the text of a
 * network-initiated message. Its keys must be consistent with each other and with the rest of the
 * scenario.
 */
class RuleCheck
{
public:
    RuleCheck(const Scenario &scenario, const KeyFileGroup &group, MissingGroups &missing,
              Complaints &complaints)
        : m_scenario(scenario), m_group(group), m_rule(scenario.rules.at(group.name)),
          m_missing(missing), m_complaints(complaints)
    {
    }

    void checkKeysTogether()
    {
        checkOutcome();
        checkGotoAlone();
        checkDigits();
        checkCredit();
    }

    void checkEachKey()
    {
        checkGotoTarget();
        checkPlace();
        checkReply();
        for (const char *key : {"Reply", "WrongDigits", "NotEnough"})
            checkPlaceholders(key);
    }

private:
    bool has(const char *key) const { return m_group.find(key) != nullptr; }

    void complain(const std::string &text)
    {
        m_complaints.add(m_group.line, bracketed(m_group.name) + ": " + text);
    }

    /// Adds a complaint if the group contains the key but the key is not allowed in this place.
    void allow(const char *key, bool allowed, const std::string &where)
    {
        if (const KeyFileEntry *entry = m_group.find(key)) {
            if (!allowed)
                m_complaints.add(entry->line, std::string(key) + ": expected only " + where);
        }
    }

    void checkOutcome()
    {
        const bool replies = m_rule.outcome == Outcome::Reply;
        if (replies && !has("Reply") && !has("Goto"))
            complain("expected Reply, Goto, Outcome or DeviceEvent");
        allow("Reply", replies || m_rule.outcome == Outcome::Refuse,
              "with Outcome=reply or Outcome=refuse");
        allow("Goto", replies, "with Outcome=reply");
        allow("Credit", replies, "with Outcome=reply");
        allow("Outcome", !has("DeviceEvent"), "without DeviceEvent");
        allow("Away", has("DeviceEvent"), "with DeviceEvent");
    }

    /// Returns true when called for the first time for this missing group, which is reported only
    /// once.
    bool isNewlyMissing(const std::string &group) { return m_missing.insert(group).second; }

    void checkGotoAlone()
    {
        if (has("Goto") && m_group.entries.size() > 1)
            complain("expected no other key beside Goto");
    }

    void checkGotoTarget()
    {
        if (!has("Goto"))
            return;
        const auto target = m_scenario.rules.find(m_rule.goTo);
        const int line = m_group.find("Goto")->line;
        if (target == m_scenario.rules.end() && !isNewlyMissing(m_rule.goTo))
            return;
        if (target == m_scenario.rules.end())
            m_complaints.add(
                line, "Goto: expected a code or answer of this file, such as *123#, found \"" +
                          m_rule.goTo + "\"");
        else if (!target->second.goTo.empty())
            m_complaints.add(line, "Goto: expected a group without a Goto of its own");
        else if (hasPattern(m_rule.goTo))
            m_complaints.add(line,
                             "Goto: expected a code without %s, found \"" + m_rule.goTo + "\"");
    }

    void checkDigits()
    {
        const bool isPattern = kindOf(m_group.name) == GroupKind::Code && hasPattern(m_group.name);
        allow("Digits", isPattern, "in a group of a code with %s");
        allow("WrongDigits", has("Digits"), "with Digits");
    }

    void checkCredit()
    {
        allow("Credit", m_scenario.balance.has_value(), "when [Network] has a Balance");
        allow("Credit", !m_rule.creditDigits || hasPattern(m_group.name),
              "an amount in a group of a code without %s");
        allow("NotEnough", has("Credit"), "with Credit");
    }

    /// Checks that the menu of an answer exists and has a reply, and that the group name of the
    /// answer is valid. Does nothing if the group is not that of an answer.
    void checkPlace()
    {
        if (kindOf(m_group.name) != GroupKind::Answer)
            return;
        const std::string menu = menuOf(m_group.name);
        const std::string answer = m_group.name.substr(menu.size() + 1);
        const auto rule = m_scenario.rules.find(menu);
        const bool isMissing = rule == m_scenario.rules.end();
        if (isMissing && isNewlyMissing(menu))
            complain("expected a group " + bracketed(menu) + ", which this is an answer to");
        else if (isMissing)
            return;
        else if (rule->second.outcome != Outcome::Reply || !rule->second.goTo.empty())
            complain("expected a Reply in " + bracketed(menu) + ", which this is an answer to");
        const bool isPlain = !answer.empty() && answer.find('%') == std::string::npos;
        if ((!isPlain && answer != ANY_ANSWER) || hasFormOfCode(answer))
            complain("expected an answer, or %s for any other answer, after the last /");
    }

    void checkReply()
    {
        if (const KeyFileEntry *reply = m_group.find("Reply")) {
            if (reply->value.empty())
                m_complaints.add(reply->line, "Reply: expected a text");
        }
    }

    std::vector<std::string> knownNames() const
    {
        std::vector<std::string> names = {"operator", "imsi"};
        if (m_scenario.balance)
            names.push_back("balance");
        if (hasPattern(m_group.name))
            names.push_back("digits");
        if (kindOf(m_group.name) == GroupKind::Answer)
            names.push_back("answer");
        return names;
    }

    void checkPlaceholders(const char *key)
    {
        const KeyFileEntry *entry = m_group.find(key);
        if (!entry)
            return;
        const std::vector<std::string> known = knownNames();
        const std::string expected = std::string(key) + ": expected " + inBraces(known) + " here";
        const auto names = placeholderNames(entry->value);
        if (!names)
            m_complaints.add(entry->line, expected + ", or {{ for a brace");
        for (const std::string &name : names.value_or(std::vector<std::string>())) {
            if (std::find(known.begin(), known.end(), name) == known.end())
                m_complaints.add(entry->line, expected + ", found " + inBraces({name}));
        }
    }

    const Scenario &m_scenario;
    const KeyFileGroup &m_group;
    const Rule &m_rule;
    MissingGroups &m_missing;
    Complaints &m_complaints;
};

} // namespace

void checkRule(const Scenario &scenario, const KeyFileGroup &group, bool isComplete,
               MissingGroups &missing, Complaints &complaints)
{
    RuleCheck check(scenario, group, missing, complaints);
    if (isComplete)
        check.checkKeysTogether();
    check.checkEachKey();
}

} // namespace Tksv
