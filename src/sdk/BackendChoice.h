#ifndef TKSV_INTERNAL_BACKENDCHOICE_H
#define TKSV_INTERNAL_BACKENDCHOICE_H

#include <chrono>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "base/Backend.h"
#include "modemmanager/ModemWatch.h"

namespace Tksv
{

class ModemManagerBackend;

/**
 * Selects the backend to use. The environment or the client can select a simulated network or a
 * certain modem. By default, any modem is used. The simulator is used only if it is selected
 * explicitly. The backend is created on demand and can be replaced at any time.
 *
 * Locking: m_switchMutex is held while a backend is replaced. It must be acquired before any lock
 * of the session, the backends and the services. m_mutex must be acquired after all of these locks.
 * The thread of ModemWatch acquires only m_mutex.
 */
class BackendChoice
{
public:
    /// `observer` must outlive this object. Call stop() before destroying this object.
    explicit BackendChoice(BackendObserver &observer);
    BackendChoice(const BackendChoice &) = delete;
    BackendChoice &operator=(const BackendChoice &) = delete;

    /// Returns the current backend. The first call creates the backend.
    std::shared_ptr<Backend> backend();
    /// Returns the current backend, or null before the first call to backend() or a use...()
    /// function.
    std::shared_ptr<Backend> current() const;

    /// Switches to the simulated network of a scenario file. An empty path selects the initial
    /// scenario. Returns an empty string on success, otherwise the errors in the scenario file.
    std::string useScenario(const std::string &path);
    /// Switches to the modem with this identifier. If the identifier is empty, uses the first modem
    /// that is registered, or the first modem found if none is registered.
    void useModem(const std::string &equipmentId);
    /// Switches back to the device that was selected when the program started.
    void useAutomatic();
    /// Searches for ModemManager and its modems again, unless the program uses only the simulator.
    void lookAgain();
    /// Sets how long a request may wait for other programs of the same user. Applies to later
    /// requests.
    void setTurnLimit(std::chrono::milliseconds limit);
    /// Returns the modems that ModemManager has found, oldest first.
    std::vector<ModemSummary> modems() const { return m_watch.modems(); }

    /// Stops the backend and all threads. Backends that are created afterwards reject all requests.
    void stop();

private:
    enum class Kind { Simulator, Modem };

    /// The current backend. If it is a modem, `modem` also points to it; otherwise, `modem` is
    /// null. Both pointers are null until the first backend is created.
    struct Device {
        std::shared_ptr<Backend> backend;
        std::shared_ptr<ModemManagerBackend> modem;
    };

    static Kind initialKind();
    Device device() const;
    Device initialDevice();
    Device modemDevice(const std::string &equipmentId);
    void replace(const Device &next);
    void end(Backend &old);
    void start(const Device &device);
    void startWatch();
    void watchChanged();

    BackendObserver &m_observer;
    const Kind m_initialKind;
    ModemWatch m_watch;

    std::mutex m_switchMutex; // guards the following two members
    bool m_isWatching = false;
    bool m_stopped = false;

    mutable std::mutex m_mutex; // guards m_device
    Device m_device;
};

} // namespace Tksv

#endif
