#include "FakeModem.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "ModemCore.h"

namespace FakeModems
{

namespace
{
const std::chrono::seconds COMMAND_LIMIT(10);
}

FakeModem::FakeModem(const std::string &port, const ModemSettings &settings)
    : m_port(port), m_plugin(settings.plugin), m_thread(std::make_unique<LoopThread>("fake-modem"))
{
    ModemNews news;
    news.received = [this](const std::string &line) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_received.push_back(line);
        m_came.notify_all();
    };
    news.submitted = [this](const SubmittedSms &sms) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_submitted.push_back(sms);
    };
    news.plugChanged = [this](PlugChange change) { plugChanged(change); };
    m_thread->call(
        [&] { m_core = std::make_unique<ModemCore>(*m_thread, port, settings, std::move(news)); });
}

/// Stops the thread before the members are destroyed, because delayed answers refer to m_core.
FakeModem::~FakeModem()
{
    unplug();
    m_thread->stop();
    m_core.reset();
}

void FakeModem::useScenario(Tksv::Scenario scenario, Clock clock)
{
    m_thread->call([&] {
        m_core->useNetwork(std::move(scenario));
        if (clock == Clock::Running)
            m_core->startClock();
    });
}

void FakeModem::startClock()
{
    m_thread->call([this] { m_core->startClock(); });
}

std::string FakeModem::plugIn()
{
    std::string complaint;
    m_thread->call([&] { complaint = m_core->plugIn(); });
    return complaint;
}

void FakeModem::unplug()
{
    m_thread->call([this] { m_core->unplug(); });
}

bool FakeModem::isPresent() const
{
    bool present = false;
    m_thread->call([&] { present = m_core->isPresent(); });
    return present;
}

void FakeModem::onPlugChange(std::function<void(PlugChange)> handler)
{
    m_thread->call([&] { m_plugHandler = std::move(handler); });
}

void FakeModem::plugChanged(PlugChange change)
{
    if (m_plugHandler)
        m_plugHandler(change);
    else if (change == PlugChange::Gone || change == PlugChange::Reset)
        m_core->unplug();
    else if (change == PlugChange::Back)
        m_core->plugIn();
}

/* ---- misbehaviour ------------------------------------------------------------------------ */

void FakeModem::misbehave(const Misbehaviour &misbehaviour)
{
    m_thread->call([&] { m_core->misbehaviours().add(misbehaviour); });
}

void FakeModem::behave()
{
    m_thread->call([this] {
        m_core->misbehaviours().clear();
        m_core->setPieces(false);
        m_core->holdReplies(false);
    });
}

void FakeModem::setPieces(bool pieces)
{
    m_thread->call([&] { m_core->setPieces(pieces); });
}

void FakeModem::hangUp()
{
    m_thread->call([this] { m_core->hangUp(); });
}

void FakeModem::holdReplies(bool hold)
{
    m_thread->call([&] { m_core->holdReplies(hold); });
}

void FakeModem::say(const std::string &line)
{
    m_thread->call([&] { m_core->say(line); });
}

void FakeModem::sayUssd(int type, const std::string &text)
{
    m_thread->call([&] { m_core->sayUssd(type, text); });
}

void FakeModem::receiveSms(const std::string &pdu)
{
    m_thread->call([&] { m_core->receiveSms(pdu); });
}

/* ---- received commands ------------------------------------------------------------------- */

std::vector<std::string> FakeModem::received() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_received;
}

std::vector<SubmittedSms> FakeModem::submitted() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_submitted;
}

/// Returns the number of received commands that start with this string. Must be called with m_mutex
/// locked.
int FakeModem::count(const std::string &start) const
{
    return static_cast<int>(
        std::count_if(m_received.begin(), m_received.end(), [&](const std::string &line) {
            return line.compare(0, start.size(), start) == 0;
        }));
}

int FakeModem::timesReceived(const std::string &start) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return count(start);
}

bool FakeModem::waitForCommand(const std::string &start, int times) const
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_came.wait_for(lock, COMMAND_LIMIT, [&] { return count(start) >= times; });
}

void FakeModem::forgetReceived()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_received.clear();
    m_submitted.clear();
}

} // namespace FakeModems
