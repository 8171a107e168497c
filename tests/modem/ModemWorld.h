#ifndef MODEM_MODEMWORLD_H
#define MODEM_MODEMWORLD_H

#include <functional>
#include <gio/gio.h>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "BusConnection.h"
#include "ChildProcess.h"
#include "FakeModem.h"
#include "PolkitStub.h"
#include "PrivateBus.h"

namespace modem
{

/** What the daemon says of a modem. */
struct ModemState {
    std::string object; // its path; empty while there is none
    int state = -1; // of MMModemState: 2 locked, 3 disabled, 6 enabled, 7 searching, 8 registered
    int lock = 0;   // of MMModemLock: 1 none, 2 SIM PIN, 4 SIM PUK
    bool hasUssd = false;
    bool hasMessaging = false;
};
const int STATE_FAILED = -1;
const int STATE_LOCKED = 2;
const int STATE_DISABLED = 3;
const int STATE_ENABLED = 6;
const int STATE_REGISTERED = 8;

/**
 * A real ModemManager with fake modems, apart from the system's: a folder of its own, a private
 * bus, a stub in place of polkit, and the daemon. It sets DBUS_SYSTEM_BUS_ADDRESS for the process,
 * so it is made before anybody connects to the system bus, and there is one at a time. All of it
 * ends with the process, also when that crashes.
 *
 * To be made, and the daemon to be started, on a thread that stays. Functions that wait return
 * false (or an empty text) after ten seconds. No function throws.
 */
class ModemWorld
{
public:
    ModemWorld();
    ~ModemWorld();
    ModemWorld(const ModemWorld &) = delete;
    ModemWorld &operator=(const ModemWorld &) = delete;

    /// Starts bus, stub and daemon. Empty on success, else what went wrong.
    std::string start();
    const std::string &busAddress() const { return m_bus.address(); }
    PolkitStub &polkit() { return *m_polkit; }

    /// A modem in the network of a scenario (its text), known to the daemon as /virtual/<id>. A
    /// later one takes the place of an earlier one with that name. What is wrong, or empty.
    std::string addModem(const std::string &id, const std::string &scenario,
                         const ModemSettings &settings = ModemSettings(),
                         FakeModem::Clock clock = FakeModem::Clock::Running);
    bool hasModem(const std::string &id) const { return m_modems.count(id) != 0; }
    FakeModem &modem(const std::string &id) { return *m_modems.at(id); }

    /// Another network for a modem, which is plugged in again for it, unless its device is away.
    /// What is wrong with the scenario, or empty.
    std::string useScenario(const std::string &id, const std::string &scenario,
                            FakeModem::Clock clock = FakeModem::Clock::Running);

    // ---- the hardware
    void unplug(const std::string &id); ///< returns when the object is gone
    void plugIn(const std::string &id);

    // ---- the daemon
    bool startDaemon(); ///< with the modems that are there
    bool isDaemonRunning();
    void stopDaemon();
    void killDaemon();
    void pauseDaemon(); ///< it hangs, with its name still on the bus; nothing here answers then
    void resumeDaemon();

    ModemState stateOf(const std::string &id);
    /// The modem's object once it has at least that state, failed modems apart; else empty.
    std::string waitForState(const std::string &id, int atLeast);
    /// Waits for the modem and enables it; its object.
    std::string switchOn(const std::string &id);
    /// The same, and waits until it is registered.
    std::string enable(const std::string &id);
    bool switchOff(const std::string &id);
    bool waitUntil(const std::function<bool()> &condition);

    /// The end of the daemon's log, for failed tests.
    std::string logTail();

private:
    bool launchDaemon();
    void announce(const std::string &id);
    void withdraw(const std::string &id);
    void setProfile(const std::string &id, const std::string &port);
    void plugChanged(const std::string &id, PlugChange change);
    VariantPtr managedObjects();
    std::string daemonOwner();

    std::string m_folder;
    std::string m_addressBefore; // of the system bus
    PrivateBus m_bus;
    std::unique_ptr<PolkitStub> m_polkit;
    GDBusConnection *m_connection = nullptr;
    std::mutex m_daemonMutex; // guards the daemon
    ChildProcess m_daemon;    // started on m_thread, with which it would end
    std::map<std::string, std::unique_ptr<FakeModem>> m_modems;
    LoopThread m_thread{"modem-world"};
};

} // namespace modem

#endif
