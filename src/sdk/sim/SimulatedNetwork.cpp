#include "SimulatedNetwork.h"

#include <utility>

#include "../base/Text.h"

namespace Tksv
{

namespace
{

const Amount HUNDREDTHS_IN_UNIT = 100;
const int PIN_RETRIES = 3;               // as on real SIMs (ETSI TS 102 221, 9.5.1)
const std::size_t MAX_AMOUNT_DIGITS = 9; // the maximum number of digits in a balance

UssdReply emptyReply(TKSV_Failure reason)
{
    return failedReply(Failure{reason});
}

/// Returns the failure reason for an outcome other than a reply.
TKSV_Failure reasonOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Unsupported:
        return TKSV_FAILURE_NOT_SUPPORTED;
    case Outcome::NetworkTimeout:
        return TKSV_FAILURE_NETWORK_TIMEOUT;
    default:
        return TKSV_FAILURE_ENDED_BY_NETWORK;
    }
}

RequestResult resultFor(Outcome outcome)
{
    switch (outcome) {
    case Outcome::NoDevice:
        return {RequestNoDevice, TKSV_FAILURE_NO_DEVICE};
    case Outcome::DeviceTimeout:
        return {RequestDeviceTimeout, TKSV_FAILURE_NO_ANSWER};
    default:
        return {};
    }
}

Amount creditOf(const Rule &rule, const std::string &digits)
{
    return rule.credit +
           (rule.creditDigits ? rule.creditDigits * std::stoll(digits) : 0) * HUNDREDTHS_IN_UNIT;
}

} // namespace

SimulatedNetwork::SimulatedNetwork(Scenario scenario)
    : m_scenario(std::move(scenario)), m_state(m_scenario.state),
      m_signalPercent(m_scenario.signalPercent), m_smsReady(m_scenario.smsReady),
      m_pinRetries(PIN_RETRIES), m_modes(m_scenario.modes),
      m_balance(m_scenario.balance.value_or(0))
{
}

SimulatedNetwork::~SimulatedNetwork()
{
    stop();
}

void SimulatedNetwork::start(BackendObserver &observer)
{
    m_observer = &observer;
    for (const TimedEvent &event : m_scenario.events)
        schedule(event.after, [this, &event](Notices &notices) { apply(event, notices); });
    for (const Push &due : m_scenario.pushes)
        schedule(due.after, [this, &due](Notices &notices) { push(due.group, notices); });
}

void SimulatedNetwork::stop()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopped = true;
    }
    m_scheduler.stop();
}

RequestResult SimulatedNetwork::request(RequestToken token, RequestKind kind,
                                        const std::string &text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped)
        return {RequestNoDevice, TKSV_FAILURE_NO_DEVICE};
    if (!isRegistered())
        return {RequestNoDevice, refusalOf(m_state)};
    const Request request{token, findRule(kind, text),
                          kind == RequestKind::Answer ? text : std::string()};
    const Rule rule = ruleFor(request.match);
    const RequestResult result = resultFor(rule.outcome);
    if (result.status != RequestAccepted)
        return result;
    m_inFlight = token;
    m_menu = OpenMenu();
    if (rule.outcome != Outcome::Silence)
        schedule(rule.delay, [this, request](Notices &notices) { perform(request, notices); });
    return result;
}

void SimulatedNetwork::endSession()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    closeSession();
}

bool SimulatedNetwork::sendSms(const SmsMessage &message)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || !canSendSms())
        return false;
    const SmsRule rule = findSms(m_scenario, toUtf8(message.number).value_or(std::string()));
    const unsigned id = ++m_lastSms;
    m_smsInFlight[id] = message;
    schedule(rule.delay, [this, id, message, result = rule.result](Notices &notices) {
        if (m_smsInFlight.erase(id))
            notices.push_back([=](BackendObserver &o) { o.smsFinished(message, result); });
    });
    return true;
}

bool SimulatedNetwork::sendPin(const std::string &pin)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || m_state != TKSV_DEVICE_SIM_LOCKED || m_pinRetries == 0)
        return false;
    schedule(m_scenario.delay, [this, pin](Notices &notices) { tryPin(pin, notices); });
    return true;
}

bool SimulatedNetwork::enable()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || m_state != TKSV_DEVICE_DISABLED)
        return false;
    schedule(m_scenario.delay, [this](Notices &notices) {
        if (m_state == TKSV_DEVICE_DISABLED)
            setState(TKSV_DEVICE_REGISTERED, notices);
    });
    return true;
}

bool SimulatedNetwork::setModes(const TKSV_Modes &modes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || m_state < TKSV_DEVICE_DISABLED)
        return false;
    schedule(m_scenario.delay, [this, allowed = modes.allowed](Notices &notices) {
        m_modes = allowed;
        notices.push_back([](BackendObserver &o) { o.infoChanged(); });
    });
    return true;
}

DeviceInfo SimulatedNetwork::info() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    DeviceInfo info;
    info.state = m_state;
    info.canSendSms = canSendSms();
    info.source = m_scenario.source;
    info.isRoaming = isRegistered() && m_scenario.isRoaming;
    if (isRegistered())
        info.operatorName = m_scenario.operatorName;
    if (m_state >= TKSV_DEVICE_DISABLED) { // the SIM has been unlocked
        info.imsi = m_scenario.imsi;
        info.simOperatorCode = m_scenario.homeNetwork;
        info.simOperatorName = m_scenario.operatorName;
    }
    if (m_state == TKSV_DEVICE_SIM_LOCKED) {
        info.problem = m_problem;
        info.pinRetries = m_pinRetries;
    }
    if (m_state >= TKSV_DEVICE_SEARCHING)
        info.signalPercent = m_signalPercent;
    info.modes.current.allowed = m_modes;
    if (isOnlyOn4G())
        info.modes.withOlder.allowed = m_modes | OLDER_MODES;
    return info;
}

/// Schedules the change. The scheduler's thread applies it with m_mutex locked and then notifies
/// the observer.
void SimulatedNetwork::schedule(Milliseconds delay, Change change)
{
    m_scheduler.after(delay, [this, change = std::move(change)] {
        Notices notices;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            change(notices);
        }
        for (const auto &notice : notices)
            notice(*m_observer);
    });
}

/* ---- USSD; must be called with m_mutex locked -------------------------------------------- */

Match SimulatedNetwork::findRule(RequestKind kind, const std::string &text) const
{
    if (kind == RequestKind::NewSession)
        return findCode(m_scenario, text);
    Match match = findAnswer(m_scenario, m_menu.group, text);
    match.digits = m_menu.digits;
    return match;
}

/// Returns the rule of the match, or the rule to which Goto refers. If there is no match, returns a
/// rule that rejects the request.
Rule SimulatedNetwork::ruleFor(const Match &match) const
{
    const auto found = m_scenario.rules.find(match.group);
    if (found == m_scenario.rules.end()) {
        Rule unknown;
        unknown.outcome = Outcome::Refuse;
        unknown.delay = m_scenario.delay;
        return unknown;
    }
    return found->second.goTo.empty() ? found->second : m_scenario.rules.at(found->second.goTo);
}

void SimulatedNetwork::perform(const Request &request, Notices &notices)
{
    if (m_inFlight != request.token)
        return; // the request was replaced or released
    const Rule rule = ruleFor(request.match);
    if (isOnlyOn4G()) {
        m_inFlight = 0;
        notices.push_back([token = request.token](BackendObserver &o) {
            o.ussdReply(token, emptyReply(TKSV_FAILURE_NOT_ON_4G));
        });
        return;
    }
    if (rule.outcome == Outcome::DeviceEvent) {
        loseDevice(rule.deviceEvent, rule.away, notices);
        return;
    }
    m_inFlight = 0;
    const UssdReply reply = replyTo(request, rule);
    notices.push_back([=](BackendObserver &o) { o.ussdReply(request.token, reply); });
    if (reply.type != UssdWaitsForAnswer)
        closeSession();
}

UssdReply SimulatedNetwork::replyTo(const Request &request, const Rule &rule)
{
    if (rule.outcome != Outcome::Reply)
        return failedReply(
            Failure{reasonOf(rule.outcome), false, expand(rule.reply, placeholders(request))});
    const UssdReply reply = textReply(request, rule);
    return reply.text.empty() ? emptyReply(TKSV_FAILURE_ENDED_BY_NETWORK) : reply;
}

/// Returns the reply to the request. The text is empty if the rule does not contain a suitable
/// reply, which means that the network rejects the request.
UssdReply SimulatedNetwork::textReply(const Request &request, const Rule &rule)
{
    const std::string &digits = request.match.digits;
    const bool fits = digits.size() >= rule.minDigits && digits.size() <= rule.maxDigits;
    if (!digits.empty() && request.answer.empty() && !fits)
        return UssdReply{UssdFinal, expand(rule.wrongDigits, placeholders(request))};
    if (!takeCredit(rule, digits))
        return UssdReply{UssdFinal, expand(rule.notEnough, placeholders(request))};
    const auto found = m_scenario.rules.find(request.match.group);
    const std::string &group = found->second.goTo.empty() ? found->first : found->second.goTo;
    if (isMenu(m_scenario, group))
        m_menu = OpenMenu{group, digits};
    const int type = m_menu.group.empty() ? UssdFinal : UssdWaitsForAnswer;
    return UssdReply{type, expand(rule.reply, placeholders(request))};
}

/// Applies the rule's change to the balance. Returns false if the balance is too low.
bool SimulatedNetwork::takeCredit(const Rule &rule, const std::string &digits)
{
    if (rule.creditDigits && digits.size() > MAX_AMOUNT_DIGITS)
        return false;
    const Amount credit = creditOf(rule, digits);
    if (credit < 0 && m_balance + credit < 0)
        return false;
    m_balance += credit;
    return true;
}

Placeholders SimulatedNetwork::placeholders(const Request &request) const
{
    return Placeholders{{"operator", m_scenario.operatorName},
                        {"imsi", m_scenario.imsi},
                        {"balance", formatAmount(m_balance, m_scenario.currency)},
                        {"digits", request.match.digits},
                        {"answer", request.answer}};
}

/// Ends the request and closes the menu. Schedules the network-initiated messages that have been
/// waiting for the end of the session.
void SimulatedNetwork::closeSession()
{
    m_inFlight = 0;
    m_menu = OpenMenu();
    const std::vector<std::string> due = std::exchange(m_duePushes, {});
    for (const std::string &group : due)
        schedule(Milliseconds(0), [this, group](Notices &notices) { push(group, notices); });
}

void SimulatedNetwork::push(const std::string &group, Notices &notices)
{
    if (m_inFlight || !m_menu.group.empty() || !isRegistered()) {
        m_duePushes.push_back(group);
        return;
    }
    const Request request{0, Match{group, std::string()}, std::string()};
    const UssdReply text = replyTo(request, ruleFor(request.match));
    notices.push_back([=](BackendObserver &o) { o.ussdText(text); });
}

/* ---- the device; must be called with m_mutex locked -------------------------------------- */

void SimulatedNetwork::apply(const TimedEvent &event, Notices &notices)
{
    if (event.every)
        schedule(*event.every, [this, &event](Notices &later) { apply(event, later); });
    const bool couldSend = canSendSms();
    m_smsReady = event.smsReady.value_or(m_smsReady);
    m_signalPercent = event.signalPercent.value_or(m_signalPercent);
    notifySmsStatus(couldSend, notices);
    if (event.state)
        setState(*event.state, notices);
    if (event.deviceEvent)
        loseDevice(event.deviceEvent, event.away, notices);
    notices.push_back([](BackendObserver &o) { o.infoChanged(); });
}

void SimulatedNetwork::setState(TKSV_DeviceState state, Notices &notices)
{
    if (state == TKSV_DEVICE_ABSENT) {
        loseDevice(TKSV_DEV_EVENT_GONE, std::nullopt, notices);
        return;
    }
    if (state == m_state)
        return;
    const bool couldSend = canSendSms();
    m_state = state;
    if (const RequestToken failed = isRegistered() ? 0 : m_inFlight) {
        const UssdReply failure = emptyReply(refusalOf(m_state));
        notices.push_back([=](BackendObserver &o) { o.ussdReply(failed, failure); });
    }
    if (!isRegistered())
        endSmsInFlight(notices);
    closeSession();
    notifySmsStatus(couldSend, notices);
    notices.push_back([](BackendObserver &o) { o.infoChanged(); });
}

void SimulatedNetwork::tryPin(const std::string &pin, Notices &notices)
{
    if (m_state != TKSV_DEVICE_SIM_LOCKED || m_pinRetries == 0)
        return;
    if (pin == m_scenario.pin) {
        m_problem = TKSV_PROBLEM_NONE;
        m_pinRetries = PIN_RETRIES;
        setState(TKSV_DEVICE_REGISTERED, notices);
        return;
    }
    m_problem = --m_pinRetries > 0 ? TKSV_PROBLEM_WRONG_PIN : TKSV_PROBLEM_PUK_NEEDED;
    notices.push_back([](BackendObserver &o) { o.infoChanged(); });
}

void SimulatedNetwork::loseDevice(int event, AwayTime away, Notices &notices)
{
    if (m_state == TKSV_DEVICE_ABSENT)
        return;
    const bool couldSend = canSendSms();
    const TKSV_DeviceState before = std::exchange(m_state, TKSV_DEVICE_ABSENT);
    closeSession();
    notices.push_back([=](BackendObserver &o) { o.deviceLost(event); });
    endSmsInFlight(notices);
    notifySmsStatus(couldSend, notices);
    notices.push_back([](BackendObserver &o) { o.infoChanged(); });
    if (!away)
        return;
    schedule(*away, [this, before](Notices &later) {
        if (m_state == TKSV_DEVICE_ABSENT)
            setState(before, later);
    });
}

void SimulatedNetwork::endSmsInFlight(Notices &notices)
{
    for (const auto &sms : m_smsInFlight) {
        const SmsMessage message = sms.second;
        notices.push_back([=](BackendObserver &o) { o.smsFinished(message, SMS_FAILED); });
    }
    m_smsInFlight.clear();
}

void SimulatedNetwork::notifySmsStatus(bool before, Notices &notices)
{
    const bool now = canSendSms();
    if (now != before)
        notices.push_back([=](BackendObserver &o) { o.smsStatusChanged(now); });
}

} // namespace Tksv
