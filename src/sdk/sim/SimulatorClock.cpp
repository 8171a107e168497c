#include "SimulatorClock.h"

#include <atomic>
#include <mutex>
#include <set>

#include "Scheduler.h"

namespace tksv
{

namespace
{

SimulatorClock::Time systemTime()
{
    return std::chrono::steady_clock::now();
}

std::atomic<SimulatorClock::Source> g_source(&systemTime);

/** Never destroyed: a network may outlive the static objects of this library. */
struct Living {
    std::mutex mutex; // taken before a scheduler's own
    std::set<Scheduler *> schedulers;
};

Living &living()
{
    static Living *const instance = new Living;
    return *instance;
}

} // namespace

SimulatorClock::Time SimulatorClock::now()
{
    return g_source.load()();
}

void SimulatorClock::setSource(Source source)
{
    g_source = source ? source : &systemTime;
}

void SimulatorClock::tellOfJump()
{
    const std::lock_guard<std::mutex> lock(living().mutex);
    for (Scheduler *scheduler : living().schedulers)
        scheduler->lookAgain();
}

void SimulatorClock::add(Scheduler *scheduler)
{
    const std::lock_guard<std::mutex> lock(living().mutex);
    living().schedulers.insert(scheduler);
}

void SimulatorClock::remove(Scheduler *scheduler)
{
    const std::lock_guard<std::mutex> lock(living().mutex);
    living().schedulers.erase(scheduler);
}

} // namespace tksv
