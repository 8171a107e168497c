#include "LoopThread.h"

#include <future>
#include <pthread.h>
#include <utility>

namespace FakeModems
{

namespace
{

using Action = LoopThread::Action;

gboolean runOnce(gpointer data)
{
    (*static_cast<Action *>(data))();
    return G_SOURCE_REMOVE;
}

void forget(gpointer data)
{
    delete static_cast<Action *>(data);
}

} // namespace

LoopThread::LoopThread(const char *name)
    : m_context(g_main_context_new()), m_loop(g_main_loop_new(m_context, FALSE)),
      m_thread([this, name] {
          pthread_setname_np(pthread_self(), name);
          g_main_context_push_thread_default(m_context);
          g_main_loop_run(m_loop);
          g_main_context_pop_thread_default(m_context);
      })
{
}

void LoopThread::stop()
{
    if (!m_thread.joinable())
        return;
    post([this] { g_main_loop_quit(m_loop); });
    m_thread.join();
}

LoopThread::~LoopThread()
{
    stop();
    g_main_loop_unref(m_loop);
    g_main_context_unref(m_context);
}

/// Keeps the actions in a separate list that is protected by a mutex. The thread sanitizer
/// recognises this mutex, but not the locks in GLib.
void LoopThread::post(Action action, unsigned delayMilliseconds)
{
    const auto place = keep(std::move(action));
    GSource *source = delayMilliseconds ? g_timeout_source_new(delayMilliseconds) //
                                        : g_idle_source_new();
    g_source_set_priority(source, G_PRIORITY_DEFAULT);
    g_source_set_callback(source, runOnce, new Action([this, place] { take(place)(); }), forget);
    g_source_attach(source, m_context);
    g_source_unref(source);
}

std::list<LoopThread::Action>::iterator LoopThread::keep(Action action)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_actions.insert(m_actions.end(), std::move(action));
}

LoopThread::Action LoopThread::take(std::list<Action>::iterator place)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Action action = std::move(*place);
    m_actions.erase(place);
    return action;
}

void LoopThread::call(const Action &action)
{
    if (std::this_thread::get_id() == m_thread.get_id())
        return action();
    std::promise<void> done;
    post([&] {
        action();
        done.set_value();
    });
    done.get_future().wait();
}

} // namespace FakeModems
