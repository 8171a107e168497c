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
 * A thread with its own GLib main context. The context is the thread-default main context, so GDBus
 * delivers signals and replies on the thread that subscribed to them or made the call. The thread
 * sleeps while it has no task.
 */
class MainLoopThread
{
public:
    using Task = std::function<void()>;

    /// `name` has at most 15 characters and must stay valid until the program ends.
    explicit MainLoopThread(const char *name);
    /// The destructor must not run on the thread itself.
    ~MainLoopThread();
    MainLoopThread(const MainLoopThread &) = delete;
    MainLoopThread &operator=(const MainLoopThread &) = delete;

    /// Throws std::system_error if the system cannot create a thread.
    void start();
    /// Runs the task on the thread, in the order in which the tasks were posted. May be called on
    /// any thread. Tasks that are posted before start() wait. Tasks that are still waiting when
    /// stop() is called are dropped.
    void post(Task task);
    /// Runs the task on the thread and waits until it has finished. If called on the thread itself,
    /// runs the task at once. May only be called between start() and stop().
    void run(const Task &task);
    /// Runs the task after the delay. May only be called on the thread itself.
    void after(std::chrono::milliseconds delay, Task task);
    /// Runs other tasks and handles events until the condition is true, at most for the time limit.
    /// May only be called on the thread itself.
    void runUntil(const std::function<bool()> &condition, std::chrono::milliseconds limit);
    bool isCurrent() const { return m_thread.isCurrent(); }

    /// Runs the thread's last task and waits until the thread has ended.
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
