#ifndef SHOWNDEVICE_H
#define SHOWNDEVICE_H

#include <QList>

#include "device/DeviceStatus.h"
#include "device/Modem.h"

namespace Dashboard
{

class DeviceWatcher;

/** While this object exists, the dashboard shows a device that is not connected to the computer. */
class ShownDevice
{
public:
    /// `watcher` must outlive this object.
    explicit ShownDevice(DeviceWatcher &watcher) : m_watcher(watcher) {}
    ~ShownDevice();
    ShownDevice(const ShownDevice &) = delete;
    ShownDevice &operator=(const ShownDevice &) = delete;

    /// Shows a modem with this state and problem, but without a network.
    void show(int state, int problem, const char *model = "");
    void show(const DeviceStatus &status);
    void addModem(const char *equipmentId, const char *name, bool isInUse);

    /// Returns the status of a registered modem whose SIM has this home network.
    static DeviceStatus registered(const char *operatorName, const char *homeNetwork);

    static const char *const MODEL;

private:
    DeviceWatcher &m_watcher;
    QList<Modem> m_modems;
};

} // namespace Dashboard

#endif
