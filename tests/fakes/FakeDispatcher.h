#ifndef FAKEDISPATCHER_H
#define FAKEDISPATCHER_H

#include "fake_tksv.h"

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <set>

/// Runs one service of the SDK. It keeps the registered call-backs, and its thread runs jobs when
/// they are due.
class FakeDispatcher
{
public:
    using Clock = std::chrono::steady_clock;
    using Job = std::function<void()>;
    using Report = std::function<void(int event, unsigned char result)>;

    /// `report` is called each time a call-back has returned, from the thread that made the call.
    explicit FakeDispatcher(Report report);
    ~FakeDispatcher();

    void add(TKSV_EventCallback callback);
    void remove(TKSV_EventCallback callback, bool wait);
    std::size_t size() const;

    /// Runs `job` on the service's thread after the delay. If `job` is erasable, eraseWaiting()
    /// removes it unless it has already started.
    void post(Job job, std::chrono::milliseconds delay = std::chrono::milliseconds(0),
              bool erasable = false);
    void eraseWaiting();

    /// Runs `job` immediately on a new thread.
    void runAside(Job job);

    /// Calls all registered call-backs. Must be called only from jobs.
    void deliver(int event, void *data);

    bool waitIdle(Clock::time_point until) const;

    /// Removes waiting jobs, joins all threads and removes the call-backs. The object can be used
    /// again afterwards.
    void stop();

private:
    struct Waiting {
        Job job;
        bool erasable;
    };

    void run();
    void runFirst(std::unique_lock<std::mutex> &lock);
    void joinThreads();
    bool isRegistered(TKSV_EventCallback callback) const;
    bool runsHere(TKSV_EventCallback callback) const;
    void deliverTo(TKSV_EventCallback callback, int event, void *data);

    const Report m_report;
    mutable std::mutex m_mutex; // guards the members below
    mutable std::condition_variable m_changed;
    std::vector<TKSV_EventCallback> m_callbacks;
    std::multimap<Clock::time_point, Waiting> m_waiting;
    std::multiset<std::pair<TKSV_EventCallback, std::thread::id>> m_running;
    std::vector<std::thread> m_threads;
    std::size_t m_busy = 0; // number of running jobs
    bool m_started = false;
    bool m_stopping = false;
};

#endif
