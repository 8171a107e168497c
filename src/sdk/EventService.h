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

/** An event on its way to the listeners of one service. */
struct Event {
    int number = 0;
    std::shared_ptr<void> data; // the record; destroyed after the last listener has returned
    std::uintptr_t onlyKey = 0; // the key of the only listener to receive the event; 0: all
    /// Called on the service's thread immediately before delivery. The event is dropped if the
    /// function returns false. An empty function drops no event.
    std::function<bool()> beforeDelivery;
    /// Called after delivery. `taken` is whether a listener accepted the event. May be empty.
    std::function<void(bool taken)> afterDelivery;
};

/**
 * One service of the SDK: its listeners, and a thread that calls them one after the other.
 *
 * Any thread may call any function, even from inside a listener. No lock is held while a listener,
 * `beforeDelivery` or `afterDelivery` runs.
 */
class EventService
{
public:
    /// The function of a listener. Returns whether the listener accepted the event.
    using Handler = std::function<bool(int number, void *data)>;

    /// `threadName` has at most 15 characters and must stay valid until the program ends.
    explicit EventService(const char *threadName);
    /// The destructor must not run on the service's own thread.
    ~EventService();
    EventService(const EventService &) = delete;
    EventService &operator=(const EventService &) = delete;

    /// Adds a listener, which receives the events that are posted from now on. Does nothing if the
    /// key is already in use.
    void add(std::uintptr_t key, Handler handler);
    /// Removes a listener. When the function returns, the listener is not running and will not run
    /// again. A call from inside the listener itself returns at once. Returns whether there was
    /// such a listener.
    bool remove(std::uintptr_t key);
    /// Removes all listeners as remove() does, and then adds one unless `handler` is empty.
    void replaceAll(std::uintptr_t key, Handler handler);
    /// Returns whether there is no listener.
    bool isEmpty() const;

    /// Delivers the event on the service's thread.
    void post(Event event);

    /// Drops the waiting events and calls no more listeners. Waits at most `limit` for a running
    /// listener. Returns whether the thread has ended; the object may be destroyed only then.
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

    mutable std::mutex m_mutex; // guards everything below but the queue; taken before its mutex
    std::condition_variable m_callEnded;
    std::vector<Listener> m_listeners;
    std::uint64_t m_lastListenerId = 0;
    std::uint64_t m_lastEventId = 0;
    std::uintptr_t m_runningKey = 0; // the key of the running listener, or 0 if none is running
    std::uint64_t m_callCount = 0;   // the number of calls of listeners so far
    bool m_stopping = false;
    TaskQueue m_deliveries; // declared last, so that its thread ends first
};

} // namespace Tksv

#endif
