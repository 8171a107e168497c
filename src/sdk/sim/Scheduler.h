#ifndef TKSV_INTERNAL_SCHEDULER_H
#define TKSV_INTERNAL_SCHEDULER_H

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>

#include "../base/WorkerThread.h"
#include "SimulatorClock.h"

namespace tksv
{

/**
 * Runs tasks after their delays, one after the other, on a thread of its own that starts with the
 * first task. Tasks of the same time run in the order in which they were given.
 */
class Scheduler
{
public:
    Scheduler();
    ~Scheduler();
    Scheduler(const Scheduler &) = delete;
    Scheduler &operator=(const Scheduler &) = delete;

    void after(std::chrono::milliseconds delay, std::function<void()> task);
    /// Drops the tasks that wait and returns when none is running. Not to be called by a task.
    void stop();
    /// The clock has jumped.
    void lookAgain();

private:
    using Time = SimulatorClock::Time;
    void run();
    void waitUntil(Time due, std::unique_lock<std::mutex> &lock);

    std::mutex m_mutex; // guards everything below; not held while a task runs
    std::condition_variable m_wake;
    std::multimap<Time, std::function<void()>> m_tasks;
    bool m_stopping = false;
    WorkerThread m_thread;
};

} // namespace tksv

#endif
