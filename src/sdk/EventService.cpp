#include "EventService.h"

#include <algorithm>
#include <utility>

namespace Tksv
{

EventService::EventService(const char *threadName) : m_deliveries(threadName) {}

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
    const auto hasKey = [key](const Listener &listener) { return listener.key == key; };
    const auto end = std::remove_if(m_listeners.begin(), m_listeners.end(), hasKey);
    const bool found = end != m_listeners.end();
    m_listeners.erase(end, m_listeners.end());
    // Wait even if another thread has already removed the listener, because the listener may still
    // be running.
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
    const std::lock_guard<std::mutex> lock(m_mutex); // keeps the events in order
    m_deliveries.post(
        [this, id = ++m_lastEventId, event = std::move(event)] { deliver(id, event); });
}

bool EventService::stop(std::chrono::milliseconds limit)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopping = true;
        m_callEnded.notify_all();
    }
    return m_deliveries.stop(limit);
}

void EventService::deliver(std::uint64_t eventId, const Event &event)
{
    if (isStopping() || (event.beforeDelivery && !event.beforeDelivery()))
        return;
    bool taken = false;
    for (const std::uint64_t listenerId : listenersFor(eventId, event))
        taken |= call(listenerId, event);
    if (event.afterDelivery)
        event.afterDelivery(taken);
}

bool EventService::isStopping() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_stopping;
}

std::vector<std::uint64_t> EventService::listenersFor(std::uint64_t eventId,
                                                      const Event &event) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<std::uint64_t> ids;
    for (const Listener &listener : m_listeners) {
        const bool isAddressed = !event.onlyKey || event.onlyKey == listener.key;
        if (isAddressed && eventId >= listener.firstEvent)
            ids.push_back(listener.id);
    }
    return ids;
}

bool EventService::call(std::uint64_t listenerId, const Event &event)
{
    Handler handler;
    if (!beginCall(listenerId, handler))
        return false;
    const bool taken = handler(event.number, event.data.get());
    endCall();
    return taken;
}

/// Marks the listener as running until endCall() is called. Returns false if the listener has been
/// removed.
bool EventService::beginCall(std::uint64_t listenerId, Handler &handler)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto hasId = [listenerId](const Listener &listener) { return listener.id == listenerId; };
    const auto found = std::find_if(m_listeners.begin(), m_listeners.end(), hasId);
    if (m_stopping || found == m_listeners.end())
        return false;
    handler = found->handler;
    m_runningKey = found->key;
    ++m_callCount;
    return true;
}

void EventService::endCall()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_runningKey = 0;
    m_callEnded.notify_all();
}

void EventService::insert(std::uintptr_t key, Handler handler)
{
    m_listeners.push_back(Listener{++m_lastListenerId, m_lastEventId + 1, key, std::move(handler)});
}

bool EventService::contains(std::uintptr_t key) const
{
    const auto hasKey = [key](const Listener &listener) { return listener.key == key; };
    return std::any_of(m_listeners.begin(), m_listeners.end(), hasKey);
}

/// Waits until the running call to the listener has returned, but does not wait for later calls to
/// a listener with the same key. After stop(), does not wait at all, so that a blocked call-back
/// cannot prevent the client from exiting.
void EventService::waitUntilIdle(std::unique_lock<std::mutex> &lock, std::uintptr_t key)
{
    if (m_stopping || !key || m_runningKey != key || m_deliveries.isCurrent())
        return;
    const std::uint64_t callCount = m_callCount;
    m_callEnded.wait(lock,
                     [&] { return m_stopping || m_runningKey != key || m_callCount != callCount; });
}

} // namespace Tksv
