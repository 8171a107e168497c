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

/** A modem as clients see it, see TKSV_Modem. */
struct ModemSummary {
    std::string equipmentId; // never empty
    std::string name;        // maker and model
};

/** The state of ModemManager; Looking until its first answer. */
enum class ServiceState { Looking, NoBus, NoService, Running };

/** Watches ModemManager's modems. The watch owns the only thread that uses D-Bus. */
class ModemWatch
{
public:
    /// Called on the thread after each change of the service's state, of the list of modems, or of
    /// the interfaces of a modem.
    using Changed = std::function<void()>;

    explicit ModemWatch(Changed changed);
    ModemWatch(const ModemWatch &) = delete;
    ModemWatch &operator=(const ModemWatch &) = delete;

    /// Starts to look for modems, and returns at once. A second call retries a connection or a
    /// service that was missing.
    void start();
    /// Ends the thread and releases everything that the thread holds.
    void stop();

    /// Returns the modems, the oldest first. Any thread may call.
    std::vector<ModemSummary> modems() const;
    /// Any thread may call.
    ServiceState state() const;

    MainLoopThread &thread() { return m_thread; }
    /// Returns the modem with that identifier, the first modem for an empty text, or null. May be
    /// called on the thread only.
    GObjectPtr<MMObject> find(const std::string &equipmentId) const;
    /// Returns the modem with that D-Bus path, or null. May be called on the thread only.
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
    const Cancellable m_cancellable; // for the calls that stop() must not wait for
    bool m_started = false;          // used by start() only, whose calls never overlap

    // Used on the thread only.
    GObjectPtr<GDBusConnection> m_bus;
    GObjectPtr<MMManager> m_manager;
    bool m_isConnecting = false;
    bool m_isPinging = false;
    SignalConnections m_signals;

    mutable std::mutex m_mutex; // guards everything below
    std::vector<ModemSummary> m_modems;
    ServiceState m_state = ServiceState::Looking;
};

/// Returns whether the object has that D-Bus interface now. libmm-glib writes a warning to stderr
/// when it is asked for an interface that is missing.
bool hasInterface(MMObject *object, const char *name);

/// Returns the modem's IMEI, or ModemManager's identifier of the device for a modem that does not
/// report its IMEI.
std::string equipmentIdOf(MMObject *object);
/// Returns maker and model.
std::string nameOf(MMModem *modem);

} // namespace Tksv

#endif
