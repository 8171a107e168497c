#ifndef TKSV_INTERNAL_SCENARIO_H
#define TKSV_INTERNAL_SCENARIO_H

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tksv_device.h"

/* The simulated network of one operator as plain values; see docs/scenario-file.md. */

namespace Tksv
{

using Milliseconds = std::chrono::milliseconds;

/// An amount of money, in hundredths of the currency's unit.
using Amount = long long;

/// How long a lost device stays away; no value stands for "never comes back".
using AwayTime = std::optional<Milliseconds>;
const Milliseconds DEFAULT_AWAY(3000);

/// The largest number of digits in a code: a request holds as many beside a * and a #.
const int MAX_CODE_DIGITS = TKSV_USSD_MAX_UNITS - 2;

/** What the network does with a request, see docs/scenario-file.md. */
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

/** How the network handles a code, or an answer within a menu. */
struct Rule {
    Outcome outcome = Outcome::Reply;
    std::string reply;
    std::string goTo; // group whose rule applies instead; may be empty
    Milliseconds delay = Milliseconds(0);

    /// Codes with %s: the number of digits allowed, and the reply when there are more or fewer.
    std::size_t minDigits = 1;
    std::size_t maxDigits = MAX_CODE_DIGITS;
    std::string wrongDigits;

    /// The change of the balance: `credit`, plus `creditDigits` (1, 0 or -1) times the digits in
    /// whole units.
    Amount credit = 0;
    int creditDigits = 0;
    std::string notEnough; // the reply when the balance does not suffice

    int deviceEvent = 0;
    AwayTime away = DEFAULT_AWAY;
};

/** How the network handles short messages to a number. */
struct SmsRule {
    int result = 0; // of TKSV_SMSSendResult
    Milliseconds delay = Milliseconds(0);
};

/** An event of the device at a fixed time. */
struct TimedEvent {
    Milliseconds after = Milliseconds(0);
    std::optional<Milliseconds> every;
    std::optional<bool> smsReady;
    std::optional<int> signalPercent;
    std::optional<TKSV_DeviceState> state;
    int deviceEvent = 0;
    AwayTime away = DEFAULT_AWAY;
};

/** Text that the network sends of its own accord, by the rule of the group. */
struct Push {
    Milliseconds after = Milliseconds(0);
    std::string group;
};

/** A scenario file. */
struct Scenario {
    std::string source; // path of the file
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
    std::map<std::string, SmsRule> smsRules; // by number; the empty number is for all others
    std::vector<TimedEvent> events;
    std::vector<Push> pushes;
};

const char ANY_DIGITS[] = "%s"; // stands for digits in a code
const char ANY_ANSWER[] = "%s"; // stands for any other answer

/** The rule that matches a text of the client. */
struct Match {
    std::string group;  // empty when no rule matches
    std::string digits; // that %s stands for
};

/// Returns the group with exactly this code, or else the longest pattern that matches.
Match findCode(const Scenario &scenario, const std::string &code);
/// Returns the group of exactly this answer, or else the group of ANY_ANSWER.
Match findAnswer(const Scenario &scenario, const std::string &menu, const std::string &answer);
/// Returns whether the group has answers, so that its reply leaves the session open.
bool isMenu(const Scenario &scenario, const std::string &group);
/// Returns the rule for the number, or else the rule for all other numbers.
SmsRule findSms(const Scenario &scenario, const std::string &number);

/// Returns the digits that %s stands for, or nothing when the code does not match the pattern.
std::optional<std::string> matchPattern(const std::string &pattern, const std::string &code);

/** The values of the {names} in a reply. */
using Placeholders = std::map<std::string, std::string>;

/// Returns the text with each {name} replaced by its value, and {{ by {.
std::string expand(const std::string &text, const Placeholders &values);
/// Returns the names in the text, or nothing when a { is neither {{ nor the start of a {name}.
std::optional<std::vector<std::string>> placeholderNames(const std::string &text);

/// Returns "12.50", or "12.50 EUR" with a currency.
std::string formatAmount(Amount amount, const std::string &currency);

} // namespace Tksv

#endif
