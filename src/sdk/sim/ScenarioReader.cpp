#include "ScenarioReader.h"

#include <algorithm>
#include <set>

#include "GroupName.h"
#include "KeyFile.h"
#include "RuleCheck.h"
#include "ScenarioValue.h"
#include "TextFile.h"

namespace Tksv
{

namespace
{

/// The maximum length of an operator name in TKSV_DeviceInfo, in bytes.
const std::size_t MAX_OPERATOR_BYTES = sizeof TKSV_DeviceInfo::operatorName - 1;
const std::size_t MAX_CURRENCY_BYTES = 16;

/* ---- the keys of each kind of group ------------------------------------------------------ */

template <typename T>
struct Key {
    const char *name;
    void (*read)(const ScenarioValue &value, T &target);
};

const Word<TKSV_DeviceState> DEVICE_STATE_WORDS[] = {
    {"registered", TKSV_DEVICE_REGISTERED},   {"searching", TKSV_DEVICE_SEARCHING},
    {"disabled", TKSV_DEVICE_DISABLED},       {"sim-locked", TKSV_DEVICE_SIM_LOCKED},
    {"sim-missing", TKSV_DEVICE_SIM_MISSING}, {"absent", TKSV_DEVICE_ABSENT}};

const Word<bool> SMS_READINESS_WORDS[] = {{"ready", true}, {"not-ready", false}};

const Word<bool> ROAMING_WORDS[] = {{"yes", true}, {"no", false}};

const Word<unsigned int> MODE_WORDS[] = {{"all", TKSV_MODE_2G | TKSV_MODE_3G | TKSV_MODE_4G},
                                         {"4G", TKSV_MODE_4G}};

const Word<Outcome> OUTCOME_WORDS[] = {{"reply", Outcome::Reply},
                                       {"refuse", Outcome::Refuse},
                                       {"unsupported", Outcome::Unsupported},
                                       {"network-timeout", Outcome::NetworkTimeout},
                                       {"silence", Outcome::Silence},
                                       {"device-timeout", Outcome::DeviceTimeout},
                                       {"no-device", Outcome::NoDevice}};

const Key<Scenario> NETWORK_KEYS[] = {
    {"Operator",
     [](const ScenarioValue &v, Scenario &s) { s.operatorName = v.name(MAX_OPERATOR_BYTES); }},
    {"IMSI", [](const ScenarioValue &v, Scenario &s) { s.imsi = v.digits(6, 15); }},
    {"HomeNetwork", [](const ScenarioValue &v, Scenario &s) { s.homeNetwork = v.digits(5, 6); }},
    {"PIN", [](const ScenarioValue &v, Scenario &s) { s.pin = v.digits(4, 8); }},
    {"Signal", [](const ScenarioValue &v, Scenario &s) { s.signalPercent = v.number(0, 100); }},
    {"State", [](const ScenarioValue &v, Scenario &s) { s.state = v.word(DEVICE_STATE_WORDS); }},
    {"Delay", [](const ScenarioValue &v, Scenario &s) { s.delay = v.milliseconds(); }},
    {"SMS", [](const ScenarioValue &v, Scenario &s) { s.smsReady = v.word(SMS_READINESS_WORDS); }},
    {"Roaming", [](const ScenarioValue &v, Scenario &s) { s.isRoaming = v.word(ROAMING_WORDS); }},
    {"Modes", [](const ScenarioValue &v, Scenario &s) { s.modes = v.word(MODE_WORDS); }},
    {"Balance", [](const ScenarioValue &v, Scenario &s) { s.balance = v.amount(); }},
    {"Currency",
     [](const ScenarioValue &v, Scenario &s) { s.currency = v.name(MAX_CURRENCY_BYTES); }},
};

const Key<Rule> RULE_KEYS[] = {
    {"Reply", [](const ScenarioValue &v, Rule &r) { r.reply = v.text(); }},
    {"Outcome", [](const ScenarioValue &v, Rule &r) { r.outcome = v.word(OUTCOME_WORDS); }},
    {"Goto", [](const ScenarioValue &v, Rule &r) { r.goTo = v.text(); }},
    {"Delay", [](const ScenarioValue &v, Rule &r) { r.delay = v.milliseconds(); }},
    {"Credit", [](const ScenarioValue &v, Rule &r) { v.credit(r); }},
    {"NotEnough", [](const ScenarioValue &v, Rule &r) { r.notEnough = v.text(); }},
    {"Digits", [](const ScenarioValue &v, Rule &r) { v.digitCount(r.minDigits, r.maxDigits); }},
    {"WrongDigits", [](const ScenarioValue &v, Rule &r) { r.wrongDigits = v.text(); }},
    {"DeviceEvent",
     [](const ScenarioValue &v, Rule &r) {
         r.deviceEvent = v.deviceEvent();
         r.outcome = Outcome::DeviceEvent;
     }},
    {"Away", [](const ScenarioValue &v, Rule &r) { r.away = v.away(); }},
};

struct PushTarget {
    Push push;
    Rule rule;
};

const Key<PushTarget> PUSH_KEYS[] = {
    {"After", [](const ScenarioValue &v, PushTarget &p) { p.push.after = v.milliseconds(); }},
    {"Reply", [](const ScenarioValue &v, PushTarget &p) { p.rule.reply = v.text(); }},
};

const Key<SmsRule> SMS_KEYS[] = {
    {"Result", [](const ScenarioValue &v, SmsRule &r) { r.result = v.number(0, 65535); }},
    {"Delay", [](const ScenarioValue &v, SmsRule &r) { r.delay = v.milliseconds(); }},
};

const Key<TimedEvent> EVENT_KEYS[] = {
    {"After", [](const ScenarioValue &v, TimedEvent &e) { e.after = v.milliseconds(); }},
    {"Every", [](const ScenarioValue &v, TimedEvent &e) { e.every = v.milliseconds(); }},
    {"SMS",
     [](const ScenarioValue &v, TimedEvent &e) { e.smsReady = v.word(SMS_READINESS_WORDS); }},
    {"Signal", [](const ScenarioValue &v, TimedEvent &e) { e.signalPercent = v.number(0, 100); }},
    {"State", [](const ScenarioValue &v, TimedEvent &e) { e.state = v.word(DEVICE_STATE_WORDS); }},
    {"DeviceEvent", [](const ScenarioValue &v, TimedEvent &e) { e.deviceEvent = v.deviceEvent(); }},
    {"Away", [](const ScenarioValue &v, TimedEvent &e) { e.away = v.away(); }},
};

/// Reads the keys of a group. Returns true if the group contains only valid lines and known keys.
/// If it returns false, do not report missing keys, because they may only be misspelt.
template <typename T, std::size_t N>
bool readKeys(const KeyFileGroup &group, const Key<T> (&keys)[N], T &target, Complaints &complaints)
{
    bool isComplete = !group.isDamaged;
    std::vector<std::string> names;
    for (const Key<T> &key : keys)
        names.push_back(key.name);
    for (const KeyFileEntry &entry : group.entries) {
        const auto matches = [&entry](const Key<T> &key) { return entry.key == key.name; };
        const auto key = std::find_if(std::begin(keys), std::end(keys), matches);
        if (key == std::end(keys)) {
            complaints.add(entry.line,
                           "unknown key " + entry.key + "; expected " + enumerate(names));
            isComplete = false;
        } else {
            key->read(ScenarioValue(entry, complaints), target);
        }
    }
    return isComplete;
}

/// Returns the [Network] group. If there is none, returns an unknown group with the keys of this
/// group, because its name is probably misspelt. Returns null if there is no such group either.
const KeyFileGroup *findNetwork(const std::vector<KeyFileGroup> &groups)
{
    const KeyFileGroup *similar = nullptr;
    for (const KeyFileGroup &group : groups) {
        const GroupKind kind = kindOf(group.name);
        if (kind == GroupKind::Network)
            return &group;
        if (kind == GroupKind::Unknown && (group.find("Operator") || group.find("IMSI")))
            similar = &group;
    }
    return similar;
}

/* ---- reading the groups ------------------------------------------------------------------ */

/** Reads the groups into a scenario. References between groups are checked later by RuleCheck. */
class GroupReader
{
public:
    GroupReader(Scenario &scenario, Complaints &complaints)
        : m_scenario(scenario), m_complaints(complaints)
    {
    }

    void readNetwork(const std::vector<KeyFileGroup> &groups)
    {
        const KeyFileGroup *network = findNetwork(groups);
        if (!network) {
            m_complaints.add(1, "expected a group [Network] with Operator= and IMSI=");
        } else if (readKeys(*network, NETWORK_KEYS, m_scenario, m_complaints)) {
            require(*network, "Operator");
            require(*network, "IMSI");
        } else if (!m_scenario.balance) {
            m_scenario.balance = 0; // Balance may be misspelt; do not report each use of it
        }
    }

    void read(const KeyFileGroup &group)
    {
        switch (kindOf(group.name)) {
        case GroupKind::Network:
            break; // already read by readNetwork(), because other groups use its delay
        case GroupKind::Sms:
            return readSms(group);
        case GroupKind::Push:
            return readPush(group);
        case GroupKind::Event:
            return readEvent(group);
        case GroupKind::Code:
        case GroupKind::Answer:
            return readRule(group);
        case GroupKind::Unknown:
            m_complaints.add(group.line,
                             "unknown group " + bracketed(group.name) +
                                 "; expected [Network], a code such as [*100#] or [*101*%s#], an "
                                 "answer such as [*100#/1], [SMS], [SMS number], [Push name] or "
                                 "[Event name]");
        }
    }

private:
    void require(const KeyFileGroup &group, const char *key)
    {
        if (!group.find(key))
            m_complaints.add(group.line, bracketed(group.name) + ": expected a key " + key);
    }

    void readSms(const KeyFileGroup &group)
    {
        SmsRule rule;
        rule.delay = m_scenario.delay;
        readKeys(group, SMS_KEYS, rule, m_complaints);
        m_scenario.smsRules[smsNumberOf(group.name)] = rule;
    }

    void readPush(const KeyFileGroup &group)
    {
        PushTarget target;
        target.push.group = group.name;
        if (readKeys(group, PUSH_KEYS, target, m_complaints)) {
            require(group, "After");
            require(group, "Reply");
        }
        m_scenario.pushes.push_back(target.push);
        m_scenario.rules.emplace(group.name, target.rule);
    }

    void readEvent(const KeyFileGroup &group)
    {
        TimedEvent event;
        if (readKeys(group, EVENT_KEYS, event, m_complaints)) {
            require(group, "After");
            requireEffect(group, event);
        }
        if (event.every && event.every->count() == 0)
            m_complaints.add(group.find("Every")->line, "Every: expected more than 0 milliseconds");
        m_scenario.events.push_back(event);
    }

    void requireEffect(const KeyFileGroup &group, const TimedEvent &event)
    {
        const bool doesSomething =
            event.smsReady || event.signalPercent || event.state || event.deviceEvent;
        if (!doesSomething)
            m_complaints.add(group.line, bracketed(group.name) +
                                             ": expected SMS, Signal, State or DeviceEvent");
    }

    void readRule(const KeyFileGroup &group)
    {
        Rule rule;
        rule.delay = m_scenario.delay;
        readKeys(group, RULE_KEYS, rule, m_complaints);
        m_scenario.rules.emplace(group.name, rule);
    }

    Scenario &m_scenario;
    Complaints &m_complaints;
};

void readGroups(const std::vector<KeyFileGroup> &groups, Scenario &scenario, Complaints &complaints)
{
    GroupReader reader(scenario, complaints);
    reader.readNetwork(groups);
    std::vector<std::pair<const KeyFileGroup *, bool>> rules; // true if the group has no errors
    std::set<std::string> names;
    for (const KeyFileGroup &group : groups) {
        const std::size_t before = complaints.count();
        reader.read(group);
        if (names.insert(group.name).second && scenario.rules.count(group.name))
            rules.emplace_back(&group, !group.isDamaged && complaints.count() == before);
    }
    MissingGroups missing;
    for (const auto &rule : rules)
        checkRule(scenario, *rule.first, rule.second, missing, complaints);
}

} // namespace

ScenarioResult readScenario(const std::string &text, const std::string &file)
{
    Complaints complaints(file);
    Scenario scenario;
    scenario.source = file;
    const std::vector<KeyFileGroup> groups = readKeyFile(text, complaints);
    if (complaints.isEmpty() || !groups.empty())
        readGroups(groups, scenario, complaints);
    if (complaints.isEmpty())
        return ScenarioResult{std::move(scenario), {}};
    return ScenarioResult{std::nullopt, complaints.sorted()};
}

ScenarioResult readScenarioFile(const std::string &path)
{
    std::string text;
    const std::string problem = readTextFile(path, text);
    if (problem.empty())
        return readScenario(text, path);
    return ScenarioResult{std::nullopt, {Complaint{path, 0, problem}}};
}

} // namespace Tksv
