/*
 * Wraps the Qt functions that synchronise threads, for the thread sanitizer (see TsanEvents.h).
 * Each wrapper calls the original function and informs the sanitizer about its effect. The wrappers
 * have the mangled names of the original functions, so `this` is their first parameter.
 *
 * All events share one label, because Qt does not report which signal caused an event. The
 * sanitizer therefore assumes that an event is processed after everything that was emitted or
 * posted before, by any thread. As a result, it cannot detect a data race between the emission of
 * one signal and the slot of another.
 */
#include "TsanEvents.h"

#include <QDeadlineTimer>
#include <QMetaObject>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#define STANDS_FOR(symbol) __asm__(symbol) __attribute__((visibility("default")))

namespace
{
char posted;  // released when a signal is emitted or posted, acquired when it is processed
char handled; // released when an event has been processed, acquired by the waiting thread

template <typename Function>
Function *realOne(const char *symbol)
{
    void *found = dlsym(RTLD_NEXT, symbol);
    if (!found)
        qFatal("no %s behind the test's own: %s", symbol, dlerror());
    return reinterpret_cast<Function *>(found);
}

unsigned kindOf(const QMutex *mutex)
{
    return mutex->isRecursive() ? __tsan_mutex_write_reentrant : 0;
}

void willLock(QMutex *mutex, unsigned more = 0)
{
    __tsan_mutex_pre_lock(mutex, kindOf(mutex) | more);
}

void hasLocked(QMutex *mutex, unsigned more = 0)
{
    __tsan_mutex_post_lock(mutex, kindOf(mutex) | more, 0);
}
} // namespace

void TsanEvents::acquire()
{
    __tsan_acquire(&posted);
}

void TsanEvents::releaseHandled()
{
    __tsan_release(&handled);
}

// ---- QMutex ------------------------------------------------------------------------------------

#define MUTEX_LOCK "_ZN6QMutex4lockEv"
void tsanMutexLock(QMutex *mutex) STANDS_FOR(MUTEX_LOCK);
void tsanMutexLock(QMutex *mutex)
{
    static const auto real = realOne<void(QMutex *)>(MUTEX_LOCK);
    willLock(mutex);
    real(mutex);
    hasLocked(mutex);
}

#define MUTEX_TRY_LOCK "_ZN6QMutex7tryLockEi"
bool tsanMutexTryLock(QMutex *mutex, int timeout) STANDS_FOR(MUTEX_TRY_LOCK);
bool tsanMutexTryLock(QMutex *mutex, int timeout)
{
    static const auto real = realOne<bool(QMutex *, int)>(MUTEX_TRY_LOCK);
    willLock(mutex, __tsan_mutex_try_lock);
    const bool locked = real(mutex, timeout);
    hasLocked(mutex, __tsan_mutex_try_lock | (locked ? 0 : __tsan_mutex_try_lock_failed));
    return locked;
}

#define MUTEX_UNLOCK "_ZN6QMutex6unlockEv"
void tsanMutexUnlock(QMutex *mutex) STANDS_FOR(MUTEX_UNLOCK);
void tsanMutexUnlock(QMutex *mutex)
{
    static const auto real = realOne<void(QMutex *)>(MUTEX_UNLOCK);
    __tsan_mutex_pre_unlock(mutex, 0);
    real(mutex);
    __tsan_mutex_post_unlock(mutex, 0);
}

// The sanitizer has to forget the mutex, because another mutex may later have the same address.
#define MUTEX_DESTROY "_ZN6QMutexD1Ev"
void tsanMutexDestroy(QMutex *mutex) STANDS_FOR(MUTEX_DESTROY);
void tsanMutexDestroy(QMutex *mutex)
{
    static const auto real = realOne<void(QMutex *)>(MUTEX_DESTROY);
    __tsan_mutex_destroy(mutex, 0);
    real(mutex);
}

// ---- QWaitCondition ----------------------------------------------------------------------------

namespace
{
// Informs the sanitizer that QWaitCondition unlocks the mutex, waits, and locks the mutex again.
template <typename Wait>
bool waitWithout(QMutex *mutex, Wait wait)
{
    __tsan_mutex_pre_unlock(mutex, 0);
    __tsan_mutex_post_unlock(mutex, 0);
    const bool woken = wait();
    willLock(mutex);
    hasLocked(mutex);
    return woken;
}
} // namespace

#define CONDITION_WAIT_FOR "_ZN14QWaitCondition4waitEP6QMutexm"
bool tsanWaitFor(QWaitCondition *condition, QMutex *mutex, unsigned long milliseconds)
    STANDS_FOR(CONDITION_WAIT_FOR);
bool tsanWaitFor(QWaitCondition *condition, QMutex *mutex, unsigned long milliseconds)
{
    static const auto real =
        realOne<bool(QWaitCondition *, QMutex *, unsigned long)>(CONDITION_WAIT_FOR);
    return waitWithout(mutex, [=] { return real(condition, mutex, milliseconds); });
}

#define CONDITION_WAIT_UNTIL "_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer"
bool tsanWaitUntil(QWaitCondition *condition, QMutex *mutex, QDeadlineTimer deadline)
    STANDS_FOR(CONDITION_WAIT_UNTIL);
bool tsanWaitUntil(QWaitCondition *condition, QMutex *mutex, QDeadlineTimer deadline)
{
    static const auto real =
        realOne<bool(QWaitCondition *, QMutex *, QDeadlineTimer)>(CONDITION_WAIT_UNTIL);
    return waitWithout(mutex, [=] { return real(condition, mutex, deadline); });
}

// ---- signals and events ------------------------------------------------------------------------

#define ACTIVATE "_ZN11QMetaObject8activateEP7QObjectPKS_iPPv"
void tsanActivate(QObject *sender, const QMetaObject *meta, int signal, void **arguments)
    STANDS_FOR(ACTIVATE);
void tsanActivate(QObject *sender, const QMetaObject *meta, int signal, void **arguments)
{
    static const auto real = realOne<void(QObject *, const QMetaObject *, int, void **)>(ACTIVATE);
    __tsan_release(&posted);
    real(sender, meta, signal, arguments);
}

#define POST_EVENT "_ZN16QCoreApplication9postEventEP7QObjectP6QEventi"
void tsanPostEvent(QObject *receiver, QEvent *event, int priority) STANDS_FOR(POST_EVENT);
void tsanPostEvent(QObject *receiver, QEvent *event, int priority)
{
    static const auto real = realOne<void(QObject *, QEvent *, int)>(POST_EVENT);
    __tsan_release(&posted);
    real(receiver, event, priority);
}

bool QMetaObject::invokeMethod(QObject *object, const char *member, Qt::ConnectionType type,
                               QGenericReturnArgument result, QGenericArgument a0,
                               QGenericArgument a1, QGenericArgument a2, QGenericArgument a3,
                               QGenericArgument a4, QGenericArgument a5, QGenericArgument a6,
                               QGenericArgument a7, QGenericArgument a8, QGenericArgument a9)
{
    using A = QGenericArgument;
    static const auto real =
        realOne<bool(QObject *, const char *, Qt::ConnectionType, QGenericReturnArgument, A, A, A,
                     A, A, A, A, A, A, A)>("_ZN11QMetaObject12invokeMethodEP7QObjectPKcN2Qt14"
                                           "ConnectionTypeE22QGenericReturnArgument16QGeneric"
                                           "ArgumentS7_S7_S7_S7_S7_S7_S7_S7_S7_");
    __tsan_release(&posted);
    const bool done = real(object, member, type, result, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9);
    if (type == Qt::BlockingQueuedConnection)
        __tsan_acquire(&handled);
    return done;
}

bool QMetaObject::invokeMethodImpl(QObject *object, QtPrivate::QSlotObjectBase *slot,
                                   Qt::ConnectionType type, void *result)
{
    static const auto real =
        realOne<bool(QObject *, QtPrivate::QSlotObjectBase *, Qt::ConnectionType, void *)>(
            "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14"
            "ConnectionTypeEPv");
    const bool blocks = type == Qt::BlockingQueuedConnection;
    if (blocks)
        slot->ref(); // keeps the slot object alive until its use has been recorded
    __tsan_release(&posted);
    const bool done = real(object, slot, type, result);
    if (blocks) {
        __tsan_acquire(&handled);
        slot->destroyIfLastRef();
    }
    return done;
}

// ---- QThread -----------------------------------------------------------------------------------

// Everything that a thread has done happens before QThread::wait() returns in another thread. Qt
// emits finished() in the ending thread before it wakes up the threads that wait for it.
#define THREAD_START "_ZN7QThread5startENS_8PriorityE"
void tsanThreadStart(QThread *thread, QThread::Priority priority) STANDS_FOR(THREAD_START);
void tsanThreadStart(QThread *thread, QThread::Priority priority)
{
    static const auto real = realOne<void(QThread *, QThread::Priority)>(THREAD_START);
    QObject::connect(
        thread, &QThread::finished, thread, [thread] { __tsan_release(thread); },
        Qt::DirectConnection);
    real(thread, priority);
}

#define THREAD_WAIT_FOR "_ZN7QThread4waitEm"
bool tsanThreadWaitFor(QThread *thread, unsigned long milliseconds) STANDS_FOR(THREAD_WAIT_FOR);
bool tsanThreadWaitFor(QThread *thread, unsigned long milliseconds)
{
    static const auto real = realOne<bool(QThread *, unsigned long)>(THREAD_WAIT_FOR);
    const bool ended = real(thread, milliseconds);
    if (ended)
        __tsan_acquire(thread);
    return ended;
}

#define THREAD_WAIT_UNTIL "_ZN7QThread4waitE14QDeadlineTimer"
bool tsanThreadWaitUntil(QThread *thread, QDeadlineTimer deadline) STANDS_FOR(THREAD_WAIT_UNTIL);
bool tsanThreadWaitUntil(QThread *thread, QDeadlineTimer deadline)
{
    static const auto real = realOne<bool(QThread *, QDeadlineTimer)>(THREAD_WAIT_UNTIL);
    const bool ended = real(thread, deadline);
    if (ended)
        __tsan_acquire(thread);
    return ended;
}
