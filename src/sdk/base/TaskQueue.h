#ifndef TKSV_INTERNAL_TASKQUEUE_H
#define TKSV_INTERNAL_TASKQUEUE_H

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

#include "WorkerThread.h"

namespace Tksv
{

/**
 * Runs tasks one after the other on a separate thread, in the order in which they were posted. The
 * first task starts the thread. Every function may be called from any thread, even from inside a
 * task.
 */
class TaskQueue
{
public:
    using Task = std::function<void()>;

    /// `threadName` has at most 15 characters and must remain valid until the program ends.
    explicit TaskQueue(const char *threadName);
    /// The destructor must not be called from the queue's own thread.
    ~TaskQueue();
    TaskQueue(const TaskQueue &) = delete;
    TaskQueue &operator=(const TaskQueue &) = delete;

    /// Adds the task. The task is dropped if stop() has been called or the system cannot create a
    /// thread.
    void post(Task task);
    /// Returns true if called from the queue's thread. Always returns false after stop().
    bool isCurrent() const;
    /// Drops the pending tasks and waits at most `limit` for a running task. Returns true if the
    /// thread has ended. The object may be destroyed only if the function has returned true.
    bool stop(std::chrono::milliseconds limit);

private:
    bool start();
    void run();

    const char *const m_threadName;
    mutable std::mutex m_mutex; // guards all members below; not locked while a task runs
    std::condition_variable m_wake;
    std::deque<Task> m_tasks;
    bool m_stopping = false;
    WorkerThread m_thread;
};

} // namespace Tksv

#endif
