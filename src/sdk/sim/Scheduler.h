#ifndef TKSV_INTERNAL_SCHEDULER_H
#define TKSV_INTERNAL_SCHEDULER_H

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>

#include "../base/WorkerThread.h"
#include "SimulatorClock.h"

namespace Tksv
{

/**
 * Runs tasks after a delay, one after another, on a separate thread. The thread is started by the
 * first task. Tasks that are due at the same time run in the order in which they were scheduled.
 */
class Scheduler
{
public:
    Scheduler();
    ~Scheduler();
    Scheduler(const Scheduler &) = delete;
    Scheduler &operator=(const Scheduler &) = delete;

    /// Schedules the task. May be called from any thread. Does nothing after stop().
    void after(std::chrono::milliseconds delay, std::function<void()> task);
    /// Drops the pending tasks and waits for a running task. Must not be called from inside a task.
    void stop();
    /// Makes the thread read the clock again. Must be called after the clock has jumped.
    void recheckClock();

private:
    using Time = SimulatorClock::Time;
    void run();
    void waitUntil(Time due, std::unique_lock<std::mutex> &lock);

    std::mutex m_mutex; // guards all members below; not held while a task runs
    std::condition_variable m_wake;
    std::multimap<Time, std::function<void()>> m_tasks;
    bool m_stopping = false;
    WorkerThread m_thread;
};

} // namespace Tksv

#endif
