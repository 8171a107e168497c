#ifndef TKSV_INTERNAL_WORKERTHREAD_H
#define TKSV_INTERNAL_WORKERTHREAD_H

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace tksv
{

/**
 * A thread of the library. It takes no signals, which stay with the client's own threads.
 * The object itself is used under its owner's lock.
 */
class WorkerThread
{
public:
    WorkerThread();
    ~WorkerThread();
    WorkerThread(const WorkerThread &) = delete;
    WorkerThread &operator=(const WorkerThread &) = delete;

    /// `name` is what debuggers show, at most 15 characters. Throws std::system_error when the
    /// system has no thread left.
    void start(const char *name, std::function<void()> body);
    bool isStarted() const { return m_thread.joinable(); }
    /// Whether the caller runs on this thread.
    bool isCurrent() const;
    /// Waits until the body has returned, at most for `limit`; a body that still runs then (or
    /// that is the caller) goes on alone, and what it uses must stay.
    /// Returns whether it has ended.
    bool finish(std::chrono::milliseconds limit);

private:
    struct Ended;
    std::shared_ptr<Ended> m_ended;
    std::thread m_thread;
};

/// For finish(): as long as it takes.
const std::chrono::milliseconds NO_LIMIT = std::chrono::hours(24);

} // namespace tksv

#endif
