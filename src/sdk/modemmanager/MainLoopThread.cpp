#include "MainLoopThread.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <utility>

namespace Tksv
{

namespace
{

using Task = MainLoopThread::Task;

gboolean runTask(gpointer task)
{
    (*static_cast<Task *>(task))();
    return G_SOURCE_REMOVE;
}

void deleteTask(gpointer task)
{
    delete static_cast<Task *>(task);
}

/** A latch: wait() blocks until open() has been called. */
class Latch
{
public:
    void open()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_open = true;
        m_changed.notify_all();
    }
    void wait()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_open; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_open = false;
};

} // namespace

MainLoopThread::MainLoopThread(const char *name)
    : m_name(name), m_context(g_main_context_new()), m_loop(g_main_loop_new(m_context, FALSE))
{
}

MainLoopThread::~MainLoopThread()
{
    stop([] {});
    g_main_loop_unref(m_loop);
    g_main_context_unref(m_context);
}

void MainLoopThread::start()
{
    m_thread.start(m_name, [this] { loop(); });
}

void MainLoopThread::loop()
{
    g_main_context_push_thread_default(m_context);
    g_main_loop_run(m_loop);
    // Run the call-backs of the calls that the last task has cancelled, because these call-backs
    // release their objects.
    while (g_main_context_iteration(m_context, FALSE)) {
    }
    g_main_context_pop_thread_default(m_context);
}

/// Adds the task to a queue that is protected by this class's own mutex, because the thread
/// sanitizer cannot see the locks inside GLib.
void MainLoopThread::post(Task task)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    attach(g_idle_source_new(), runNext, this, nullptr);
}

MainLoopThread::Task MainLoopThread::takeTask()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Task task = std::move(m_tasks.front());
    m_tasks.pop_front();
    return task;
}

void MainLoopThread::after(std::chrono::milliseconds delay, Task task)
{
    attach(g_timeout_source_new(static_cast<guint>(delay.count())), runTask,
           new Task(std::move(task)), deleteTask);
}

gboolean MainLoopThread::runNext(gpointer self)
{
    static_cast<MainLoopThread *>(self)->takeTask()();
    return G_SOURCE_REMOVE;
}

/// Attaches the source to the context. g_main_context_invoke() is not suitable, because it runs the
/// task on the caller's thread if the loop is not running.
void MainLoopThread::attach(GSource *source, GSourceFunc function, gpointer data,
                            GDestroyNotify destroy)
{
    g_source_set_priority(source, G_PRIORITY_DEFAULT);
    g_source_set_callback(source, function, data, destroy);
    g_source_attach(source, m_context);
    g_source_unref(source);
}

void MainLoopThread::run(const Task &task)
{
    if (isCurrent())
        return task();
    Latch done;
    post([&] {
        task();
        done.open();
    });
    done.wait();
}

void MainLoopThread::runUntil(const std::function<bool()> &condition,
                              std::chrono::milliseconds limit)
{
    const auto isOver = std::make_shared<bool>(false);
    after(limit, [isOver] { *isOver = true; });
    while (!condition() && !*isOver)
        g_main_context_iteration(m_context, TRUE);
}

void MainLoopThread::stop(const Task &last)
{
    if (!m_thread.isStarted())
        return;
    post([this, last] {
        last();
        g_main_loop_quit(m_loop);
    });
    m_thread.finish(NO_LIMIT);
}

} // namespace Tksv
