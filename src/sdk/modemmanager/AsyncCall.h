#ifndef TKSV_INTERNAL_ASYNCCALL_H
#define TKSV_INTERNAL_ASYNCCALL_H

#include <functional>
#include <gio/gio.h>
#include <memory>
#include <utility>

/* GIO's call-backs with closures in the place of user data. */

namespace tksv
{

using AsyncDone = std::function<void(GObject *source, GAsyncResult *result)>;

/// The GAsyncReadyCallback for a user data made by asyncDone(). Each call-back runs once.
inline void runAsyncDone(GObject *source, GAsyncResult *result, gpointer done)
{
    const std::unique_ptr<AsyncDone> owned(static_cast<AsyncDone *>(done));
    (*owned)(source, result);
}

inline gpointer asyncDone(AsyncDone done)
{
    return new AsyncDone(std::move(done));
}

/// A closure that does nothing when its owner is gone by the time of the call.
template <typename Owner, typename Function>
AsyncDone ifAlive(const std::weak_ptr<Owner> &owner, Function function)
{
    return [owner, function](GObject *source, GAsyncResult *result) {
        if (const std::shared_ptr<Owner> alive = owner.lock())
            function(source, result);
    };
}

/** Cancels what was started with it when it goes. */
class Cancellable
{
public:
    Cancellable() : m_cancellable(g_cancellable_new()) {}
    ~Cancellable()
    {
        g_cancellable_cancel(m_cancellable);
        g_object_unref(m_cancellable);
    }
    Cancellable(const Cancellable &) = delete;
    Cancellable &operator=(const Cancellable &) = delete;

    GCancellable *get() const { return m_cancellable; }

private:
    GCancellable *m_cancellable;
};

} // namespace tksv

#endif
