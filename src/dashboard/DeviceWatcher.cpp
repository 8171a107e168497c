#include "DeviceWatcher.h"

#include <atomic>

#include "tksv_device.h"

namespace
{

std::atomic<DeviceWatcher *> watching(nullptr); // device events carry no context

} // namespace

DeviceWatcher::DeviceWatcher(QObject *parent) : QObject(parent), m_status(readDeviceStatus())
{
    watching = this;
    TKSV_DevSrv_RegisterDevInitEventCallback(onDeviceEvent);
    TKSV_Device_SetInfoCallback(onInfoChanged, this);
}

DeviceWatcher::~DeviceWatcher()
{
    // Both wait for a call-back that runs.
    TKSV_Device_SetInfoCallback(nullptr, nullptr);
    TKSV_DevSrv_UnRegisterDevInitEventCallback(onDeviceEvent);
    watching = nullptr;
}

void DeviceWatcher::refresh()
{
    const DeviceStatus status = readDeviceStatus();
    if (status == m_status)
        return;
    m_status = status;
    emit changed();
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
