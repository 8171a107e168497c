#ifndef TKSV_INTERNAL_SCENARIO_H
#define TKSV_INTERNAL_SCENARIO_H

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tksv_device.h"

/* The simulated network of an operator as plain value types; see docs/scenario-file.md. */

namespace Tksv
{

using Milliseconds = std::chrono::milliseconds;

/// An amount of money in hundredths of the currency unit.
using Amount = long long;

/// The time after which a lost device returns. No value means that the device never returns.
using AwayTime = std::optional<Milliseconds>;
const Milliseconds DEFAULT_AWAY(3000);

/// The maximum number of digits in a code, which also contains at least a * and a #.
const int MAX_CODE_DIGITS = TKSV_USSD_MAX_UNITS - 2;

/** How the network responds to a request; see docs/scenario-file.md. */
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

/** The response to a code or to an answer to a menu, or a network-initiated message. */
struct Rule {
    Outcome outcome = Outcome::Reply;
    std::string reply;
    std::string goTo; // the group whose rule is applied instead; may be empty
    Milliseconds delay = Milliseconds(0);

    /// The allowed number of digits for %s in a code, and the reply to any other number of digits.
    std::size_t minDigits = 1;
    std::size_t maxDigits = MAX_CODE_DIGITS;
    std::string wrongDigits;

    /// The change to the balance: `credit` plus `creditDigits` (1, 0 or -1) times the number that
    /// %s matches. This number is an amount in whole currency units.
    Amount credit = 0;
    int creditDigits = 0;
    std::string notEnough; // the reply if the balance is too low

    int deviceEvent = 0;
    AwayTime away = DEFAULT_AWAY;
};

/** Specifies how the network handles short messages to a number. */
struct SmsRule {
    int result = 0; // value of TKSV_SMSSendResult::result
    Milliseconds delay = Milliseconds(0);
};

/** A change to the device at a specified time after the simulation starts. It may be repeated. */
struct TimedEvent {
    Milliseconds after = Milliseconds(0);
    std::optional<Milliseconds> every;
    std::optional<bool> smsReady;
    std::optional<int> signalPercent;
    std::optional<TKSV_DeviceState> state;
    int deviceEvent = 0;
    AwayTime away = DEFAULT_AWAY;
};

/** A network-initiated message. The rule of its group contains the text. */
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
    bool isRoaming = false;
    unsigned int modes = TKSV_MODE_2G | TKSV_MODE_3G | TKSV_MODE_4G; // allowed at the start
    std::optional<Amount> balance;
    std::string currency;

    std::map<std::string, Rule> rules; // keyed by group: "*123#", "*101*%s#", "*123#/1", "Push 1"
    std::map<std::string, SmsRule> smsRules; // keyed by number; "" applies to all other numbers
    std::vector<TimedEvent> events;
    std::vector<Push> pushes;
};

const char ANY_DIGITS[] = "%s"; // placeholder for the digits in a code
const char ANY_ANSWER[] = "%s"; // placeholder for any other answer

/** The placeholders of a reply and their values. */
using Placeholders = std::map<std::string, std::string>;

/// Returns the string with each {name} replaced by its value and each {{ replaced by {.
std::string expand(const std::string &text, const Placeholders &values);
/// Returns the names of the placeholders in the string, or std::nullopt if a { is neither part of
/// {{ nor the start of a {name}.
std::optional<std::vector<std::string>> placeholderNames(const std::string &text);

/// Returns the amount as "12.50", or as "12.50 EUR" if `currency` is not empty.
std::string formatAmount(Amount amount, const std::string &currency);

} // namespace Tksv

#endif
