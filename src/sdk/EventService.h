#ifndef TKSV_INTERNAL_EVENTSERVICE_H
#define TKSV_INTERNAL_EVENTSERVICE_H

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "base/WorkerThread.h"

namespace tksv
{

/** An event on its way to the call-backs of one service. */
struct Event {
    int number = 0;
    std::shared_ptr<void> data; // the record; gone when the last call-back has returned
    std::uintptr_t onlyKey = 0; // for the listener with this key alone; 0: for all
    /// Asked on the service's thread right before delivery; false drops the event. Empty: deliver.
    std::function<bool()> begin;
    /// Told whether a call-back took the event. May be empty.
    std::function<void(bool taken)> end;
};

/**
 * One service of the SDK: its call-backs, and a thread that calls them one after the other.
 * All functions may be called from any thread, also from inside a call-back, and hold no lock
 * while a call-back, `begin` or `end` runs.
 */
class EventService
{
public:
    using Handler = std::function<bool(int number, void *data)>;

    /// `threadName` has at most 15 characters and lives as long as the program.
    explicit EventService(const char *threadName);
    /// Must not run on the service's own thread.
    ~EventService();
    EventService(const EventService &) = delete;
    EventService &operator=(const EventService &) = delete;

    /// The listener gets what is posted from now on. A key that is there already changes nothing.
    void add(std::uintptr_t key, Handler handler);
    /// When it returns, the listener is not running and will not run again; from inside the
    /// listener itself it returns at once. Returns whether the key was there.
    bool remove(std::uintptr_t key);
    /// Takes off all listeners, as remove() does, and adds one unless `handler` is empty.
    void replaceAll(std::uintptr_t key, Handler handler);
    bool isEmpty() const;

    void post(Event event);

    /// Drops what waits and calls no listener any more; one that is running is waited for at most
    /// `limit`. Returns whether the thread has ended: only then may the object be destroyed.
    bool stop(std::chrono::milliseconds limit);

private:
    struct Listener {
        std::uint64_t id;    // of this registration
        std::uint64_t since; // first event that it gets
        std::uintptr_t key;
        Handler handler;
    };
    struct Queued {
        std::uint64_t number;
        Event event;
    };

    bool start();
    void run();
    void deliver(const Queued &queued);
    std::vector<std::uint64_t> listenersFor(const Queued &queued) const;
    bool call(std::uint64_t id, const Event &event);
    bool enter(std::uint64_t id, Handler &handler);
    void leave();
    void insert(std::uintptr_t key, Handler handler);
    bool contains(std::uintptr_t key) const;
    void waitUntilIdle(std::unique_lock<std::mutex> &lock, std::uintptr_t key);

    const char *const m_threadName;
    mutable std::mutex m_mutex; // guards everything below
    std::condition_variable m_wake;
    std::condition_variable m_left;
    std::vector<Listener> m_listeners;
    std::deque<Queued> m_queue;
    std::uint64_t m_lastId = 0;
    std::uint64_t m_lastEvent = 0;
    std::uintptr_t m_runningKey = 0; // 0: no listener runs
    std::uint64_t m_run = 0;         // counts calls of listeners
    bool m_stopping = false;
    WorkerThread m_thread;
};

} // namespace tksv

#endif
