#include "ShownDevice.h"

#include "device/DeviceWatcher.h"
#include "tksv_device.h"

namespace Dashboard
{

const char *const ShownDevice::MODEL = "Northwind N7";

ShownDevice::~ShownDevice()
{
    m_watcher.readFrom(nullptr);
}

void ShownDevice::show(int state, int problem, const char *model)
{
    DeviceStatus status;
    status.isSimulated = false;
    status.state = state;
    status.problem = problem;
    status.source = QLatin1String(model);
    show(status);
}

void ShownDevice::show(const DeviceStatus &status)
{
    DeviceReading reading = {status, m_modems};
    m_watcher.readFrom([reading] { return reading; });
}

void ShownDevice::addModem(const char *equipmentId, const char *name, bool isInUse)
{
    Modem modem;
    modem.equipmentId = QLatin1String(equipmentId);
    modem.name = QLatin1String(name);
    modem.isInUse = isInUse;
    m_modems << modem;
}

DeviceStatus ShownDevice::registered(const char *operatorName, const char *homeNetwork)
{
    DeviceStatus status;
    status.isSimulated = false;
    status.state = TKSV_DEVICE_REGISTERED;
    status.operatorName = QLatin1String(operatorName);
    status.signalPercent = 78;
    status.imsi = QLatin1String(homeNetwork) + QLatin1String("0123456789");
    status.homeNetwork = QLatin1String(homeNetwork);
    status.source = QLatin1String(MODEL);
    return status;
}

} // namespace Dashboard
