#include "DeviceWatcher.h"

#include <atomic>

#include "tksv_device.h"

namespace Dashboard
{

namespace
{

std::atomic<DeviceWatcher *> watching(
    nullptr); // global, because the call-back for device events does not have a context parameter

DeviceReading readFromSdk()
{
    DeviceReading reading;
    reading.status = readDeviceStatus();
    reading.modems = readModems();
    return reading;
}

} // namespace

DeviceWatcher::DeviceWatcher(QObject *parent)
    : QObject(parent), m_source(readFromSdk), m_reading(readFromSdk())
{
    watching = this;
    TKSV_DevSrv_RegisterDevInitEventCallback(onDeviceEvent);
    TKSV_Device_SetInfoCallback(onInfoChanged, this);
}

DeviceWatcher::~DeviceWatcher()
{
    // Both calls wait until a running call-back has returned, so that no call-back uses a deleted
    // watcher.
    TKSV_Device_SetInfoCallback(nullptr, nullptr);
    TKSV_DevSrv_UnRegisterDevInitEventCallback(onDeviceEvent);
    watching = nullptr;
}

void DeviceWatcher::refresh()
{
    refreshSession();
    const DeviceReading now = m_source();
    if (now.status == m_reading.status && now.modems == m_reading.modems)
        return;
    m_reading = now;
    emit changed();
}

void DeviceWatcher::refreshSession()
{
    const Session now = readSession();
    const bool isChanged = now.state != m_session.state || now.requests != m_session.requests;
    m_session = now;
    if (isChanged)
        emit sessionChanged();
}

void DeviceWatcher::readFrom(const std::function<DeviceReading()> &source)
{
    m_source = source ? source : readFromSdk;
    refresh();
}

void DeviceWatcher::onInfoChanged(void *watcher)
{
    QMetaObject::invokeMethod(static_cast<DeviceWatcher *>(watcher), "refresh",
                              Qt::QueuedConnection);
}

unsigned char DeviceWatcher::onDeviceEvent(int event, void *)
{
    DeviceWatcher *watcher = watching;
    if (watcher && (event == TKSV_DEV_EVENT_GONE || event == TKSV_DEV_EVENT_RESET))
        QMetaObject::invokeMethod(watcher, "lost", Qt::QueuedConnection);
    return 0;
}

} // namespace Dashboard
