#ifndef TKSV_INTERNAL_MAINLOOPTHREAD_H
#define TKSV_INTERNAL_MAINLOOPTHREAD_H

#include <chrono>
#include <deque>
#include <functional>
#include <glib.h>
#include <mutex>

#include "../base/WorkerThread.h"

namespace Tksv
{

/**
 * A thread with its own GLib main context, which is the thread-default main context. Therefore,
 * GDBus delivers signals and replies on the thread that has subscribed to the signal or made the
 * call. The thread sleeps while it has no tasks.
 */
class MainLoopThread
{
public:
    using Task = std::function<void()>;

    /// `name` has at most 15 characters and must remain valid until the program ends.
    explicit MainLoopThread(const char *name);
    /// The destructor must not be called from the thread itself.
    ~MainLoopThread();
    MainLoopThread(const MainLoopThread &) = delete;
    MainLoopThread &operator=(const MainLoopThread &) = delete;

    /// Throws std::system_error if the system cannot create a thread.
    void start();
    /// Runs the task on the thread. Tasks run in the order in which they were posted. May be called
    /// from any thread. Tasks that are posted before start() are kept until the thread starts.
    /// Tasks that are still pending when stop() is called are dropped.
    void post(Task task);
    /// Runs the task on the thread and waits until it has finished. If called from the thread
    /// itself, runs the task immediately. May only be called between start() and stop().
    void run(const Task &task);
    /// Runs the task after the delay. May only be called from the thread itself.
    void after(std::chrono::milliseconds delay, Task task);
    /// Runs other tasks and handles events until the condition is true, at most for the time limit.
    /// May only be called on the thread itself.
    void runUntil(const std::function<bool()> &condition, std::chrono::milliseconds limit);
    bool isCurrent() const { return m_thread.isCurrent(); }

    /// Runs `last` as the thread's last task and waits until the thread has ended.
    void stop(const Task &last);

private:
    void loop();
    Task takeTask();
    static gboolean runNext(gpointer self);
    void attach(GSource *source, GSourceFunc function, gpointer data, GDestroyNotify destroy);

    const char *const m_name;
    GMainContext *const m_context;
    GMainLoop *const m_loop;
    std::mutex m_mutex; // guards m_tasks
    std::deque<Task> m_tasks;
    WorkerThread m_thread;
};

} // namespace Tksv

#endif
