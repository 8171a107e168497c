#ifndef TKSV_INTERNAL_MAINLOOPTHREAD_H
#define TKSV_INTERNAL_MAINLOOPTHREAD_H

#include <chrono>
#include <deque>
#include <functional>
#include <glib.h>
#include <mutex>

#include "../base/WorkerThread.h"

namespace tksv
{

/**
 * A thread with a GLib main context of its own, which is the thread's default: GDBus tells there
 * of what was started there. It sleeps while nothing happens.
 */
class MainLoopThread
{
public:
    using Task = std::function<void()>;

    /// `name` has at most 15 characters and lives as long as the program.
    explicit MainLoopThread(const char *name);
    /// Not on its own thread.
    ~MainLoopThread();
    MainLoopThread(const MainLoopThread &) = delete;
    MainLoopThread &operator=(const MainLoopThread &) = delete;

    /// Throws std::system_error when the system has no thread left.
    void start();
    /// Runs the task on the thread, in the order of the calls; any thread may call. Before start()
    /// tasks wait; those that stop() finds waiting do not run.
    void post(Task task);
    /// As post(), and returns when the task has run; on the thread itself it runs at once. Between
    /// start() and stop() only.
    void run(const Task &task);
    /// On the thread itself only.
    void after(std::chrono::milliseconds delay, Task task);
    bool isCurrent() const { return m_thread.isCurrent(); }

    /// Runs the task as the thread's last and waits for the thread's end.
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

} // namespace tksv

#endif
