#ifndef MODEM_LOOPTHREAD_H
#define MODEM_LOOPTHREAD_H

#include <functional>
#include <glib.h>
#include <list>
#include <mutex>
#include <thread>

namespace FakeModems
{

/** A thread that runs a main loop. The main context of the loop is the thread's default context. */
class LoopThread
{
public:
    using Action = std::function<void()>;

    /// `name` is the thread name that debuggers show. It may have up to 15 characters.
    explicit LoopThread(const char *name);
    ~LoopThread();
    LoopThread(const LoopThread &) = delete;
    LoopThread &operator=(const LoopThread &) = delete;

    /// Stops the loop and waits until the thread has ended. Pending actions and actions that are
    /// posted later are discarded.
    void stop();

    GMainContext *context() const { return m_context; }

    /// Runs the action on this thread after the delay. May be called from any thread.
    void post(Action action, unsigned delayMilliseconds = 0);
    /// Runs the action on this thread and waits until it has finished. May be called from any
    /// thread.
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
