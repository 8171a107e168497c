#ifndef TKSV_INTERNAL_MODEMWATCH_H
#define TKSV_INTERNAL_MODEMWATCH_H

#include <chrono>
#include <functional>
#include <libmm-glib/libmm-glib.h>
#include <mutex>
#include <string>
#include <vector>

#include "../base/Backend.h"
#include "AsyncCall.h"
#include "GLibPointers.h"
#include "MainLoopThread.h"
#include "SignalConnections.h"

namespace Tksv
{

/** The properties of a modem that clients can query; see TKSV_Modem. */
struct ModemSummary {
    std::string equipmentId; // never empty
    std::string name;        // manufacturer and model
    TKSV_DeviceState state = TKSV_DEVICE_ABSENT;
};

/**
 * The state of ModemManager. The state is Looking until ModemManager responds for the first time.
 */
enum class ServiceState { Looking, NoBus, NoService, Running };

/** Tracks ModemManager's modems. The object owns the D-Bus thread, which makes all D-Bus calls. */
class ModemWatch
{
public:
    /// Called from the D-Bus thread after a change to the state of the service, to the list of
    /// modems, or to the state or the interfaces of a modem.
    using Changed = std::function<void()>;

    /// The service is considered silent if it does not respond to a ping within `silenceLimit`.
    explicit ModemWatch(Changed changed, std::chrono::milliseconds silenceLimit = SILENCE_LIMIT);
    ModemWatch(const ModemWatch &) = delete;
    ModemWatch &operator=(const ModemWatch &) = delete;

    /// Starts to search for modems and returns immediately. Another call repeats the search if the
    /// bus or the service was not available. Otherwise, it checks whether the service still
    /// responds.
    void start();
    /// Stops the thread and releases all D-Bus objects.
    void stop();

    /// Returns the modems, oldest first. May be called from any thread.
    std::vector<ModemSummary> modems() const;
    /// Returns the state of ModemManager. May be called from any thread.
    ServiceState state() const;
    /// Returns true if ModemManager is running but does not respond. May be called from any thread.
    bool isSilent() const;

    MainLoopThread &thread() { return m_thread; }
    /// Returns the modem with this identifier, or null. An empty identifier selects the first
    /// registered modem, or the first modem if none is registered. May be called only from the
    /// D-Bus thread.
    GObjectPtr<MMObject> find(const std::string &equipmentId) const;
    /// Returns the modem with this D-Bus path, or null. May be called only from the D-Bus thread.
    GObjectPtr<MMObject> findAt(const std::string &path) const;

private:
    static constexpr std::chrono::milliseconds SILENCE_LIMIT{3000};

    void connectToBus();
    void busConnected(GDBusConnection *bus);
    void busClosed();
    void pingService(int triesLeft);
    void startSilenceTimer();
    void setSilent(bool isSilent);
    void modemChanged(GVariant *changed);
    void createManager(int triesLeft);
    void managerCreated(MMManager *manager);
    void refresh();
    std::vector<GObjectPtr<MMObject>> objects() const;
    void setState(ServiceState state);

    MainLoopThread m_thread;
    const Changed m_changed;
    const std::chrono::milliseconds m_silenceLimit;
    const Cancellable m_cancellable; // cancels calls so that stop() does not wait for them
    bool m_started = false;          // used only by start(), which is never called concurrently

    // The following members are used only on the D-Bus thread.
    GObjectPtr<GDBusConnection> m_bus;
    GObjectPtr<MMManager> m_manager;
    bool m_isConnecting = false;
    bool m_isPinging = false;
    unsigned m_pingCount = 0;
    SignalConnections m_signals;
    SignalConnections m_modemSignals;

    mutable std::mutex m_mutex; // guards all members below
    std::vector<ModemSummary> m_modems;
    ServiceState m_state = ServiceState::Looking;
    bool m_isSilent = false;
};

/// Returns true if the object currently has this D-Bus interface. Call this function before you
/// request an interface, because libmm-glib prints a warning to stderr if the interface is missing.
bool hasInterface(MMObject *object, const char *name);

/// Returns the modem's IMEI, or ModemManager's device identifier if the IMEI is unknown.
std::string equipmentIdOf(MMObject *object);
/// Returns the manufacturer and the model of the modem, separated by a blank.
std::string nameOf(MMModem *modem);
/// Returns the state of the modem as a state of the SDK.
TKSV_DeviceState stateOf(MMModem *modem);

} // namespace Tksv

#endif
