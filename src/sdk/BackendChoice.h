#ifndef TKSV_INTERNAL_BACKENDCHOICE_H
#define TKSV_INTERNAL_BACKENDCHOICE_H

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "base/Backend.h"
#include "EventService.h"
#include "modemmanager/ModemWatch.h"
#include "sim/Scenario.h"

namespace tksv
{

class ModemManagerBackend;

/**
 * Which backend is the device: what $TKSV_BACKEND and the client ask for, and otherwise a modem
 * when there is one. It is made on first need and can be exchanged at any time.
 *
 * Locks: m_switchMutex, held while one backend takes the place of another, before all those of the
 * session, the backends and the services; m_mutex is the last of all. The watch's thread takes only
 * the latter: a change that it tells of is looked at on a thread of its own, which may wait for it.
 */
class BackendChoice
{
public:
    /// The observer outlives it. `stop()` comes before the end.
    explicit BackendChoice(BackendObserver &observer);
    BackendChoice(const BackendChoice &) = delete;
    BackendChoice &operator=(const BackendChoice &) = delete;

    std::shared_ptr<Backend> backend();
    /// Null as long as nobody has needed it.
    std::shared_ptr<Backend> current() const;

    /// Empty on success, else the complaints. An empty path takes the initial scenario.
    std::string useScenario(const std::string &path);
    /// An empty identifier: whichever modem comes first.
    void useModem(const std::string &equipmentId);
    void useAutomatic();
    std::vector<ModemSummary> modems() const { return m_watch.modems(); }

    /// At the end of the program; there is no device any more.
    void stop();

private:
    enum class Mode { Automatic, Simulator, ModemManager };

    static Mode initialMode();
    std::shared_ptr<Backend> decide();
    std::shared_ptr<Backend> makeModem(const std::string &equipmentId);
    void replace(const std::shared_ptr<Backend> &next);
    void end(Backend &old);
    void setCurrent(const std::shared_ptr<Backend> &backend);
    void startWatch();
    bool hasLooked() const;
    void reconsider();
    void watchChanged();

    BackendObserver &m_observer;
    const Mode m_initialMode;
    EventService m_thoughts; // whose thread reconsiders
    ModemWatch m_watch;

    std::mutex m_switchMutex; // guards m_mode, m_watching and m_stopped
    Mode m_mode;
    bool m_watching = false;
    bool m_stopped = false;

    std::atomic<bool> m_isPatient{true}; // still waits for ModemManager's first word

    mutable std::mutex m_mutex; // guards what follows
    std::shared_ptr<Backend> m_current;
    std::shared_ptr<ModemManagerBackend> m_modem; // m_current, when it is one
};

} // namespace tksv

#endif
