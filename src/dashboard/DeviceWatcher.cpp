#include "DeviceWatcher.h"

#include "tksv_device.h"

DeviceWatcher::DeviceWatcher(QObject *parent) : QObject(parent), m_status(readDeviceStatus())
{
    TKSV_Device_SetInfoCallback(onInfoChanged, this);
}

DeviceWatcher::~DeviceWatcher()
{
    TKSV_Device_SetInfoCallback(nullptr, nullptr); // waits for a call-back that runs
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
