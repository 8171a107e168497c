#include "TaskQueue.h"

#include <system_error>
#include <utility>

namespace Tksv
{

TaskQueue::TaskQueue(const char *threadName) : m_threadName(threadName) {}

TaskQueue::~TaskQueue()
{
    stop(NO_LIMIT);
}

void TaskQueue::post(Task task)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopping || !start())
        return;
    m_tasks.push_back(std::move(task));
    m_wake.notify_one();
}

bool TaskQueue::isCurrent() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return !m_stopping && m_thread.isCurrent();
}

bool TaskQueue::stop(std::chrono::milliseconds limit)
{
    std::deque<Task> dropped; // destroyed after m_mutex is unlocked
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopping = true;
        m_tasks.swap(dropped);
        m_wake.notify_all();
    }
    return m_thread.finish(limit); // no thread can be started once m_stopping is set
}

/// Starts the thread. Returns false if the system cannot create a thread; the next task then tries
/// again.
bool TaskQueue::start()
{
    if (m_thread.isStarted())
        return true;
    try {
        m_thread.start(m_threadName, [this] { run(); });
    } catch (const std::system_error &) {
        return false;
    }
    return true;
}

void TaskQueue::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (true) {
        m_wake.wait(lock, [this] { return m_stopping || !m_tasks.empty(); });
        if (m_stopping)
            return;
        Task task = std::move(m_tasks.front());
        m_tasks.pop_front();
        lock.unlock();
        task();
        task = nullptr; // destroys the captured objects before m_mutex is locked
        lock.lock();
    }
}

} // namespace Tksv
