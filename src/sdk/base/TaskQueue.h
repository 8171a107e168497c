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
 * Runs tasks one after another on a separate thread, in the order in which they were posted. The
 * thread is started by the first task. Every function may be called from any thread, even from
 * inside a task.
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

    /// Adds the task to the queue. Drops the task after stop() has been called or if the system
    /// cannot create a thread.
    void post(Task task);
    /// Returns true if called from the queue's thread before stop() has been called.
    bool isCurrent() const;
    /// Drops the pending tasks and waits at most `limit` for a running task. Returns true if the
    /// thread has ended. The object must not be destroyed unless this function has returned true.
    bool stop(std::chrono::milliseconds limit);

private:
    bool start();
    void run();

    const char *const m_threadName;
    mutable std::mutex m_mutex; // guards all members below; not held while a task runs
    std::condition_variable m_wake;
    std::deque<Task> m_tasks;
    bool m_stopping = false;
    WorkerThread m_thread;
};

} // namespace Tksv

#endif
