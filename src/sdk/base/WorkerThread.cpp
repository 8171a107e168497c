#include "WorkerThread.h"

#include <condition_variable>
#include <csignal>
#include <mutex>
#include <pthread.h>
#include <utility>

namespace Tksv
{

/**
 * Indicates whether `body` has returned. The object is shared with the thread, which may outlive
 * the WorkerThread.
 */
struct WorkerThread::Ended {
    std::mutex mutex;
    std::condition_variable changed;
    bool value = false;

    void set()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        value = true;
        changed.notify_all();
    }

    bool wait(std::chrono::milliseconds limit)
    {
        std::unique_lock<std::mutex> lock(mutex);
        return changed.wait_for(lock, limit, [this] { return value; });
    }
};

namespace
{

/**
 * Blocks all signals during the lifetime of the object. A new thread inherits the signal mask of
 * the thread that creates it.
 */
class AllSignalsBlocked
{
public:
    AllSignalsBlocked()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~AllSignalsBlocked() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    AllSignalsBlocked(const AllSignalsBlocked &) = delete;
    AllSignalsBlocked &operator=(const AllSignalsBlocked &) = delete;

private:
    sigset_t m_before;
};

} // namespace

WorkerThread::WorkerThread() = default;

WorkerThread::~WorkerThread()
{
    finish(NO_LIMIT);
}

void WorkerThread::start(const char *name, std::function<void()> body)
{
    const AllSignalsBlocked blocked;
    const std::shared_ptr<Ended> ended = std::make_shared<Ended>();
    m_thread = std::thread([ended, name, body = std::move(body)] {
        pthread_setname_np(pthread_self(), name);
        body();
        ended->set();
    });
    m_ended = ended;
}

bool WorkerThread::isCurrent() const
{
    return m_thread.get_id() == std::this_thread::get_id();
}

bool WorkerThread::finish(std::chrono::milliseconds limit)
{
    if (!isStarted())
        return true;
    if (!isCurrent() && m_ended->wait(limit)) {
        m_thread.join();
        return true;
    }
    m_thread.detach();
    return false;
}

} // namespace Tksv
