#ifndef TKSV_INTERNAL_SIMULATEDNETWORK_H
#define TKSV_INTERNAL_SIMULATEDNETWORK_H

#include <functional>
#include <map>
#include <mutex>
#include <vector>

#include "../base/Backend.h"
#include "RuleMatching.h"
#include "Scenario.h"
#include "Scheduler.h"

namespace Tksv
{

/** A backend that simulates a device and its operator's network, as described by a scenario. */
class SimulatedNetwork : public Backend
{
public:
    explicit SimulatedNetwork(Scenario scenario);
    ~SimulatedNetwork() override;

    void start(BackendObserver &observer) override;
    void stop() override;
    RequestResult request(RequestToken token, RequestKind kind, const std::string &text) override;
    void endSession() override;
    bool endForeignSession() override { return false; }
    bool sendSms(const SmsMessage &message) override;
    bool sendPin(const std::string &pin) override;
    bool enable() override;
    bool setModes(const TKSV_Modes &modes) override;
    DeviceInfo info() const override;

private:
    /// Calls to the observer, which are made after m_mutex has been unlocked. The observer receives
    /// them in the order of the changes, because only the scheduler's thread makes these calls.
    using Notices = std::vector<std::function<void(BackendObserver &)>>;
    using Change = std::function<void(Notices &)>;

    /** The menu that is waiting for an answer. `group` is empty if there is none. */
    struct OpenMenu {
        std::string group;
        std::string digits; // the digits in the code that opened the session
    };
    struct Request {
        RequestToken token = 0;
        Match match;
        std::string answer; // empty if the request is a code
    };

    void schedule(Milliseconds delay, Change change);
    Match findRule(RequestKind kind, const std::string &text) const;
    Rule ruleFor(const Match &match) const;
    void perform(const Request &request, Notices &notices);
    UssdReply replyTo(const Request &request, const Rule &rule);
    UssdReply textReply(const Request &request, const Rule &rule);
    bool takeCredit(const Rule &rule, const std::string &digits);
    Placeholders placeholders(const Request &request) const;
    void closeSession();

    void push(const std::string &group, Notices &notices);
    void apply(const TimedEvent &event, Notices &notices);
    void setState(TKSV_DeviceState state, Notices &notices);
    void tryPin(const std::string &pin, Notices &notices);
    void loseDevice(int event, AwayTime away, Notices &notices);
    void endSmsInFlight(Notices &notices);
    void notifySmsStatus(bool before, Notices &notices);
    bool isRegistered() const { return m_state == TKSV_DEVICE_REGISTERED; }
    bool isOnlyOn4G() const { return (m_modes & OLDER_MODES) == 0; }
    bool canSendSms() const { return isRegistered() && m_smsReady; }

    const Scenario m_scenario;
    BackendObserver *m_observer = nullptr;

    mutable std::mutex m_mutex; // guards all members below; not held while the observer is called
    bool m_stopped = false;
    TKSV_DeviceState m_state;
    int m_signalPercent;
    bool m_smsReady;
    TKSV_DeviceProblem m_problem = TKSV_PROBLEM_NONE;
    int m_pinRetries;
    unsigned int m_modes; // a combination of TKSV_Mode values
    Amount m_balance;
    RequestToken m_inFlight = 0;
    OpenMenu m_menu;
    std::vector<std::string> m_duePushes; // groups of the messages to send when the session ends
    unsigned m_lastSms = 0;
    std::map<unsigned, SmsMessage> m_smsInFlight;

    Scheduler m_scheduler; // declared last, so that its thread ends first
};

} // namespace Tksv

#endif
