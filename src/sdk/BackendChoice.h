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
 * Decides which backend is the device: the backend that the environment or the client selects,
 * otherwise a modem. The simulator is used only if it was selected. The backend is created when it
 * is first needed and can be replaced at any time.
 *
 * Locks: m_switchMutex is held while a backend is replaced. It is taken before every lock of the
 * session, the backends and the services; m_mutex is taken after all of these. The watch's thread
 * takes only m_mutex.
 */
class BackendChoice
{
public:
    /// The observer must outlive this object. stop() must be called before this object is
    /// destroyed.
    explicit BackendChoice(BackendObserver &observer);
    BackendChoice(const BackendChoice &) = delete;
    BackendChoice &operator=(const BackendChoice &) = delete;

    /// Returns the current backend. The first call creates the backend.
    std::shared_ptr<Backend> backend();
    /// Returns the current backend, or null before the first call to backend() or a use...()
    /// function.
    std::shared_ptr<Backend> current() const;

    /// Switches to the simulated network of a scenario file. An empty path selects the initial
    /// scenario. Returns an empty string on success, otherwise the error messages for the file.
    std::string useScenario(const std::string &path);
    /// Switches to a modem. An empty identifier selects the first modem that is registered, or the
    /// first modem that was found if none is registered.
    void useModem(const std::string &equipmentId);
    /// Switches back to the device that the program started with.
    void useAutomatic();
    /// Looks for ModemManager and its modems again, unless the program uses only the simulator.
    void lookAgain();
    /// Sets how long each later request may wait for another program of the same user.
    void setTurnLimit(std::chrono::milliseconds limit);
    /// Returns the modems that ModemManager has found, oldest first.
    std::vector<ModemSummary> modems() const { return m_watch.modems(); }

    /// Stops the backend and all threads. A backend that is created later rejects every request.
    void stop();

private:
    enum class Kind { Simulator, Modem };

    /// The backend in use. `modem` is the same backend if it is a modem, otherwise null. Both are
    /// null until the first backend is created.
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
