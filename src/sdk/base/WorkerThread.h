#ifndef TKSV_INTERNAL_WORKERTHREAD_H
#define TKSV_INTERNAL_WORKERTHREAD_H

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace Tksv
{

/**
 * A thread of the library. It blocks all signals, so that they are handled by the client's own
 * threads. The class is not thread-safe; its owner must protect it with a lock.
 */
class WorkerThread
{
public:
    WorkerThread();
    ~WorkerThread();
    WorkerThread(const WorkerThread &) = delete;
    WorkerThread &operator=(const WorkerThread &) = delete;

    /// Runs `body` on a new thread. `name`, which is visible in debuggers, has at most 15
    /// characters. Throws std::system_error if the system cannot create a thread.
    void start(const char *name, std::function<void()> body);
    bool isStarted() const { return m_thread.joinable(); }
    /// Returns true if called from this thread.
    bool isCurrent() const;
    /// Waits at most `limit` for `body` to return. Returns true if the thread has ended. If `body`
    /// is still running, or if it calls this function itself, the thread is detached and continues
    /// to run. All objects that `body` uses must then remain valid.
    bool finish(std::chrono::milliseconds limit);

private:
    struct Ended;
    std::shared_ptr<Ended> m_ended;
    std::thread m_thread;
};

/// A practically unlimited time for finish().
const std::chrono::milliseconds NO_LIMIT = std::chrono::hours(24);

} // namespace Tksv

#endif
