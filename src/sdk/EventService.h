#ifndef TKSV_INTERNAL_EVENTSERVICE_H
#define TKSV_INTERNAL_EVENTSERVICE_H

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "base/TaskQueue.h"

namespace Tksv
{

/** An event for the listeners of a service. */
struct Event {
    int number = 0;
    std::shared_ptr<void> data; // the record; destroyed after the last call
    std::uintptr_t onlyKey = 0; // key of the only listener to be called; 0 for all listeners
    /// Called from the service's thread immediately before delivery. Returns false to drop the
    /// event. May be empty.
    std::function<bool()> beforeDelivery;
    /// Called after delivery. `taken` is true if at least one listener accepted the event. May be
    /// empty.
    std::function<void(bool taken)> afterDelivery;
};

/**
 * A service of the SDK. It calls its listeners one after another from its own thread.
 *
 * Every function may be called from any thread, even from inside a listener. No lock is held while
 * a listener, `beforeDelivery` or `afterDelivery` runs.
 */
class EventService
{
public:
    /// A listener. Returns true if it accepts the event.
    using Handler = std::function<bool(int number, void *data)>;

    /// `threadName` has at most 15 characters and must remain valid until the program ends.
    explicit EventService(const char *threadName);
    /// The destructor must not be called from the service's own thread.
    ~EventService();
    EventService(const EventService &) = delete;
    EventService &operator=(const EventService &) = delete;

    /// Adds a listener for the events that are posted from now on. Does nothing if the key is
    /// already in use.
    void add(std::uintptr_t key, Handler handler);
    /// Removes a listener, which is then not called again. If the listener is running, waits until
    /// it has returned, unless the listener itself has called this function. Returns true if the
    /// key was in use.
    bool remove(std::uintptr_t key);
    /// Removes all listeners in the same way as remove(), and then adds `handler` as a listener
    /// unless it is empty.
    void replaceAll(std::uintptr_t key, Handler handler);
    /// Returns true if there are no listeners.
    bool isEmpty() const;

    /// Queues the event. The service's thread delivers it.
    void post(Event event);

    /// Drops the pending events and waits at most `limit` for a running listener. No listener is
    /// called afterwards. Returns true if the thread has ended. The object must not be destroyed
    /// unless this function has returned true.
    bool stop(std::chrono::milliseconds limit);

private:
    struct Listener {
        std::uint64_t id;         // identifies this registration
        std::uint64_t firstEvent; // the number of the first event that the listener receives
        std::uintptr_t key;
        Handler handler;
    };

    void deliver(std::uint64_t eventId, const Event &event);
    bool isStopping() const;
    std::vector<std::uint64_t> listenersFor(std::uint64_t eventId, const Event &event) const;
    bool call(std::uint64_t listenerId, const Event &event);
    bool beginCall(std::uint64_t listenerId, Handler &handler);
    void endCall();
    void insert(std::uintptr_t key, Handler handler);
    bool contains(std::uintptr_t key) const;
    void waitUntilIdle(std::unique_lock<std::mutex> &lock, std::uintptr_t key);

    // Guards all members below except m_deliveries. Locked before the mutex of m_deliveries.
    mutable std::mutex m_mutex;
    std::condition_variable m_callEnded;
    std::vector<Listener> m_listeners;
    std::uint64_t m_lastListenerId = 0;
    std::uint64_t m_lastEventId = 0;
    std::uintptr_t m_runningKey = 0; // the key of the running listener; 0 if none is running
    std::uint64_t m_callCount = 0;   // the number of listener calls so far
    bool m_stopping = false;
    TaskQueue m_deliveries; // declared last, so that its thread ends first
};

} // namespace Tksv

#endif
