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
 * Decides which backend is the device: the backend that $TKSV_BACKEND or the client selects,
 * otherwise a modem if there is one. The backend is created when it is first needed and can be
 * replaced at any time.
 *
 * Locks: m_switchMutex is held while a backend is replaced. It is taken before every lock of the
 * session, the backends and the services; m_mutex is taken after all of these. The watch's thread
 * takes only m_mutex. reconsider() needs m_switchMutex, which it may have to wait for, so it runs
 * on the thread of m_tasks.
 */
class BackendChoice
{
public:
    /// The observer must outlive this object. stop() must be called before the destructor runs.
    explicit BackendChoice(BackendObserver &observer);
    BackendChoice(const BackendChoice &) = delete;
    BackendChoice &operator=(const BackendChoice &) = delete;

    /// Returns the backend in use. The first call creates the backend.
    std::shared_ptr<Backend> backend();
    /// Returns the backend in use, or null before the first call of backend() or of a use function.
    std::shared_ptr<Backend> current() const;

    /// Switches to the network of a scenario file. An empty path selects the initial scenario.
    /// Returns an empty text on success, otherwise the complaints about the file.
    std::string useScenario(const std::string &path);
    /// Switches to a modem. An empty identifier selects the modem that was found first.
    void useModem(const std::string &equipmentId);
    /// Switches back to the choice that the program started with.
    void useAutomatic();
    /// Looks for ModemManager and its modems again, unless the program uses only the simulator.
    void lookAgain();
    /// Returns the modems that ModemManager has found, the oldest first.
    std::vector<ModemSummary> modems() const { return m_watch.modems(); }

    /// Stops the backend and all threads. A backend that is created later refuses every request.
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
