#include "BackendChoice.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "InitialScenarioPath.h"
#include "modemmanager/ModemManagerBackend.h"
#include "sim/ScenarioReader.h"
#include "sim/SimulatedNetwork.h"
#include "WaitingDevice.h"

namespace Tksv
{

namespace
{

/// The time that BackendChoice waits for a slow ModemManager to list its modems. After this time,
/// BackendChoice selects the simulator.
const std::chrono::milliseconds FIRST_LOOK_LIMIT(2000);

/// The time that the exiting program waits for the backend to be replaced.
const std::chrono::milliseconds EXIT_LIMIT(1000);

/// Returns the scenario of an absent device. It replaces a scenario file that cannot be read.
Scenario absentDevice(const std::string &source)
{
    Scenario scenario;
    scenario.source = source;
    scenario.state = TKSV_DEVICE_ABSENT;
    return scenario;
}

/// Returns the network of the initial scenario. Prints the errors in the file to stderr, because no
/// API function can return them.
std::shared_ptr<SimulatedNetwork> initialNetwork()
{
    const std::string path = initialScenarioPath();
    ScenarioResult result = readScenarioFile(path);
    if (result.scenario)
        return std::make_shared<SimulatedNetwork>(*std::move(result.scenario));
    std::fprintf(stderr, "%s\n", describe(result.complaints).c_str());
    return std::make_shared<SimulatedNetwork>(absentDevice(path));
}

} // namespace

BackendChoice::BackendChoice(BackendObserver &observer)
    : m_observer(observer), m_initialMode(initialMode()), m_tasks("tksv-choice"),
      m_watch([this] { watchChanged(); }), m_mode(m_initialMode)
{
}

BackendChoice::Mode BackendChoice::initialMode()
{
    const char *value = std::getenv("TKSV_BACKEND");
    const std::string name = value ? value : "";
    if (name == "simulator")
        return Mode::Simulator;
    if (name == "modemmanager")
        return Mode::ModemManager;
    if (!name.empty())
        std::fprintf(stderr,
                     "TKSV_BACKEND=%s: expected simulator or modemmanager; taking a modem when "
                     "there is one, otherwise the simulator\n",
                     name.c_str());
    return Mode::Automatic;
}

void BackendChoice::stop()
{
    {
        const std::lock_guard<std::mutex> lock(m_switchMutex);
        m_stopped = true;
        if (const std::shared_ptr<Backend> last = current())
            last->stop();
        if (m_isWatching)
            m_watch.stop();
    }
    m_tasks.stop(EXIT_LIMIT);
}

/* ---- calls from the client --------------------------------------------------------------- */

std::shared_ptr<Backend> BackendChoice::backendOf(const Device &device)
{
    return std::visit([](const auto &kind) -> std::shared_ptr<Backend> { return kind; }, device);
}

BackendChoice::Device BackendChoice::device() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_device;
}

std::shared_ptr<Backend> BackendChoice::current() const
{
    return backendOf(device());
}

std::shared_ptr<Backend> BackendChoice::backend()
{
    if (std::shared_ptr<Backend> made = current())
        return made;
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    if (!current()) {
        start(decide());
        if (m_stopped)
            current()->stop();
    }
    return current();
}

std::string BackendChoice::useScenario(const std::string &path)
{
    ScenarioResult result = readScenarioFile(path.empty() ? initialScenarioPath() : path);
    if (!result.scenario)
        return describe(result.complaints);
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    m_mode = Mode::Simulator;
    if (m_initialMode != Mode::Simulator)
        startWatch(); // the watch provides the modem list
    replace(std::make_shared<SimulatedNetwork>(*std::move(result.scenario)));
    return std::string();
}

void BackendChoice::useModem(const std::string &equipmentId)
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    m_mode = Mode::ModemManager;
    startWatch();
    replace(std::make_shared<ModemManagerBackend>(m_watch, equipmentId));
}

void BackendChoice::useAutomatic()
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    m_mode = m_initialMode;
    replace(decide());
}

/* ---- m_switchMutex is locked in the following functions ---------------------------------- */

BackendChoice::Device BackendChoice::decide()
{
    if (m_mode == Mode::Simulator)
        return initialNetwork();
    startWatch();
    if (m_mode == Mode::ModemManager || !m_watch.modems().empty())
        return std::make_shared<ModemManagerBackend>(m_watch, std::string());
    if (!isFirstLookOver())
        return std::make_shared<WaitingDevice>();
    return initialNetwork();
}

/// Stops the old backend before starting the new one, so that their events never mix. The old
/// request and session end with the old backend. Only a waiting device passes its request on to the
/// new backend.
void BackendChoice::replace(const Device &next)
{
    if (m_stopped)
        return;
    const Device old = device();
    const std::shared_ptr<Backend> oldBackend = backendOf(old);
    const std::shared_ptr<Backend> nextBackend = backendOf(next);
    const auto *const waiting = std::get_if<std::shared_ptr<WaitingDevice>>(&old);
    if (oldBackend && !waiting)
        end(*oldBackend);
    // Report the new status before the new backend can report a change.
    m_observer.smsStatusChanged(nextBackend->info().canSendSms);
    start(next);
    if (waiting)
        (*waiting)->handOver(nextBackend);
    m_observer.infoChanged();
}

void BackendChoice::end(Backend &old)
{
    old.stop(); // also discards a device that the old backend has found in the meantime
    if (old.info().state != TKSV_DEVICE_ABSENT)
        m_observer.deviceLost(TKSV_DEV_EVENT_GONE);
}

void BackendChoice::start(const Device &device)
{
    backendOf(device)->start(m_observer);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_device = device;
}

/// Starts the watch. If the watch is already running, it looks for modems again, because a missing
/// message bus may have become available.
void BackendChoice::startWatch()
{
    if (m_stopped)
        return;
    m_watch.start();
    if (std::exchange(m_isWatching, true))
        return;
    m_watch.thread().post([this] {
        m_watch.thread().after(FIRST_LOOK_LIMIT, [this] {
            m_firstLookTimedOut = true;
            watchChanged();
        });
    });
}

bool BackendChoice::isFirstLookOver() const
{
    return m_firstLookTimedOut || m_watch.state() != ServiceState::Looking;
}

/// Replaces the simulator with a modem that appears. A modem that disappears is not replaced with
/// the simulator, because commands for the real network must not reach a simulated network without
/// the user's knowledge.
void BackendChoice::reconsider()
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    const Device now = device();
    if (m_stopped || m_mode != Mode::Automatic || !backendOf(now))
        return;
    const bool isWaiting = std::holds_alternative<std::shared_ptr<WaitingDevice>>(now);
    const bool isSimulated = std::holds_alternative<std::shared_ptr<SimulatedNetwork>>(now);
    if ((isWaiting && isFirstLookOver()) || (isSimulated && !m_watch.modems().empty()))
        replace(decide());
}

/* ---- called from the watch's thread ------------------------------------------------------ */

void BackendChoice::watchChanged()
{
    const Device now = device();
    if (const auto *const modem = std::get_if<std::shared_ptr<ModemManagerBackend>>(&now))
        (*modem)->modemsChanged();
    m_tasks.post([this] { reconsider(); });
    m_observer.infoChanged();
}

} // namespace Tksv
