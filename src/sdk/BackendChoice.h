#ifndef TKSV_INTERNAL_BACKENDCHOICE_H
#define TKSV_INTERNAL_BACKENDCHOICE_H

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <variant>
#include <vector>

#include "base/Backend.h"
#include "base/TaskQueue.h"
#include "modemmanager/ModemWatch.h"

namespace Tksv
{

class ModemManagerBackend;
class SimulatedNetwork;
class WaitingDevice;

/**
 * Selects the backend that represents the device: the backend selected by $TKSV_BACKEND or by the
 * client, otherwise a modem if there is one. The backend is created on first use and can be
 * replaced at any time.
 *
 * Locks: m_switchMutex is held while a backend is replaced. It is locked before every lock of the
 * session, the backends and the services. m_mutex is locked after all of these. The watch's thread
 * locks only m_mutex. reconsider() may have to wait for m_switchMutex, so it runs on the thread of
 * m_tasks.
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
    /// Switches to a modem. An empty identifier selects the modem that was found first.
    void useModem(const std::string &equipmentId);
    /// Restores the choice that was in effect when the program started.
    void useAutomatic();
    /// Returns the modems that ModemManager has found, oldest first.
    std::vector<ModemSummary> modems() const { return m_watch.modems(); }

    /// Stops the backend and all threads. A backend that is created later rejects every request.
    void stop();

private:
    enum class Mode { Automatic, Simulator, ModemManager };

    /// The device, with one alternative for each kind of backend. The pointer is null until the
    /// first backend is created.
    using Device =
        std::variant<std::shared_ptr<SimulatedNetwork>, std::shared_ptr<ModemManagerBackend>,
                     std::shared_ptr<WaitingDevice>>;

    static Mode initialMode();
    static std::shared_ptr<Backend> backendOf(const Device &device);
    Device device() const;
    Device decide();
    void replace(const Device &next);
    void end(Backend &old);
    void start(const Device &device);
    void startWatch();
    bool isFirstLookOver() const;
    void reconsider();
    void watchChanged();

    BackendObserver &m_observer;
    const Mode m_initialMode;
    TaskQueue m_tasks; // runs reconsider()
    ModemWatch m_watch;

    std::mutex m_switchMutex; // guards m_mode, m_isWatching and m_stopped
    Mode m_mode;
    bool m_isWatching = false;
    bool m_stopped = false;

    std::atomic<bool> m_firstLookTimedOut{false};

    mutable std::mutex m_mutex; // guards m_device
    Device m_device;
};

} // namespace Tksv

#endif
