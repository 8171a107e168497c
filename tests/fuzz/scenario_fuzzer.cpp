/* Fuzzes a scenario file. The parser must return either a scenario or complaints, but not both. */
#include "FuzzSupport.h"

#include <algorithm>
#include <string>

#include "sim/RuleMatching.h"
#include "sim/ScenarioReader.h"

namespace
{

void checkComplaints(const std::string &text, const Tksv::ScenarioResult &result)
{
    const auto lines = 1 + std::count(text.begin(), text.end(), '\n');
    int before = 0;
    for (const Tksv::Complaint &complaint : result.complaints) {
        FUZZ_REQUIRE(complaint.line >= before && complaint.line <= lines);
        FUZZ_REQUIRE(complaint.file == "a.scenario" && !complaint.text.empty());
        before = complaint.line;
    }
}

/// Checks that the rule can be looked up by its own name, and that its reply can be formatted.
void checkRule(const Tksv::Scenario &scenario, const std::string &group, const Tksv::Rule &rule)
{
    if (group.find(Tksv::ANY_DIGITS) == std::string::npos && group.find('/') == std::string::npos &&
        group.compare(0, 5, "Push ") != 0)
        FUZZ_REQUIRE(Tksv::findCode(scenario, group).group == group);
    FUZZ_REQUIRE(rule.delay.count() >= 0 && rule.minDigits <= rule.maxDigits);
    const auto names = Tksv::placeholderNames(rule.reply);
    FUZZ_REQUIRE(names.has_value());
    Tksv::Placeholders values;
    for (const std::string &name : *names)
        values[name] = "7";
    Tksv::expand(rule.reply, values);
    FUZZ_REQUIRE(rule.goTo.empty() || scenario.rules.count(rule.goTo) == 1);
    Tksv::isMenu(scenario, group);
}

void checkScenario(const Tksv::Scenario &scenario)
{
    FUZZ_REQUIRE(scenario.signalPercent >= 0 && scenario.signalPercent <= 100);
    FUZZ_REQUIRE(scenario.delay.count() >= 0);
    for (const auto &entry : scenario.rules)
        checkRule(scenario, entry.first, entry.second);
    for (const Tksv::Push &push : scenario.pushes)
        FUZZ_REQUIRE(scenario.rules.count(push.group) == 1);
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    const Tksv::ScenarioResult result = Tksv::readScenario(text, "a.scenario");
    FUZZ_REQUIRE(result.scenario.has_value() == result.complaints.empty());
    checkComplaints(text, result);
    if (result.scenario)
        checkScenario(*result.scenario);
    const Tksv::ScenarioResult again = Tksv::readScenario(text, "a.scenario");
    FUZZ_REQUIRE(Tksv::describe(again.complaints) == Tksv::describe(result.complaints));
    return 0;
}
