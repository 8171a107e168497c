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
 * Runs tasks one after the other, in the order of the calls of post(), on a thread of its own that
 * starts with the first task. Any thread may call, a task included.
 */
class TaskQueue
{
public:
    using Task = std::function<void()>;

    /// `threadName` has at most 15 characters and lives as long as the program.
    explicit TaskQueue(const char *threadName);
    /// Must not run on the queue's own thread.
    ~TaskQueue();
    TaskQueue(const TaskQueue &) = delete;
    TaskQueue &operator=(const TaskQueue &) = delete;

    /// Drops the task after stop(), and when the system has no thread left.
    void post(Task task);
    /// Returns whether the caller runs on the queue's thread; false after stop().
    bool isCurrent() const;
    /// Drops the waiting tasks, and waits for a running task at most for `limit`. Returns whether
    /// the thread has ended; only then may the object be destroyed.
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
