#include "FakeDispatcher.h"

#include <algorithm>

FakeDispatcher::FakeDispatcher(Report report) : m_report(std::move(report)) {}

FakeDispatcher::~FakeDispatcher()
{
    stop();
}

void FakeDispatcher::add(TKSV_EventCallback callback)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (callback && !isRegistered(callback))
        m_callbacks.push_back(callback);
}

void FakeDispatcher::remove(TKSV_EventCallback callback, bool wait)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_callbacks.erase(std::remove(m_callbacks.begin(), m_callbacks.end(), callback),
                      m_callbacks.end());
    if (!wait || runsHere(callback))
        return;
    m_changed.wait(lock, [this, callback] {
        return std::none_of(m_running.begin(), m_running.end(),
                            [callback](const auto &run) { return run.first == callback; });
    });
}

std::size_t FakeDispatcher::size() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_callbacks.size();
}

void FakeDispatcher::post(Job job, std::chrono::milliseconds delay, bool erasable)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopping)
        return;
    m_waiting.emplace(Clock::now() + delay, Waiting{std::move(job), erasable});
    if (!m_started)
        m_threads.emplace_back([this] { run(); });
    m_started = true;
    m_changed.notify_all();
}

void FakeDispatcher::eraseWaiting()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (auto it = m_waiting.begin(); it != m_waiting.end();)
        it = it->second.erasable ? m_waiting.erase(it) : std::next(it);
    m_changed.notify_all();
}

void FakeDispatcher::runAside(Job job)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopping)
        return;
    ++m_busy;
    m_threads.emplace_back([this, job] {
        job();
        const std::lock_guard<std::mutex> ended(m_mutex);
        --m_busy;
        m_changed.notify_all();
    });
}

void FakeDispatcher::deliver(int event, void *data)
{
    std::vector<TKSV_EventCallback> callbacks;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        callbacks = m_callbacks;
    }
    for (TKSV_EventCallback callback : callbacks)
        deliverTo(callback, event, data);
}

bool FakeDispatcher::waitIdle(Clock::time_point until) const
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_until(lock, until, [this] { return m_waiting.empty() && m_busy == 0; });
}

void FakeDispatcher::stop()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopping = true;
        m_waiting.clear();
        m_changed.notify_all();
    }
    joinThreads();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_callbacks.clear();
    m_started = false;
    m_stopping = false;
}

void FakeDispatcher::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_stopping) {
        if (m_waiting.empty()) {
            m_changed.wait(lock);
            continue;
        }
        const Clock::time_point due = m_waiting.begin()->first;
        if (due <= Clock::now())
            runFirst(lock);
        else
            m_changed.wait_until(lock, due);
    }
}

void FakeDispatcher::runFirst(std::unique_lock<std::mutex> &lock)
{
    const Job job = std::move(m_waiting.begin()->second.job);
    m_waiting.erase(m_waiting.begin());
    ++m_busy;
    lock.unlock();
    job();
    lock.lock();
    --m_busy;
    m_changed.notify_all();
}

void FakeDispatcher::joinThreads()
{
    std::vector<std::thread> threads;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        threads.swap(m_threads);
    }
    for (std::thread &thread : threads)
        thread.join();
}

bool FakeDispatcher::isRegistered(TKSV_EventCallback callback) const
{
    return std::find(m_callbacks.begin(), m_callbacks.end(), callback) != m_callbacks.end();
}

bool FakeDispatcher::runsHere(TKSV_EventCallback callback) const
{
    return m_running.count(std::make_pair(callback, std::this_thread::get_id())) != 0;
}

void FakeDispatcher::deliverTo(TKSV_EventCallback callback, int event, void *data)
{
    const auto run = std::make_pair(callback, std::this_thread::get_id());
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!isRegistered(callback))
            return;
        m_running.insert(run);
    }
    const unsigned char result = callback(event, data);
    m_report(event, result);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_running.erase(m_running.find(run));
    m_changed.notify_all();
}
