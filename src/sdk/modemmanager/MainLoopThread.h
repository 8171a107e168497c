#ifndef TKSV_INTERNAL_MAINLOOPTHREAD_H
#define TKSV_INTERNAL_MAINLOOPTHREAD_H

#include <chrono>
#include <functional>
#include <glib.h>

#include "../WorkerThread.h"

namespace tksv
{

/**
 * A thread with a GLib main context of its own, which is the thread's default: GDBus tells there
 * of what was started there. It sleeps while nothing happens.
 */
class MainLoopThread
{
public:
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
    void post(std::function<void()> task);
    /// As post(), and returns when the task has run; on the thread itself it runs at once. Between
    /// start() and stop() only.
    void run(const std::function<void()> &task);
    /// On the thread itself only.
    void after(std::chrono::milliseconds delay, std::function<void()> task);
    bool isCurrent() const { return m_thread.isCurrent(); }

    /// Runs the task as the thread's last and waits for the thread's end.
    void stop(const std::function<void()> &last);

private:
    void loop();
    void attach(GSource *source, std::function<void()> task);

    const char *const m_name;
    GMainContext *const m_context;
    GMainLoop *const m_loop;
    WorkerThread m_thread;
};

} // namespace tksv

#endif
