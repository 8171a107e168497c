#ifndef MODEM_LOOPTHREAD_H
#define MODEM_LOOPTHREAD_H

#include <functional>
#include <glib.h>
#include <list>
#include <mutex>
#include <thread>

namespace modem
{

/** A thread with a main context of its own, which is its thread-default one. */
class LoopThread
{
public:
    using Action = std::function<void()>;

    /// `name` is what debuggers show, at most 15 characters.
    explicit LoopThread(const char *name);
    ~LoopThread();
    LoopThread(const LoopThread &) = delete;
    LoopThread &operator=(const LoopThread &) = delete;

    /// Waits for the thread's end; what is posted later, or still waits its time, is never done.
    void stop();

    GMainContext *context() const { return m_context; }

    /// Any thread: does it on the loop's thread later.
    void post(Action action, unsigned delayMilliseconds = 0);
    /// Any thread: does it on the loop's thread and returns when it is done.
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

} // namespace modem

#endif
