#ifndef SHOWNDEVICE_H
#define SHOWNDEVICE_H

#include <QList>

#include "device/DeviceStatus.h"
#include "device/Modem.h"

namespace Dashboard
{

class DeviceWatcher;

/** Makes the dashboard show a device that this computer does not have, as long as it exists. */
class ShownDevice
{
public:
    /// `watcher` must outlive this object.
    explicit ShownDevice(DeviceWatcher &watcher) : m_watcher(watcher) {}
    ~ShownDevice();
    ShownDevice(const ShownDevice &) = delete;
    ShownDevice &operator=(const ShownDevice &) = delete;

    /// Shows a modem in this state without a network.
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
