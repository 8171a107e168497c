#ifndef TKSV_INTERNAL_SCENARIO_H
#define TKSV_INTERNAL_SCENARIO_H

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tksv_device.h"

/* What one operator's simulated network does, as plain values; docs/scenario-file.md explains them.
 */

namespace tksv
{

using Milliseconds = std::chrono::milliseconds;

/// Money in hundredths of the currency's unit.
using Amount = long long;

/// How long a device stays away; nothing: for ever.
using AwayTime = std::optional<Milliseconds>;
const Milliseconds DEFAULT_AWAY(3000);

enum class Outcome {
    Reply,
    Refuse,
    Unsupported,
    NetworkTimeout,
    Silence,
    DeviceTimeout,
    NoDevice,
    DeviceEvent
};

/** What the network does with a code, or with an answer within a menu. */
struct Rule {
    Outcome outcome = Outcome::Reply;
    std::string reply;
    std::string goTo; // group whose rule holds instead
    Milliseconds delay = Milliseconds(0);

    /// Codes with %s: how many digits it takes, and the reply when there are more or fewer.
    std::size_t fewestDigits = 1;
    std::size_t mostDigits = 182;
    std::string wrongDigits;

    /// What the balance grows by: `credit`, and `creditDigits` (1, 0 or -1) times the digits.
    Amount credit = 0;
    int creditDigits = 0;
    std::string notEnough; // the reply when the balance would fall below 0

    int deviceEvent = 0;
    AwayTime away = DEFAULT_AWAY;
};

struct SmsRule {
    int result = 0;
    Milliseconds delay = Milliseconds(0);
};

/** Something that happens to the device by itself. */
struct TimedEvent {
    Milliseconds after = Milliseconds(0);
    std::optional<Milliseconds> every;
    std::optional<bool> smsReady;
    std::optional<int> signalPercent;
    std::optional<TKSV_DeviceState> state;
    int deviceEvent = 0;
    AwayTime away = DEFAULT_AWAY;
};

/** Text that the network sends of its own accord: the rule of the same name says which. */
struct Push {
    Milliseconds after = Milliseconds(0);
    std::string group;
};

struct Scenario {
    std::string source; // the file
    std::string operatorName;
    std::string imsi;
    std::string homeNetwork; // MCC and MNC; empty when unknown
    std::string pin = "0000";
    int signalPercent = 75;
    TKSV_DeviceState state = TKSV_DEVICE_REGISTERED;
    Milliseconds delay = Milliseconds(0);
    bool smsReady = true;
    std::optional<Amount> balance;
    std::string currency;

    std::map<std::string, Rule> rules;       // by group: "*123#", "*101*%s#", "*123#/1", "Push 1"
    std::map<std::string, SmsRule> smsRules; // by number; the empty one is for all others
    std::vector<TimedEvent> events;
    std::vector<Push> pushes;
};

const char ANY_DIGITS[] = "%s"; // in a code
const char ANY_ANSWER[] = "%s"; // in place of an answer

/** The rule for something that the client sent. */
struct Match {
    std::string group; // empty when there is none
    std::string digits;
};

/// An exact group first, then the pattern with the most fixed characters.
Match findCode(const Scenario &scenario, const std::string &code);
/// An exact answer first, then ANY_ANSWER.
Match findAnswer(const Scenario &scenario, const std::string &menu, const std::string &answer);
/// Whether answers belong to the group, so that its reply leaves the session open.
bool isMenu(const Scenario &scenario, const std::string &group);
SmsRule findSms(const Scenario &scenario, const std::string &number);

/// The digits that stand for %s, when the code fits the pattern otherwise.
std::optional<std::string> matchPattern(const std::string &pattern, const std::string &code);

/** What {name} stands for in a reply. */
using Placeholders = std::map<std::string, std::string>;

/// The text with each {name} replaced, and {{ by {.
std::string expand(const std::string &text, const Placeholders &values);
/// The names in the text; nothing when a { is neither {{ nor closed by }.
std::optional<std::vector<std::string>> placeholderNames(const std::string &text);

/// "12.50", or "12.50 EUR".
std::string formatAmount(Amount amount, const std::string &currency);

} // namespace tksv

#endif
