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

/** An event to be delivered to the listeners of one service. */
struct Event {
    int number = 0;
    std::shared_ptr<void> data; // the record; destroyed after the last listener has returned
    std::uintptr_t onlyKey = 0; // the only listener to receive the event; 0: all
    /// Called from the service's thread immediately before delivery. If the function returns false,
    /// the event is dropped. If the function is empty, the event is always delivered.
    std::function<bool()> beforeDelivery;
    /// Called after delivery. `taken` is true if a listener accepted the event. May be empty.
    std::function<void(bool taken)> afterDelivery;
};

/**
 * A service of the SDK. It calls its listeners one after the other from its own thread.
 *
 * Every function may be called from any thread, even from inside a listener. No lock is held while
 * a listener, `beforeDelivery` or `afterDelivery` runs.
 */
class EventService
{
public:
    /// The type of a listener function. Returns true if the listener accepted the event.
    using Handler = std::function<bool(int number, void *data)>;

    /// `threadName` has at most 15 characters and must remain valid until the program ends.
    explicit EventService(const char *threadName);
    /// The destructor must not be called from the service's own thread.
    ~EventService();
    EventService(const EventService &) = delete;
    EventService &operator=(const EventService &) = delete;

    /// Adds a listener, which receives the events that are posted from now on. Does nothing if the
    /// key is already in use.
    void add(std::uintptr_t key, Handler handler);
    /// Removes a listener. When the function returns, the listener is not running and will not run
    /// again. If the listener itself makes the call, the function returns immediately. Returns true
    /// if there was a listener with this key.
    bool remove(std::uintptr_t key);
    /// Removes all listeners in the same way as remove(). Then adds a listener unless `handler` is
    /// empty.
    void replaceAll(std::uintptr_t key, Handler handler);
    /// Returns true if there are no listeners.
    bool isEmpty() const;

    /// Delivers the event from the service's thread.
    void post(Event event);

    /// Drops the pending events and does not call any more listeners. Waits at most `limit` for a
    /// running listener. Returns true if the thread has ended. The object may be destroyed only if
    /// the function has returned true.
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
