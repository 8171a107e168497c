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
 * A thread that runs a GLib main loop. Its main context is the thread-default context, so that
 * GDBus delivers signals and replies on this thread if the subscription or the call was made on it.
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

    /// Starts the thread. Throws std::system_error if the system cannot create a thread.
    void start();
    /// Queues a task, which the thread runs in the order of posting. May be called from any thread.
    /// Tasks that are posted before start() run after the thread has started. stop() drops the
    /// tasks that are still pending.
    void post(Task task);
    /// Runs the task on the thread and waits until it has finished. If called from the thread
    /// itself, runs the task immediately. May be called only between start() and stop().
    void run(const Task &task);
    /// Runs the task after the delay. May be called only from the thread itself.
    void after(std::chrono::milliseconds delay, Task task);
    /// Processes other tasks and events until the condition is true or the time limit expires. May
    /// be called only from the thread itself.
    void runUntil(const std::function<bool()> &condition, std::chrono::milliseconds limit);
    bool isCurrent() const { return m_thread.isCurrent(); }

    /// Runs `last` as the final task and waits until the thread has ended.
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
