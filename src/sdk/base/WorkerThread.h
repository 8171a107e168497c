#ifndef TKSV_INTERNAL_WORKERTHREAD_H
#define TKSV_INTERNAL_WORKERTHREAD_H

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace Tksv
{

/**
 * A thread of the library. The thread blocks all signals, so that the client's own threads handle
 * them. The owner's lock guards the object itself.
 */
class WorkerThread
{
public:
    WorkerThread();
    ~WorkerThread();
    WorkerThread(const WorkerThread &) = delete;
    WorkerThread &operator=(const WorkerThread &) = delete;

    /// Runs `body` on a new thread. `name`, at most 15 characters long, is shown by debuggers.
    /// Throws std::system_error when the system has no thread left.
    void start(const char *name, std::function<void()> body);
    bool isStarted() const { return m_thread.joinable(); }
    /// Returns whether the caller runs on this thread.
    bool isCurrent() const;
    /// Waits until the body has returned, at most for `limit`. Returns whether the thread has
    /// ended. A body that still runs, or that calls this function itself, continues on a detached
    /// thread; everything that the body uses must then stay alive.
    bool finish(std::chrono::milliseconds limit);

private:
    struct Ended;
    std::shared_ptr<Ended> m_ended;
    std::thread m_thread;
};

/// For finish(): a limit that is never reached.
const std::chrono::milliseconds NO_LIMIT = std::chrono::hours(24);

} // namespace Tksv

#endif
