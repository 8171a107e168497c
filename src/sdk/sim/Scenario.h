#ifndef TKSV_INTERNAL_SCENARIO_H
#define TKSV_INTERNAL_SCENARIO_H

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tksv_device.h"

/* The simulated network of an operator, stored in plain value types; see docs/scenario-file.md. */

namespace Tksv
{

using Milliseconds = std::chrono::milliseconds;

/// An amount of money in hundredths of the currency unit.
using Amount = long long;

/// The time for which a lost device is absent. No value means that the device never returns.
using AwayTime = std::optional<Milliseconds>;
const Milliseconds DEFAULT_AWAY(3000);

/// The maximum number of digits in a code. A request also contains a * and a #.
const int MAX_CODE_DIGITS = TKSV_USSD_MAX_UNITS - 2;

/** The network's reaction to a request; see docs/scenario-file.md. */
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

/** The rule that determines how the network handles a code, or an answer to a menu. */
struct Rule {
    Outcome outcome = Outcome::Reply;
    std::string reply;
    std::string goTo; // the group whose rule is applied instead; may be empty
    Milliseconds delay = Milliseconds(0);

    /// The minimum and maximum number of digits in a code with %s, and the reply to a number of
    /// digits outside this range.
    std::size_t minDigits = 1;
    std::size_t maxDigits = MAX_CODE_DIGITS;
    std::string wrongDigits;

    /// The change to the balance: `credit` plus `creditDigits` (1, 0 or -1) times the value of the
    /// digits, in whole currency units.
    Amount credit = 0;
    int creditDigits = 0;
    std::string notEnough; // the reply if the balance is too low

    int deviceEvent = 0;
    AwayTime away = DEFAULT_AWAY;
};

/** The rule that determines how the network handles short messages to a number. */
struct SmsRule {
    int result = 0; // the value of TKSV_SMSSendResult::result
    Milliseconds delay = Milliseconds(0);
};

/** A change to the device at a set time after the start. The change may be repeated. */
struct TimedEvent {
    Milliseconds after = Milliseconds(0);
    std::optional<Milliseconds> every;
    std::optional<bool> smsReady;
    std::optional<int> signalPercent;
    std::optional<TKSV_DeviceState> state;
    int deviceEvent = 0;
    AwayTime away = DEFAULT_AWAY;
};

/** A network-initiated message. Its text comes from the rule of the group. */
struct Push {
    Milliseconds after = Milliseconds(0);
    std::string group;
};

/** The contents of a scenario file. */
struct Scenario {
    std::string source; // path of the scenario file
    std::string operatorName;
    std::string imsi;
    std::string homeNetwork; // MCC and MNC; empty if unknown
    std::string pin = "0000";
    int signalPercent = 75;
    TKSV_DeviceState state = TKSV_DEVICE_REGISTERED;
    Milliseconds delay = Milliseconds(0);
    bool smsReady = true;
    std::optional<Amount> balance;
    std::string currency;

    std::map<std::string, Rule> rules;       // by group: "*123#", "*101*%s#", "*123#/1", "Push 1"
    std::map<std::string, SmsRule> smsRules; // keyed by number; empty key: all other numbers
    std::vector<TimedEvent> events;
    std::vector<Push> pushes;
};

const char ANY_DIGITS[] = "%s"; // placeholder for the digits in a code
const char ANY_ANSWER[] = "%s"; // placeholder for any other answer

/** The values of the {names} in a reply. */
using Placeholders = std::map<std::string, std::string>;

/// Returns the string with each {name} replaced by its value, and each {{ replaced by {.
std::string expand(const std::string &text, const Placeholders &values);
/// Returns the placeholder names in the string. Returns no value if a { is neither part of {{ nor
/// the start of a {name}.
std::optional<std::vector<std::string>> placeholderNames(const std::string &text);

/// Returns the amount as "12.50", or as "12.50 EUR" if `currency` is not empty.
std::string formatAmount(Amount amount, const std::string &currency);

} // namespace Tksv

#endif
