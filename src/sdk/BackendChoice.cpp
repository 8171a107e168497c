#include "BackendChoice.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "InitialScenarioPath.h"
#include "modemmanager/ModemManagerBackend.h"
#include "sim/ScenarioReader.h"
#include "sim/SimulatedNetwork.h"

namespace Tksv
{

namespace
{

/// Returns a scenario without a device. It is used if the scenario file cannot be read.
Scenario absentDevice(const std::string &source)
{
    Scenario scenario;
    scenario.source = source;
    scenario.state = TKSV_DEVICE_ABSENT;
    return scenario;
}

/// Returns the network of the initial scenario. Prints errors in the scenario file to stderr,
/// because the API has no function that could report them.
std::shared_ptr<SimulatedNetwork> initialNetwork()
{
    const std::string path = initialScenarioPath();
    ScenarioResult result = readScenarioFile(path);
    if (result.scenario)
        return std::make_shared<SimulatedNetwork>(*std::move(result.scenario));
    std::fprintf(stderr, "%s\n", describe(result.complaints).c_str());
    return std::make_shared<SimulatedNetwork>(absentDevice(path));
}

/// Returns the value of the environment variable, or an empty string if it is not set.
std::string valueOf(const char *variable)
{
    const char *value = std::getenv(variable);
    return value ? value : "";
}

} // namespace

BackendChoice::BackendChoice(BackendObserver &observer)
    : m_observer(observer), m_initialKind(initialKind()), m_watch([this] { watchChanged(); })
{
}

/// Returns the kind of backend that the environment selects. If $TKSV_BACKEND is not set, a
/// scenario file in $TKSV_SCENARIO selects the simulator.
BackendChoice::Kind BackendChoice::initialKind()
{
    const std::string name = valueOf("TKSV_BACKEND");
    if (name == "simulator")
        return Kind::Simulator;
    if (name.empty())
        return valueOf("TKSV_SCENARIO").empty() ? Kind::Modem : Kind::Simulator;
    if (name != "modemmanager")
        std::fprintf(stderr, "TKSV_BACKEND=%s: expected simulator or modemmanager; using a modem\n",
                     name.c_str());
    return Kind::Modem;
}

void BackendChoice::stop()
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    m_stopped = true;
    if (const std::shared_ptr<Backend> last = current())
        last->stop();
    if (m_isWatching)
        m_watch.stop();
}

/* ---- calls from the client --------------------------------------------------------------- */

BackendChoice::Device BackendChoice::device() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_device;
}

std::shared_ptr<Backend> BackendChoice::current() const
{
    return device().backend;
}

std::shared_ptr<Backend> BackendChoice::backend()
{
    if (std::shared_ptr<Backend> made = current())
        return made;
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    if (!current()) {
        start(initialDevice());
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
    if (m_initialKind != Kind::Simulator)
        startWatch(); // the watch provides the list of modems
    replace({std::make_shared<SimulatedNetwork>(*std::move(result.scenario)), nullptr});
    return std::string();
}

void BackendChoice::useModem(const std::string &equipmentId)
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    replace(modemDevice(equipmentId));
}

void BackendChoice::useAutomatic()
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    replace(initialDevice());
}

void BackendChoice::lookAgain()
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    if (m_initialKind != Kind::Simulator || m_isWatching)
        startWatch();
}

void BackendChoice::setTurnLimit(std::chrono::milliseconds limit)
{
    UssdChannel::setTurnLimit(limit);
}

/* ---- m_switchMutex is locked in the following functions ---------------------------------- */

BackendChoice::Device BackendChoice::initialDevice()
{
    return m_initialKind == Kind::Simulator ? Device{initialNetwork(), nullptr}
                                            : modemDevice(std::string());
}

BackendChoice::Device BackendChoice::modemDevice(const std::string &equipmentId)
{
    startWatch();
    const auto modem = std::make_shared<ModemManagerBackend>(m_watch, equipmentId);
    return {modem, modem};
}

/// Stops the old backend, which ends its session and its request, before starting the new one. The
/// events of the two backends can therefore never mix.
void BackendChoice::replace(const Device &next)
{
    if (m_stopped)
        return;
    if (const std::shared_ptr<Backend> old = current())
        end(*old);
    // Report the new SMS status before the new backend starts and can report a change.
    m_observer.smsStatusChanged(next.backend->info().canSendSms);
    start(next);
    m_observer.infoChanged();
}

void BackendChoice::end(Backend &old)
{
    old.stop(); // also discards a modem that the old backend has found since the call began
    if (old.info().state != TKSV_DEVICE_ABSENT)
        m_observer.deviceLost(TKSV_DEV_EVENT_GONE);
}

void BackendChoice::start(const Device &device)
{
    device.backend->start(m_observer);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_device = device;
}

/// Starts the watch for modems. If it is already running, makes it search again, because the
/// message bus or ModemManager may have become available.
void BackendChoice::startWatch()
{
    if (m_stopped)
        return;
    m_watch.start();
    m_isWatching = true;
}

/* ---- called from the thread of ModemWatch ------------------------------------------------ */

void BackendChoice::watchChanged()
{
    if (const std::shared_ptr<ModemManagerBackend> modem = device().modem)
        modem->modemsChanged();
    m_observer.infoChanged();
}

} // namespace Tksv
