#include "BackendChoice.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "modemmanager/ModemManagerBackend.h"
#include "ScenarioPlace.h"
#include "sim/ScenarioReader.h"
#include "sim/SimulatedNetwork.h"
#include "WaitingDevice.h"

namespace tksv
{

namespace
{

/// How long a slow ModemManager may take to tell of its modems before the simulator begins.
const std::chrono::milliseconds FIRST_LOOK_LIMIT(2000);

/// How long the program's exit waits for a change that is being made.
const std::chrono::milliseconds EXIT_LIMIT(1000);

const std::uintptr_t ONLY_KEY = 1;

/// A device that is not there, in place of a scenario that cannot be used.
Scenario absentDevice(const std::string &source)
{
    Scenario scenario;
    scenario.source = source;
    scenario.state = TKSV_DEVICE_ABSENT;
    return scenario;
}

/// The scenario that the program starts with; what is wrong with it goes to stderr, since nobody
/// has asked for it in a call that could tell.
Scenario initialScenario()
{
    const std::string path = initialScenarioPath();
    ScenarioResult result = readScenarioFile(path);
    if (result.scenario)
        return *std::move(result.scenario);
    std::fprintf(stderr, "%s\n", describe(result.complaints).c_str());
    return absentDevice(path);
}

} // namespace

BackendChoice::BackendChoice(BackendObserver &observer)
    : m_observer(observer), m_initialMode(initialMode()), m_thoughts("tksv-choice"),
      m_watch([this] { watchChanged(); }), m_mode(m_initialMode)
{
    m_thoughts.add(ONLY_KEY, [this](int, void *) {
        reconsider();
        return true;
    });
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
        if (m_watching)
            m_watch.stop();
    }
    m_thoughts.stop(EXIT_LIMIT);
}

/* ---- the client's wishes ----------------------------------------------------------------- */

std::shared_ptr<Backend> BackendChoice::current() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_current;
}

std::shared_ptr<Backend> BackendChoice::backend()
{
    if (std::shared_ptr<Backend> made = current())
        return made;
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    if (!current()) {
        setCurrent(decide());
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
        startWatch(); // for the list of modems
    replace(std::make_shared<SimulatedNetwork>(*std::move(result.scenario)));
    return std::string();
}

void BackendChoice::useModem(const std::string &equipmentId)
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    m_mode = Mode::ModemManager;
    startWatch();
    replace(makeModem(equipmentId));
}

void BackendChoice::useAutomatic()
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    m_mode = m_initialMode;
    replace(decide());
}

/* ---- m_switchMutex is held from here on --------------------------------------------------- */

std::shared_ptr<Backend> BackendChoice::decide()
{
    if (m_mode == Mode::Simulator)
        return std::make_shared<SimulatedNetwork>(initialScenario());
    startWatch();
    if (m_mode == Mode::ModemManager || !m_watch.modems().empty())
        return makeModem(std::string());
    if (!hasLooked())
        return std::make_shared<WaitingDevice>();
    return std::make_shared<SimulatedNetwork>(initialScenario());
}

std::shared_ptr<Backend> BackendChoice::makeModem(const std::string &equipmentId)
{
    return std::make_shared<ModemManagerBackend>(m_watch, equipmentId);
}

/// The old one is silent before the new one begins, and what it had in hand ends with it.
void BackendChoice::replace(const std::shared_ptr<Backend> &next)
{
    if (m_stopped)
        return;
    const std::shared_ptr<Backend> old = current();
    const auto waiting = std::dynamic_pointer_cast<WaitingDevice>(old);
    if (old && !waiting)
        end(*old);
    m_observer.smsStatusChanged(next->info().canSendSms); // before it tells of a change of its own
    setCurrent(next);
    if (waiting)
        waiting->handOver(next);
    m_observer.infoChanged();
}

void BackendChoice::end(Backend &old)
{
    old.stop(); // one that comes in this moment is gone as well
    if (old.info().state != TKSV_DEVICE_ABSENT)
        m_observer.deviceLost(TKSV_DEV_EVENT_GONE);
}

void BackendChoice::setCurrent(const std::shared_ptr<Backend> &backend)
{
    backend->start(m_observer);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_current = backend;
    m_modem = std::dynamic_pointer_cast<ModemManagerBackend>(backend);
}

/// Also when it runs already: a message bus that was not there may be by now.
void BackendChoice::startWatch()
{
    if (m_stopped)
        return;
    m_watch.start();
    if (std::exchange(m_watching, true))
        return;
    m_watch.thread().post([this] {
        m_watch.thread().after(FIRST_LOOK_LIMIT, [this] {
            m_isPatient = false;
            watchChanged();
        });
    });
}

bool BackendChoice::hasLooked() const
{
    return !m_isPatient || m_watch.state() != ServiceState::Looking;
}

/// A modem that comes takes the simulator's place; one that goes leaves its place empty, since
/// commands meant for the network shall not go to a simulated one unnoticed.
void BackendChoice::reconsider()
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    const std::shared_ptr<Backend> now = current();
    if (m_stopped || m_mode != Mode::Automatic || !now)
        return;
    const bool isModem = std::dynamic_pointer_cast<ModemManagerBackend>(now) != nullptr;
    const bool isWaiting = std::dynamic_pointer_cast<WaitingDevice>(now) != nullptr;
    if (!isModem && (isWaiting ? hasLooked() : !m_watch.modems().empty()))
        replace(decide());
}

/* ---- the watch's thread ------------------------------------------------------------------ */

void BackendChoice::watchChanged()
{
    std::shared_ptr<ModemManagerBackend> modem;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        modem = m_modem;
    }
    if (modem)
        modem->modemsChanged();
    m_thoughts.post(Event());
    m_observer.infoChanged();
}

} // namespace tksv
