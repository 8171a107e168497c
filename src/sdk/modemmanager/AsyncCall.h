#ifndef TKSV_INTERNAL_ASYNCCALL_H
#define TKSV_INTERNAL_ASYNCCALL_H

#include <functional>
#include <gio/gio.h>
#include <memory>
#include <utility>

/* Functions for using lambdas as call-backs of GIO's asynchronous functions. */

namespace Tksv
{

using AsyncDone = std::function<void(GObject *source, GAsyncResult *result)>;

/// A GAsyncReadyCallback. Its user data must be a pointer returned by asyncDone().
inline void runAsyncDone(GObject *source, GAsyncResult *result, gpointer done)
{
    const std::unique_ptr<AsyncDone> owned(static_cast<AsyncDone *>(done));
    (*owned)(source, result);
}

/// Returns the user data for runAsyncDone(), which calls `done` and then deletes the user data.
/// There is no leak, because GIO calls every call-back exactly once.
inline gpointer asyncDone(AsyncDone done)
{
    return new AsyncDone(std::move(done));
}

/// Returns a function that calls `function`, but does nothing if the owner has been deleted by
/// then.
template <typename Owner, typename Function>
AsyncDone ifAlive(const std::weak_ptr<Owner> &owner, Function function)
{
    return [owner, function](GObject *source, GAsyncResult *result) {
        if (const std::shared_ptr<Owner> alive = owner.lock())
            function(source, result);
    };
}

/** A GCancellable that is cancelled when the object is destroyed. */
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

} // namespace Tksv

#endif
