#include "ScenarioReader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "../Text.h"
#include "../UssdSession.h"
#include "KeyFile.h"
#include "ScenarioValue.h"

namespace tksv
{

namespace
{

const std::size_t MaxFileBytes = 1024 * 1024;

/// What TKSV_DeviceInfo has room for.
const std::size_t MaxOperatorBytes = sizeof TKSV_DeviceInfo::operatorName - 1;
const std::size_t MaxCurrencyBytes = 16;

/* ---- the keys of each kind of group ------------------------------------------------------ */

template <typename T>
struct Key {
    const char *name;
    void (*read)(const ScenarioValue &value, T &target);
};

const Word<TKSV_DeviceState> DeviceStates[] = {
    {"registered", TKSV_DEVICE_REGISTERED},   {"searching", TKSV_DEVICE_SEARCHING},
    {"disabled", TKSV_DEVICE_DISABLED},       {"sim-locked", TKSV_DEVICE_SIM_LOCKED},
    {"sim-missing", TKSV_DEVICE_SIM_MISSING}, {"absent", TKSV_DEVICE_ABSENT}};

const Word<bool> SmsReadiness[] = {{"ready", true}, {"not-ready", false}};

const Word<Outcome> Outcomes[] = {{"reply", Outcome::Reply},
                                  {"refuse", Outcome::Refuse},
                                  {"unsupported", Outcome::Unsupported},
                                  {"network-timeout", Outcome::NetworkTimeout},
                                  {"silence", Outcome::Silence},
                                  {"device-timeout", Outcome::DeviceTimeout},
                                  {"no-device", Outcome::NoDevice}};

const Key<Scenario> NetworkKeys[] = {
    {"Operator",
     [](const ScenarioValue &v, Scenario &s) { s.operatorName = v.name(MaxOperatorBytes); }},
    {"IMSI", [](const ScenarioValue &v, Scenario &s) { s.imsi = v.imsi(); }},
    {"Signal", [](const ScenarioValue &v, Scenario &s) { s.signalPercent = v.number(0, 100); }},
    {"State", [](const ScenarioValue &v, Scenario &s) { s.state = v.word(DeviceStates); }},
    {"Delay", [](const ScenarioValue &v, Scenario &s) { s.delay = v.milliseconds(); }},
    {"SMS", [](const ScenarioValue &v, Scenario &s) { s.smsReady = v.word(SmsReadiness); }},
    {"Balance", [](const ScenarioValue &v, Scenario &s) { s.balance = v.amount(); }},
    {"Currency",
     [](const ScenarioValue &v, Scenario &s) { s.currency = v.name(MaxCurrencyBytes); }},
};

const Key<Rule> RuleKeys[] = {
    {"Reply", [](const ScenarioValue &v, Rule &r) { r.reply = v.text(); }},
    {"Outcome", [](const ScenarioValue &v, Rule &r) { r.outcome = v.word(Outcomes); }},
    {"Goto", [](const ScenarioValue &v, Rule &r) { r.goTo = v.text(); }},
    {"Delay", [](const ScenarioValue &v, Rule &r) { r.delay = v.milliseconds(); }},
    {"Credit", [](const ScenarioValue &v, Rule &r) { v.credit(r); }},
    {"NotEnough", [](const ScenarioValue &v, Rule &r) { r.notEnough = v.text(); }},
    {"Digits", [](const ScenarioValue &v, Rule &r) { v.digits(r.fewestDigits, r.mostDigits); }},
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

const Key<PushTarget> PushKeys[] = {
    {"After", [](const ScenarioValue &v, PushTarget &p) { p.push.after = v.milliseconds(); }},
    {"Reply", [](const ScenarioValue &v, PushTarget &p) { p.rule.reply = v.text(); }},
};

const Key<SmsRule> SmsKeys[] = {
    {"Result", [](const ScenarioValue &v, SmsRule &r) { r.result = v.number(0, 65535); }},
    {"Delay", [](const ScenarioValue &v, SmsRule &r) { r.delay = v.milliseconds(); }},
};

const Key<TimedEvent> EventKeys[] = {
    {"After", [](const ScenarioValue &v, TimedEvent &e) { e.after = v.milliseconds(); }},
    {"Every", [](const ScenarioValue &v, TimedEvent &e) { e.every = v.milliseconds(); }},
    {"SMS", [](const ScenarioValue &v, TimedEvent &e) { e.smsReady = v.word(SmsReadiness); }},
    {"Signal", [](const ScenarioValue &v, TimedEvent &e) { e.signalPercent = v.number(0, 100); }},
    {"State", [](const ScenarioValue &v, TimedEvent &e) { e.state = v.word(DeviceStates); }},
    {"DeviceEvent", [](const ScenarioValue &v, TimedEvent &e) { e.deviceEvent = v.deviceEvent(); }},
    {"Away", [](const ScenarioValue &v, TimedEvent &e) { e.away = v.away(); }},
};

template <typename T, std::size_t N>
void readKeys(const KeyFileGroup &group, const Key<T> (&keys)[N], T &target, Complaints &complaints)
{
    std::vector<std::string> names;
    for (const Key<T> &key : keys)
        names.push_back(key.name);
    for (const KeyFileEntry &entry : group.entries) {
        const auto isIt = [&entry](const Key<T> &key) { return entry.key == key.name; };
        const auto key = std::find_if(std::begin(keys), std::end(keys), isIt);
        if (key == std::end(keys))
            complaints.add(entry.line,
                           "unknown key " + entry.key + "; expected " + enumerate(names));
        else
            key->read(ScenarioValue(entry, complaints), target);
    }
}

/* ---- what a group's name says ------------------------------------------------------------ */

enum class GroupKind { Network, Sms, Push, Event, Code, Answer, Unknown };

const char SmsPrefix[] = "SMS ";
const char PushPrefix[] = "Push ";
const char EventPrefix[] = "Event ";

/// The characters of a code, with at most one %s.
bool isCodeOrPattern(const std::string &name)
{
    std::string rest = name;
    const std::size_t place = rest.find(AnyDigits);
    if (place != std::string::npos)
        rest.replace(place, sizeof AnyDigits - 1, "0");
    return hasFormOfCode(name) && rest.find_first_not_of("0123456789*#") == std::string::npos;
}

bool isSmsNumber(const std::string &text)
{
    return isDigits(startsWith(text, "+") ? text.substr(1) : text);
}

bool isPushOrCode(const std::string &name)
{
    return isCodeOrPattern(name) ||
           (startsWith(name, PushPrefix) && name.size() > sizeof PushPrefix - 1);
}

GroupKind kindOf(const std::string &name)
{
    if (name == "Network")
        return GroupKind::Network;
    if (name == "SMS" || (startsWith(name, SmsPrefix) && isSmsNumber(name.substr(4))))
        return GroupKind::Sms;
    if (startsWith(name, EventPrefix) && name.size() > sizeof EventPrefix - 1)
        return GroupKind::Event;
    const std::size_t slash = name.find('/');
    if (!isPushOrCode(name.substr(0, slash)))
        return GroupKind::Unknown;
    if (slash != std::string::npos)
        return GroupKind::Answer;
    return startsWith(name, PushPrefix) ? GroupKind::Push : GroupKind::Code;
}

/// The group that an answer group belongs to: "*123#/1" for "*123#/1/2".
std::string menuOf(const std::string &answerGroup)
{
    return answerGroup.substr(0, answerGroup.rfind('/'));
}

bool hasPattern(const std::string &group)
{
    return group.substr(0, group.find('/')).find(AnyDigits) != std::string::npos;
}

std::string bracketed(const std::string &group)
{
    return "[" + group + "]";
}

/* ---- one group after the other ----------------------------------------------------------- */

/** Reads the groups into a scenario; what one group asks of another is left to the RuleCheck. */
class GroupReader
{
public:
    GroupReader(Scenario &scenario, Complaints &complaints)
        : m_scenario(scenario), m_complaints(complaints)
    {
    }

    void readNetwork(const std::vector<KeyFileGroup> &groups)
    {
        const auto isIt = [](const KeyFileGroup &group) { return group.name == "Network"; };
        const auto network = std::find_if(groups.begin(), groups.end(), isIt);
        if (network == groups.end()) {
            m_complaints.add(1, "expected a group [Network] with Operator= and IMSI=");
            return;
        }
        readKeys(*network, NetworkKeys, m_scenario, m_complaints);
        require(*network, "Operator");
        require(*network, "IMSI");
    }

    void read(const KeyFileGroup &group)
    {
        switch (kindOf(group.name)) {
        case GroupKind::Network:
            break; // read before all others, which take their delay from it
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
        readKeys(group, SmsKeys, rule, m_complaints);
        m_scenario.smsRules[group.name == "SMS" ? std::string() : group.name.substr(4)] = rule;
    }

    void readPush(const KeyFileGroup &group)
    {
        PushTarget target;
        target.push.group = group.name;
        readKeys(group, PushKeys, target, m_complaints);
        require(group, "After");
        require(group, "Reply");
        m_scenario.pushes.push_back(target.push);
        m_scenario.rules[group.name] = target.rule;
    }

    void readEvent(const KeyFileGroup &group)
    {
        TimedEvent event;
        readKeys(group, EventKeys, event, m_complaints);
        require(group, "After");
        const bool doesSomething =
            event.smsReady || event.signalPercent || event.state || event.deviceEvent;
        if (!doesSomething)
            m_complaints.add(group.line, bracketed(group.name) +
                                             ": expected SMS, Signal, State or DeviceEvent");
        if (event.every && event.every->count() == 0)
            m_complaints.add(group.find("Every")->line, "Every: expected more than 0 milliseconds");
        m_scenario.events.push_back(event);
    }

    void readRule(const KeyFileGroup &group)
    {
        Rule rule;
        rule.delay = m_scenario.delay;
        readKeys(group, RuleKeys, rule, m_complaints);
        m_scenario.rules[group.name] = rule;
    }

    Scenario &m_scenario;
    Complaints &m_complaints;
};

/* ---- what must fit together -------------------------------------------------------------- */

/** Checks one rule's keys against each other and against the rest of the scenario. */
class RuleCheck
{
public:
    RuleCheck(const Scenario &scenario, const KeyFileGroup &group, Complaints &complaints)
        : m_scenario(scenario), m_group(group), m_rule(scenario.rules.at(group.name)),
          m_complaints(complaints)
    {
    }

    void run()
    {
        checkOutcome();
        checkGoto();
        checkDigits();
        checkCredit();
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

    /// A key that means something only in certain groups.
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
        allow("Reply", replies, "with Outcome=reply");
        allow("Goto", replies, "with Outcome=reply");
        allow("Credit", replies, "with Outcome=reply");
        allow("Outcome", !has("DeviceEvent"), "without DeviceEvent");
        allow("Away", has("DeviceEvent"), "with DeviceEvent");
    }

    void checkGoto()
    {
        if (!has("Goto"))
            return;
        if (m_group.entries.size() > 1)
            complain("expected no other key beside Goto");
        const auto target = m_scenario.rules.find(m_rule.goTo);
        const int line = m_group.find("Goto")->line;
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

    /// Where an answer stands among the other groups.
    void checkPlace()
    {
        if (kindOf(m_group.name) != GroupKind::Answer)
            return;
        const std::string menu = menuOf(m_group.name);
        const std::string answer = m_group.name.substr(menu.size() + 1);
        const auto rule = m_scenario.rules.find(menu);
        if (rule == m_scenario.rules.end())
            complain("expected a group " + bracketed(menu) + ", which this is an answer to");
        else if (rule->second.outcome != Outcome::Reply || !rule->second.goTo.empty())
            complain("expected a Reply in " + bracketed(menu) + ", which this is an answer to");
        const bool isPlain = !answer.empty() && answer.find('%') == std::string::npos;
        if ((!isPlain && answer != AnyAnswer) || hasFormOfCode(answer))
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
        std::vector<std::string> shown;
        for (const std::string &name : known)
            shown.push_back("{" + name + "}");
        const std::string expected = std::string(key) + ": expected " + enumerate(shown) + " here";
        const auto names = placeholderNames(entry->value);
        if (!names)
            m_complaints.add(entry->line, expected + ", or {{ for a brace");
        for (const std::string &name : names.value_or(std::vector<std::string>())) {
            if (std::find(known.begin(), known.end(), name) == known.end())
                m_complaints.add(entry->line, expected + ", found {" + name + "}");
        }
    }

    const Scenario &m_scenario;
    const KeyFileGroup &m_group;
    const Rule &m_rule;
    Complaints &m_complaints;
};

void readGroups(const std::vector<KeyFileGroup> &groups, Scenario &scenario, Complaints &complaints)
{
    GroupReader reader(scenario, complaints);
    reader.readNetwork(groups);
    std::vector<const KeyFileGroup *> readWell; // one mistake shall not look like two
    for (const KeyFileGroup &group : groups) {
        const std::size_t before = complaints.count();
        reader.read(group);
        if (complaints.count() == before && scenario.rules.count(group.name))
            readWell.push_back(&group);
    }
    for (const KeyFileGroup *group : readWell)
        RuleCheck(scenario, *group, complaints).run();
}

/* ---- the file ---------------------------------------------------------------------------- */

/** A file descriptor's owner. */
class OpenFile
{
public:
    explicit OpenFile(const std::string &path)
        : m_descriptor(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    ~OpenFile()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    bool isOpen() const { return m_descriptor >= 0; }

    bool isRegular() const
    {
        struct stat status = {};
        return fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode);
    }

    /// At most `max` bytes; false on an error.
    bool read(std::string &text, std::size_t max)
    {
        text.resize(max);
        std::size_t length = 0;
        ssize_t got = 1;
        while (length < max && got > 0) {
            got = ::read(m_descriptor, &text[length], max - length);
            length += got > 0 ? static_cast<std::size_t>(got) : 0;
        }
        text.resize(length);
        return got >= 0;
    }

private:
    int m_descriptor;
};

std::string systemError()
{
    return std::string("cannot be read: ") + std::strerror(errno);
}

/// Empty on success, else what is wrong.
std::string readText(const std::string &path, std::string &text)
{
    OpenFile file(path);
    if (!file.isOpen())
        return systemError();
    if (!file.isRegular())
        return "expected a regular file";
    if (!file.read(text, MaxFileBytes + 1))
        return systemError();
    return text.size() > MaxFileBytes ? "expected at most 1 MiB" : std::string();
}

} // namespace

ScenarioResult readScenario(const std::string &text, const std::string &file)
{
    Complaints complaints(file);
    Scenario scenario;
    scenario.source = file;
    const std::vector<KeyFileGroup> groups = readKeyFile(text, complaints);
    if (complaints.isEmpty())
        readGroups(groups, scenario, complaints);
    if (complaints.isEmpty())
        return ScenarioResult{std::move(scenario), {}};
    return ScenarioResult{std::nullopt, complaints.sorted()};
}

ScenarioResult readScenarioFile(const std::string &path)
{
    std::string text;
    const std::string problem = readText(path, text);
    if (problem.empty())
        return readScenario(text, path);
    return ScenarioResult{std::nullopt, {Complaint{path, 0, problem}}};
}

} // namespace tksv
