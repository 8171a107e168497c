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

namespace FakeModems
{

/** The state of a modem, as reported by the daemon. */
struct ModemState {
    std::string object; // the object path; empty if there is no object
    // MMModemState: 2 = locked, 3 = disabled, 6 = enabled, 7 = searching, 8 = registered.
    int state = -1;
    int lock = 0;                // MMModemLock: 1 = none, 2 = SIM PIN, 4 = SIM PUK
    unsigned allowedModes = 0;   // MMModemMode flags: 2 = 2G, 4 = 3G, 8 = 4G
    unsigned preferredModes = 0; // MMModemMode flags; 0 = none
    bool hasUssd = false;
    bool hasMessaging = false;
};
const int STATE_FAILED = -1;
const int STATE_LOCKED = 2;
const int STATE_DISABLED = 3;
const int STATE_ENABLED = 6;
const int STATE_REGISTERED = 8;

/**
 * A real ModemManager with fake modems, isolated from the system's ModemManager. It consists of a
 * temporary folder, a private bus, a polkit stub and the daemon. Because it sets
 * DBUS_SYSTEM_BUS_ADDRESS for the process, it must be created before anything connects to the
 * system bus. Only one instance may exist at a time. The bus and the daemon end with the process,
 * even if the process crashes.
 *
 * Must be created on a thread that exists for as long as the object. Functions that wait return
 * false or an empty string after ten seconds. The functions do not throw exceptions.
 */
class ModemWorld
{
public:
    ModemWorld();
    ~ModemWorld();
    ModemWorld(const ModemWorld &) = delete;
    ModemWorld &operator=(const ModemWorld &) = delete;

    /// Starts the bus, the polkit stub and the daemon. Returns an empty string on success,
    /// otherwise an error message.
    std::string start();
    const std::string &busAddress() const { return m_bus.address(); }
    PolkitStub &polkit() { return *m_polkit; }

    /// Adds a modem in the network that the scenario describes. The daemon uses the name
    /// /virtual/<id> for the modem. An existing modem with the same name is replaced. Returns an
    /// empty string on success, otherwise an error message.
    std::string addModem(const std::string &id, const std::string &scenario,
                         const ModemSettings &settings = ModemSettings(),
                         FakeModem::Clock clock = FakeModem::Clock::Running);
    bool hasModem(const std::string &id) const { return m_modems.count(id) != 0; }
    FakeModem &modem(const std::string &id) { return *m_modems.at(id); }

    /// Switches a modem to another network. Plugs the modem in again unless it is absent in the new
    /// scenario. Returns the errors in the scenario, or an empty string if there are none.
    std::string useScenario(const std::string &id, const std::string &scenario,
                            FakeModem::Clock clock = FakeModem::Clock::Running);

    // ---- the hardware
    void unplug(const std::string &id); ///< returns after the modem's object has disappeared
    void plugIn(const std::string &id);

    // ---- the daemon
    bool startDaemon(); ///< announces all modems that are plugged in
    bool isDaemonRunning();
    void stopDaemon();
    void killDaemon();
    /// Suspends the daemon, which keeps its bus name. Calls to the daemon do not receive a reply
    /// until resumeDaemon() is called.
    void pauseDaemon();
    void resumeDaemon();

    ModemState stateOf(const std::string &id);
    /// Waits until the modem has reached at least this state. Returns its object path, or an empty
    /// string on time-out. The state of a failed modem is -1.
    std::string waitForState(const std::string &id, int atLeast);
    /// Waits for the modem, enables it and returns its object path.
    std::string switchOn(const std::string &id);
    /// Like switchOn(), but also waits until the modem has registered.
    std::string enable(const std::string &id);
    bool switchOff(const std::string &id);
    bool waitUntil(const std::function<bool()> &condition);

    /// Returns the last lines of the daemon's log, to be printed if a test fails.
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
    std::string m_addressBefore; // the previous address of the system bus
    PrivateBus m_bus;
    std::unique_ptr<PolkitStub> m_polkit;
    GDBusConnection *m_connection = nullptr;
    std::mutex m_daemonMutex; // guards m_daemon
    // The daemon is started on m_thread, because it ends with the thread that started it.
    ChildProcess m_daemon;
    std::map<std::string, std::unique_ptr<FakeModem>> m_modems;
    LoopThread m_thread{"modem-world"};
};

} // namespace FakeModems

#endif
