#ifndef MODEM_LOOPTHREAD_H
#define MODEM_LOOPTHREAD_H

#include <functional>
#include <glib.h>
#include <list>
#include <mutex>
#include <thread>

namespace FakeModems
{

/** A thread with its own main context, which is the default context of the thread. */
class LoopThread
{
public:
    using Action = std::function<void()>;

    /// `name` is the thread name that debuggers show. It must not exceed 15 characters.
    explicit LoopThread(const char *name);
    ~LoopThread();
    LoopThread(const LoopThread &) = delete;
    LoopThread &operator=(const LoopThread &) = delete;

    /// Stops the loop and waits until the thread has ended. Actions that are still pending or are
    /// posted later are dropped.
    void stop();

    GMainContext *context() const { return m_context; }

    /// Runs the action on the loop's thread after the delay. May be called from any thread.
    void post(Action action, unsigned delayMilliseconds = 0);
    /// Runs the action on the loop's thread and returns when it has finished. May be called from
    /// any thread.
    void call(const Action &action);

private:
    std::list<Action>::iterator keep(Action action);
    Action take(std::list<Action>::iterator place);

    std::mutex m_mutex; // guards m_actions
    std::list<Action> m_actions;
    GMainContext *m_context;
    GMainLoop *m_loop;
    std::thread m_thread;
};

} // namespace FakeModems

#endif
