#ifndef TKSV_INTERNAL_MODEMWATCH_H
#define TKSV_INTERNAL_MODEMWATCH_H

#include <functional>
#include <libmm-glib/libmm-glib.h>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "AsyncCall.h"
#include "GLibPointers.h"
#include "MainLoopThread.h"
#include "SignalConnections.h"

namespace tksv
{

struct ModemSummary {
    std::string equipmentId; // never empty
    std::string name;        // maker and model
    bool operator==(const ModemSummary &other) const
    {
        return equipmentId == other.equipmentId && name == other.name;
    }
};

enum class ServiceState { Looking, NoBus, NoService, Running };

/** What ModemManager tells of its modems, kept by the one thread that speaks D-Bus. */
class ModemWatch
{
public:
    /// Called on the thread after each change of the service's state, of the list, or of the
    /// interfaces of a modem.
    using Changed = std::function<void()>;

    explicit ModemWatch(Changed changed);
    ModemWatch(const ModemWatch &) = delete;
    ModemWatch &operator=(const ModemWatch &) = delete;

    /// Begins to look for modems; returns at once. A second call looks again for what was not there
    /// before.
    void start();
    /// Ends the thread, and lets go of everything there.
    void stop();

    /// Any thread.
    std::vector<ModemSummary> modems() const;
    ServiceState state() const;

    MainLoopThread &thread() { return m_thread; }
    /// On the thread: the modem of that identifier, or the first one for an empty text; else null.
    GObjectPtr<MMObject> find(const std::string &equipmentId) const;
    /// On the thread: the modem of that D-Bus path; else null.
    GObjectPtr<MMObject> findAt(const std::string &path) const;

private:
    void connectToBus();
    void connected(GDBusConnection *bus);
    void busClosed();
    void askService(int tries);
    void makeManager(int tries);
    void madeManager(MMManager *manager);
    void look();
    std::vector<GObjectPtr<MMObject>> objects() const;
    void setState(ServiceState state);

    MainLoopThread m_thread;
    const Changed m_changed;
    const Cancellable m_cancellable; // of what would keep stop() waiting
    bool m_started = false;          // by the thread of the first start()

    // The thread's own.
    GObjectPtr<GDBusConnection> m_bus;
    GObjectPtr<MMManager> m_manager;
    bool m_isConnecting = false;
    bool m_isAsking = false;
    SignalConnections m_signals;

    mutable std::mutex m_mutex; // guards what follows
    std::vector<ModemSummary> m_modems;
    ServiceState m_state = ServiceState::Looking;
};

/// Whether the object has that D-Bus interface at present; libmm-glib complains on stderr of a
/// question for one that is not there.
bool hasInterface(MMObject *object, const char *name);

/// IMEI, or ModemManager's identifier of the device for a modem that does not tell it.
std::string equipmentIdOf(MMObject *object);
/// Maker and model.
std::string nameOf(MMModem *modem);

} // namespace tksv

#endif
