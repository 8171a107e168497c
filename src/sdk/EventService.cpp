#include "EventService.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace tksv
{

EventService::EventService(const char *threadName) : m_threadName(threadName) {}

EventService::~EventService()
{
    stop(NO_LIMIT);
}

void EventService::add(std::uintptr_t key, Handler handler)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!contains(key))
        insert(key, std::move(handler));
}

bool EventService::remove(std::uintptr_t key)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto isIt = [key](const Listener &listener) { return listener.key == key; };
    const auto end = std::remove_if(m_listeners.begin(), m_listeners.end(), isIt);
    const bool found = end != m_listeners.end();
    m_listeners.erase(end, m_listeners.end());
    // Also when another thread took it off: here, too, it must not run any more on return.
    waitUntilIdle(lock, key);
    return found;
}

void EventService::replaceAll(std::uintptr_t key, Handler handler)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_listeners.clear();
    if (handler)
        insert(key, std::move(handler));
    waitUntilIdle(lock, m_runningKey);
}

bool EventService::isEmpty() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_listeners.empty();
}

void EventService::post(Event event)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopping || !start())
        return;
    m_queue.push_back(Queued{++m_lastEvent, std::move(event)});
    m_wake.notify_one();
}

bool EventService::stop(std::chrono::milliseconds limit)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_stopping = true;
    m_queue.clear();
    m_wake.notify_all();
    m_left.notify_all();
    lock.unlock(); // nobody starts the thread any more
    return m_thread.finish(limit);
}

bool EventService::start()
{
    if (m_thread.isStarted())
        return true;
    try {
        m_thread.start(m_threadName, [this] { run(); });
    } catch (const std::system_error &) {
        return false; // no thread to be had: the event is lost, the next one tries again
    }
    return true;
}

void EventService::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (true) {
        m_wake.wait(lock, [this] { return m_stopping || !m_queue.empty(); });
        if (m_stopping)
            return;
        Queued queued = std::move(m_queue.front());
        m_queue.pop_front();
        lock.unlock();
        deliver(queued);
        queued = Queued(); // the record's end, while no lock is held
        lock.lock();
    }
}

void EventService::deliver(const Queued &queued)
{
    const Event &event = queued.event;
    if (event.begin && !event.begin())
        return;
    bool taken = false;
    for (const std::uint64_t id : listenersFor(queued))
        taken |= call(id, event);
    if (event.end)
        event.end(taken);
}

std::vector<std::uint64_t> EventService::listenersFor(const Queued &queued) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<std::uint64_t> ids;
    for (const Listener &listener : m_listeners) {
        const bool meant = !queued.event.onlyKey || queued.event.onlyKey == listener.key;
        if (meant && queued.number >= listener.since)
            ids.push_back(listener.id);
    }
    return ids;
}

bool EventService::call(std::uint64_t id, const Event &event)
{
    Handler handler;
    if (!enter(id, handler))
        return false;
    const bool taken = handler(event.number, event.data.get());
    leave();
    return taken;
}

/// Whether the listener is still there; if so, it counts as running until leave().
bool EventService::enter(std::uint64_t id, Handler &handler)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto isIt = [id](const Listener &listener) { return listener.id == id; };
    const auto found = std::find_if(m_listeners.begin(), m_listeners.end(), isIt);
    if (m_stopping || found == m_listeners.end())
        return false;
    handler = found->handler;
    m_runningKey = found->key;
    ++m_run;
    return true;
}

void EventService::leave()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_runningKey = 0;
    m_left.notify_all();
}

void EventService::insert(std::uintptr_t key, Handler handler)
{
    m_listeners.push_back(Listener{++m_lastId, m_lastEvent + 1, key, std::move(handler)});
}

bool EventService::contains(std::uintptr_t key) const
{
    const auto isIt = [key](const Listener &listener) { return listener.key == key; };
    return std::any_of(m_listeners.begin(), m_listeners.end(), isIt);
}

/// Waits for the call that is running now, not for a later one of a listener that came back.
/// After stop() nobody waits: a call-back that hangs must not keep the client from its exit.
void EventService::waitUntilIdle(std::unique_lock<std::mutex> &lock, std::uintptr_t key)
{
    if (m_stopping || !key || m_runningKey != key || m_thread.isCurrent())
        return;
    const std::uint64_t run = m_run;
    m_left.wait(lock, [&] { return m_stopping || m_runningKey != key || m_run != run; });
}

} // namespace tksv
