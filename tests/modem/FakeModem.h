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

namespace FakeModems
{

class ModemCore;

/**
 * An AT modem on a Unix socket, with a simulated network. The modem uses the protocol that the
 * daemon expects from a real modem (3GPP TS 27.007, 27.005 and 23.040). It misbehaves on request,
 * and records everything that it receives. It answers without delay, from its own thread.
 *
 * The outcomes of a scenario appear on the serial line as follows. A refusal is +CUSD: 2,
 * `unsupported` is +CUSD: 4 and `network-timeout` is +CUSD: 5. With `silence`, nothing follows the
 * OK; with `device-timeout`, even the OK is missing. `no-device` is +CME ERROR: 30. A device that
 * disappears closes the connection and does not listen until it returns. With `sim-locked`, the
 * modem requires the PIN of the scenario. With `disabled`, it refuses +CFUN=1 and does not
 * register. A device that cannot send short messages when the scenario starts does not support
 * +CNMI. A device that can no longer send short messages loses its registration.
 *
 * All functions may be called from any thread.
 */
class FakeModem
{
public:
    /// Determines whether the clock of the scenario starts immediately or in startClock(). If the
    /// clock is stopped, the daemon can find the modem before the first event. Until startClock()
    /// is called, all commands fail because there is no network.
    enum class Clock { Running, Stopped };

    /// `port` is a path, or the name of an abstract socket, which starts with "abstract:".
    explicit FakeModem(const std::string &port, const ModemSettings &settings = ModemSettings());
    ~FakeModem();
    FakeModem(const FakeModem &) = delete;
    FakeModem &operator=(const FakeModem &) = delete;

    const std::string &port() const { return m_port; }

    /// Switches to another network with a matching SIM card, and drops all pending requests. The
    /// daemon reads the new SIM card when the modem is plugged in again.
    void useScenario(Tksv::Scenario scenario, Clock clock = Clock::Running);
    void startClock();

    /// Listens on the port. Returns an empty string on success, otherwise the error.
    std::string plugIn();
    void unplug();
    /// Returns false while the scenario keeps the device away.
    bool isPresent() const;
    /// Sets a handler that is called from the modem's thread when the scenario changes the
    /// hardware. The handler must then call unplug() or plugIn(). If there is no handler, the modem
    /// calls these functions itself.
    void onPlugChange(std::function<void(PlugChange)> handler);

    // ---- misbehaviour
    void misbehave(const Misbehaviour &misbehaviour);
    void behave();               ///< clears all faults and sends held replies
    void setPieces(bool pieces); ///< sends the bytes one at a time
    void hangUp();               ///< closes the connection; the daemon can reopen the port
    void holdReplies(bool hold); ///< holds +CUSD lines back until called with `false`
    void say(const std::string &line);
    void sayUssd(int type, const std::string &text);
    void receiveSms(const std::string &pdu); ///< receives an SMS-DELIVER PDU, given as hex digits

    // ---- received commands
    std::vector<std::string> received() const;
    std::vector<SubmittedSms> submitted() const;
    int timesReceived(const std::string &start) const;
    /// Waits up to ten seconds until at least `times` commands that start with this string have
    /// been received. Returns false if they have not been received by then.
    bool waitForCommand(const std::string &start, int times = 1) const;
    void forgetReceived();

private:
    void plugChanged(PlugChange change);
    int count(const std::string &start) const;

    const std::string m_port;
    mutable std::mutex m_mutex; // guards the next three members
    mutable std::condition_variable m_came;
    std::vector<std::string> m_received;
    std::vector<SubmittedSms> m_submitted;
    std::function<void(PlugChange)> m_plugHandler; // used only on the modem's thread
    std::unique_ptr<LoopThread> m_thread;
    std::unique_ptr<ModemCore> m_core; // used only on the modem's thread
};

} // namespace FakeModems

#endif
