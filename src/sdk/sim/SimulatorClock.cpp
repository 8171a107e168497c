#include "SimulatorClock.h"

#include <atomic>
#include <mutex>
#include <set>

#include "Scheduler.h"

namespace Tksv
{

namespace
{

SimulatorClock::Time systemTime()
{
    return std::chrono::steady_clock::now();
}

std::atomic<SimulatorClock::Source> g_source(&systemTime);

/**
 * All schedulers. The list is never destroyed, because a network may still exist when the library's
 * static objects are destroyed.
 */
struct SchedulerList {
    std::mutex mutex; // locked before the mutex of a scheduler
    std::set<Scheduler *> schedulers;
};

SchedulerList &schedulerList()
{
    static SchedulerList *const instance = new SchedulerList;
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

void SimulatorClock::notifyJump()
{
    const std::lock_guard<std::mutex> lock(schedulerList().mutex);
    for (Scheduler *scheduler : schedulerList().schedulers)
        scheduler->recheckClock();
}

void SimulatorClock::add(Scheduler *scheduler)
{
    const std::lock_guard<std::mutex> lock(schedulerList().mutex);
    schedulerList().schedulers.insert(scheduler);
}

void SimulatorClock::remove(Scheduler *scheduler)
{
    const std::lock_guard<std::mutex> lock(schedulerList().mutex);
    schedulerList().schedulers.erase(scheduler);
}

} // namespace Tksv
