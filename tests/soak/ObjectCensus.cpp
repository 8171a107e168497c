#include "ObjectCensus.h"

#include <private/qhooks_p.h>
#include <QAbstractEventDispatcher>
#include <QObject>
#include <QThread>

#include <mutex>
#include <unordered_set>

namespace
{

/**
 * Never destroyed, because objects may still be deleted after static objects have been destroyed.
 */
struct Census {
    std::mutex mutex;
    std::unordered_set<QObject *> living;
};

Census &census()
{
    static Census *const instance = new Census;
    return *instance;
}

void addObject(QObject *object)
{
    const std::lock_guard<std::mutex> lock(census().mutex);
    census().living.insert(object);
}

void removeObject(QObject *object)
{
    const std::lock_guard<std::mutex> lock(census().mutex);
    census().living.erase(object);
}

} // namespace

namespace ObjectCensus
{

void install()
{
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&addObject);
    qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(&removeObject);
}

int objects()
{
    const std::lock_guard<std::mutex> lock(census().mutex);
    return int(census().living.size());
}

int timers()
{
    const QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    const std::lock_guard<std::mutex> lock(census().mutex);
    int count = 0;
    for (QObject *object : census().living) {
        if (object->thread() == QThread::currentThread())
            count += dispatcher->registeredTimers(object).size();
    }
    return count;
}

} // namespace ObjectCensus
