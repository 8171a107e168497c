#include "Scheduler.h"

#include <utility>

namespace tksv
{

Scheduler::~Scheduler()
{
    stop();
}

void Scheduler::after(std::chrono::milliseconds delay, std::function<void()> task)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopping)
        return;
    if (!m_thread.isStarted())
        m_thread.start("tksv-simulator", [this] { run(); });
    m_tasks.emplace(Clock::now() + delay, std::move(task));
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
    m_thread.finish(NoLimit);
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
        const Clock::time_point due = next->first;
        if (due > Clock::now()) {
            m_wake.wait_until(lock, due);
            continue;
        }
        const std::function<void()> task = std::move(next->second);
        m_tasks.erase(next);
        lock.unlock();
        task();
        lock.lock();
    }
}

} // namespace tksv
