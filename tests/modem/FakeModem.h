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
 * A fake AT modem on a Unix socket, with a simulated network. It implements the commands that
 * ModemManager expects from a real modem (3GPP TS 27.007, 27.005 and 23.040). A test can make it
 * misbehave. The modem records everything that it receives, and answers without delay from its own
 * thread.
 *
 * The outcomes in a scenario are translated to AT responses as follows. A refusal is +CUSD: 2,
 * `unsupported` is +CUSD: 4 and `network-timeout` is +CUSD: 5. With `silence`, the modem sends only
 * the OK. With `device-timeout`, it does not even send the OK. `no-device` is +CME ERROR: 30. A
 * device that disappears closes the connection and stops listening until it returns. With
 * `sim-locked`, the modem requires the PIN from the scenario. With `disabled`, it rejects +CFUN=1
 * and does not register. A device that cannot send short messages when the scenario starts does not
 * support +CNMI. A device that later becomes unable to send short messages loses its registration.
 *
 * All functions may be called from any thread.
 */
class FakeModem
{
public:
    /// Specifies whether the scenario's clock starts immediately or in startClock(). A stopped
    /// clock gives the daemon time to find the modem before the first event. Until startClock() is
    /// called, all commands fail because there is no network.
    enum class Clock { Running, Stopped };

    /// `port` is a path, or the name of an abstract socket with the prefix "abstract:".
    explicit FakeModem(const std::string &port, const ModemSettings &settings = ModemSettings());
    ~FakeModem();
    FakeModem(const FakeModem &) = delete;
    FakeModem &operator=(const FakeModem &) = delete;

    const std::string &port() const { return m_port; }
    const std::string &plugin() const { return m_plugin; }

    /// Switches to another network and a matching SIM card, and discards all pending requests. The
    /// daemon reads the new SIM card when the modem is plugged in again.
    void useScenario(Tksv::Scenario scenario, Clock clock = Clock::Running);
    void startClock();

    /// Starts listening on the port. Returns an empty string on success, otherwise an error
    /// message.
    std::string plugIn();
    void unplug();
    /// Returns false while the device is absent in the scenario.
    bool isPresent() const;
    /// Sets a handler that the modem's thread calls when the scenario changes the hardware. The
    /// handler must call unplug() or plugIn(). Without a handler, the modem calls these functions
    /// itself.
    void onPlugChange(std::function<void(PlugChange)> handler);

    // ---- misbehaviour
    void misbehave(const Misbehaviour &misbehaviour);
    void behave();               ///< clears all faults and sends delayed replies
    void setPieces(bool pieces); ///< if true, sends the bytes one at a time
    void hangUp();               ///< closes the connection; the daemon can reopen the port
    void holdReplies(bool hold); ///< if true, delays +CUSD lines until called with `false`
    void say(const std::string &line);
    void sayUssd(int type, const std::string &text);
    void receiveSms(const std::string &pdu); ///< receives an SMS-DELIVER PDU in hexadecimal form

    // ---- received commands
    std::vector<std::string> received() const;
    std::vector<SubmittedSms> submitted() const;
    int timesReceived(const std::string &start) const;
    /// Waits up to ten seconds until at least `times` commands that start with `start` have been
    /// received. Returns false on time-out.
    bool waitForCommand(const std::string &start, int times = 1) const;
    void forgetReceived();

private:
    void plugChanged(PlugChange change);
    int count(const std::string &start) const;

    const std::string m_port;
    const std::string m_plugin;
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
