#ifndef TKSV_INTERNAL_MODEMWATCH_H
#define TKSV_INTERNAL_MODEMWATCH_H

#include <functional>
#include <libmm-glib/libmm-glib.h>
#include <mutex>
#include <string>
#include <vector>

#include "AsyncCall.h"
#include "GLibPointers.h"
#include "MainLoopThread.h"
#include "SignalConnections.h"

namespace Tksv
{

/** The properties of a modem that are visible to clients; see TKSV_Modem. */
struct ModemSummary {
    std::string equipmentId; // never empty
    std::string name;        // manufacturer and model
};

/**
 * The state of ModemManager. The state is Looking until ModemManager responds for the first time.
 */
enum class ServiceState { Looking, NoBus, NoService, Running };

/** Tracks ModemManager's modems. The watch owns the only thread that uses D-Bus. */
class ModemWatch
{
public:
    /// Called from the D-Bus thread after each change to the state of ModemManager, to the modem
    /// list or to the interfaces of a modem.
    using Changed = std::function<void()>;

    explicit ModemWatch(Changed changed);
    ModemWatch(const ModemWatch &) = delete;
    ModemWatch &operator=(const ModemWatch &) = delete;

    /// Starts to look for modems and returns immediately. If the connection or ModemManager was
    /// missing, another call tries again.
    void start();
    /// Ends the thread and releases all objects that the thread holds.
    void stop();

    /// Returns the modems, oldest first. May be called from any thread.
    std::vector<ModemSummary> modems() const;
    /// Returns the state of ModemManager. May be called from any thread.
    ServiceState state() const;

    MainLoopThread &thread() { return m_thread; }
    /// Returns the modem with the given identifier, or null. An empty identifier selects the first
    /// modem. May only be called from the D-Bus thread.
    GObjectPtr<MMObject> find(const std::string &equipmentId) const;
    /// Returns the modem with the given D-Bus path, or null. May only be called from the D-Bus
    /// thread.
    GObjectPtr<MMObject> findAt(const std::string &path) const;

private:
    void connectToBus();
    void busConnected(GDBusConnection *bus);
    void busClosed();
    void pingService(int triesLeft);
    void createManager(int triesLeft);
    void managerCreated(MMManager *manager);
    void refresh();
    std::vector<GObjectPtr<MMObject>> objects() const;
    void setState(ServiceState state);

    MainLoopThread m_thread;
    const Changed m_changed;
    const Cancellable m_cancellable; // cancels calls that stop() must not wait for
    bool m_started = false;          // used only by start(), whose calls never overlap

    // The following members are used only on the D-Bus thread.
    GObjectPtr<GDBusConnection> m_bus;
    GObjectPtr<MMManager> m_manager;
    bool m_isConnecting = false;
    bool m_isPinging = false;
    SignalConnections m_signals;

    mutable std::mutex m_mutex; // guards all members below
    std::vector<ModemSummary> m_modems;
    ServiceState m_state = ServiceState::Looking;
};

/// Returns true if the object currently has the given D-Bus interface. libmm-glib prints a warning
/// to stderr if a missing interface is requested.
bool hasInterface(MMObject *object, const char *name);

/// Returns the modem's IMEI, or ModemManager's device identifier if the modem does not report its
/// IMEI.
std::string equipmentIdOf(MMObject *object);
/// Returns the manufacturer and the model.
std::string nameOf(MMModem *modem);

} // namespace Tksv

#endif
