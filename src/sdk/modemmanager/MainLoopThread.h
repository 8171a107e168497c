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
 * A thread with its own GLib main context. The context is the default of the thread: GDBus delivers
 * signals and replies on the thread that asked for them. The thread sleeps while it has no task.
 */
class MainLoopThread
{
public:
    using Task = std::function<void()>;

    /// `name` has at most 15 characters and lives as long as the program.
    explicit MainLoopThread(const char *name);
    /// Must not run on the thread itself.
    ~MainLoopThread();
    MainLoopThread(const MainLoopThread &) = delete;
    MainLoopThread &operator=(const MainLoopThread &) = delete;

    /// Throws std::system_error when the system has no thread left.
    void start();
    /// Runs the task on the thread, in the order of the calls. Any thread may call. Tasks that are
    /// posted before start() wait; tasks that still wait during stop() are dropped.
    void post(Task task);
    /// Runs the task on the thread and waits for its end. On the thread itself, the task runs at
    /// once. May be called only between start() and stop().
    void run(const Task &task);
    /// Runs the task after the delay. May be called on the thread itself only.
    void after(std::chrono::milliseconds delay, Task task);
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
