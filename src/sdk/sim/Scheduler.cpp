#include "Scheduler.h"

#include <utility>

namespace Tksv
{

Scheduler::Scheduler()
{
    SimulatorClock::add(this);
}

Scheduler::~Scheduler()
{
    SimulatorClock::remove(this);
    stop();
}

void Scheduler::after(std::chrono::milliseconds delay, std::function<void()> task)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopping)
        return;
    if (!m_thread.isStarted())
        m_thread.start("tksv-simulator", [this] { run(); });
    m_tasks.emplace(SimulatorClock::now() + delay, std::move(task));
    m_wake.notify_one();
}

void Scheduler::stop()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopping = true;
        m_tasks.clear();
        m_wake.notify_one();
    }
    m_thread.finish(NO_LIMIT);
}

void Scheduler::recheckClock()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_wake.notify_one();
}

/// Waits for the time remaining until `due`. A test clock affects only this time; the wait itself
/// uses the system clock.
void Scheduler::waitUntil(Time due, std::unique_lock<std::mutex> &lock)
{
    m_wake.wait_for(lock, due - SimulatorClock::now());
}

void Scheduler::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_stopping) {
        if (m_tasks.empty()) {
            m_wake.wait(lock);
            continue;
        }
        const auto next = m_tasks.begin();
        const Time due = next->first;
        if (due > SimulatorClock::now()) {
            waitUntil(due, lock);
            continue;
        }
        const std::function<void()> task = std::move(next->second);
        m_tasks.erase(next);
        lock.unlock();
        task();
        lock.lock();
    }
}

} // namespace Tksv
