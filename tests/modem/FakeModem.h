#ifndef MODEM_FAKEMODEM_H
#define MODEM_FAKEMODEM_H

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "LoopThread.h"
#include "Misbehaviour.h"
#include "ModemSettings.h"
#include "sim/Scenario.h"
#include "SmsPdu.h"

namespace modem
{

class ModemCore;

/**
 * An AT modem on a unix socket, with a simulated network behind it. It speaks what a daemon expects
 * of a real one (3GPP TS 27.007, 27.005, 23.040), misbehaves on command, and records all that it
 * was sent. It answers at once, on a thread of its own.
 *
 * How the outcomes of a scenario look on the line: a refusal is +CUSD: 2, `unsupported` 4 and
 * `network-timeout` 5; at `silence` nothing follows the OK; at `device-timeout` even the OK stays
 * away; `no-device` is +CME ERROR: 30. A device that goes away hangs up and does not listen until
 * it is back. `sim-locked` asks for the PIN of the settings, `disabled` refuses +CFUN=1 and
 * registers nowhere. A device
 * that cannot send SMS from the beginning has no +CNMI; one that can no more loses its network.
 *
 * Any thread may call.
 */
class FakeModem
{
public:
    /// Whether the times of the scenario count at once or from startClock() on, which serves tests
    /// in which the daemon is to find the modem first. Until then commands find no network.
    enum class Clock { Running, Stopped };

    /// `port` is a path, or an abstract name that begins with "abstract:".
    explicit FakeModem(const std::string &port, const ModemSettings &settings = ModemSettings());
    ~FakeModem();
    FakeModem(const FakeModem &) = delete;
    FakeModem &operator=(const FakeModem &) = delete;

    const std::string &port() const { return m_port; }

    /// Another network, and a SIM for it; what was on its way is forgotten. A daemon reads the SIM
    /// when the modem is plugged in again.
    void useScenario(Tksv::Scenario scenario, Clock clock = Clock::Running);
    void startClock();

    /// Listens on the port. Empty on success, else why it cannot.
    std::string plugIn();
    void unplug();
    /// False while the scenario's device is away.
    bool isPresent() const;
    /// Called on the modem's thread when the scenario does something to the hardware. With a
    /// handler it is the handler's owner who then calls unplug() and plugIn().
    void onPlugChange(std::function<void(PlugChange)> handler);

    // ---- misbehaviour
    void misbehave(const Misbehaviour &misbehaviour);
    void behave();               ///< forgets faults, pieces and held replies
    void setPieces(bool pieces); ///< bytes go out one by one
    void hangUp();               ///< the daemon can open the port again
    void holdReplies(bool hold); ///< +CUSD lines wait until `false`
    void say(const std::string &line);
    void sayUssd(int type, const std::string &text);
    void receiveSms(const std::string &pdu); ///< SMS-DELIVER in hex digits

    // ---- what it was sent
    std::vector<std::string> received() const;
    std::vector<SubmittedSms> submitted() const;
    int timesReceived(const std::string &start) const;
    /// Whether so many commands with that beginning have come within ten seconds.
    bool waitForCommand(const std::string &start, int times = 1) const;
    void forgetReceived();

private:
    void plugChanged(PlugChange change);
    int count(const std::string &start) const;

    const std::string m_port;
    mutable std::mutex m_mutex; // guards the three below
    mutable std::condition_variable m_came;
    std::vector<std::string> m_received;
    std::vector<SubmittedSms> m_submitted;
    std::function<void(PlugChange)> m_plugHandler; // on the modem's thread only
    std::unique_ptr<LoopThread> m_thread;
    std::unique_ptr<ModemCore> m_core; // on the modem's thread only
};

} // namespace modem

#endif
