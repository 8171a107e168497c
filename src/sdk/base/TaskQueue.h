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
 * first task starts the thread. Every function may be called on any thread, even from inside a
 * task.
 */
class TaskQueue
{
public:
    using Task = std::function<void()>;

    /// `threadName` has at most 15 characters and must stay valid until the program ends.
    explicit TaskQueue(const char *threadName);
    /// The destructor must not run on the queue's own thread.
    ~TaskQueue();
    TaskQueue(const TaskQueue &) = delete;
    TaskQueue &operator=(const TaskQueue &) = delete;

    /// Adds the task. The task is dropped after stop(), or if the system cannot create a thread.
    void post(Task task);
    /// Returns whether the function is called on the queue's thread. Returns false after stop().
    bool isCurrent() const;
    /// Drops the waiting tasks and waits at most `limit` for a running task. Returns whether the
    /// thread has ended; the object may be destroyed only then.
    bool stop(std::chrono::milliseconds limit);

private:
    bool start();
    void run();

    const char *const m_threadName;
    mutable std::mutex m_mutex; // guards everything below; not held while a task runs
    std::condition_variable m_wake;
    std::deque<Task> m_tasks;
    bool m_stopping = false;
    WorkerThread m_thread;
};

} // namespace Tksv

#endif
