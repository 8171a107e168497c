#include "DeviceStatus.h"

#include <QFile>
#include <QFileInfo>

#include "DashboardText.h"
#include "tksv_device.h"

namespace
{

/// Why the device cannot be used; null when it can.
const char *trouble(int state)
{
    switch (state) {
    case TKSV_DEVICE_ABSENT:
        return "STATE_ABSENT";
    case TKSV_DEVICE_SIM_MISSING:
        return "STATE_SIM_MISSING";
    case TKSV_DEVICE_SIM_LOCKED:
        return "STATE_SIM_LOCKED";
    case TKSV_DEVICE_DISABLED:
        return "STATE_DISABLED";
    case TKSV_DEVICE_SEARCHING:
        return "STATE_SEARCHING";
    default:
        return nullptr;
    }
}

} // namespace

bool DeviceStatus::operator==(const DeviceStatus &other) const
{
    return isSimulated == other.isSimulated && state == other.state &&
           signalPercent == other.signalPercent && operatorName == other.operatorName &&
           imsi == other.imsi && source == other.source;
}

bool DeviceStatus::isRegistered() const
{
    return state == TKSV_DEVICE_REGISTERED;
}

QString DeviceStatus::operatorText() const
{
    if (!operatorName.isEmpty())
        return operatorName;
    return dashboardText(state == TKSV_DEVICE_SEARCHING ? "STATE_SEARCHING" : "OPERATOR_NONE");
}

QString DeviceStatus::signalText() const
{
    if (signalPercent < 0)
        return dashboardText("SIGNAL_UNKNOWN");
    return dashboardText("SIGNAL_PERCENT").arg(signalPercent);
}

QString DeviceStatus::troubleText() const
{
    const char *key = trouble(state);
    return key ? dashboardText(key) : QString();
}

// A device that only searches has its SIM.
QString DeviceStatus::simText() const
{
    if (state != TKSV_DEVICE_SEARCHING && trouble(state))
        return troubleText();
    return imsi.isEmpty() ? dashboardText("SIM_WITHOUT_IMSI") : dashboardText("SIM_IMSI").arg(imsi);
}

QString DeviceStatus::sourceText() const
{
    if (isSimulated)
        return dashboardText("SOURCE_SIMULATED").arg(QFileInfo(source).fileName());
    return dashboardText("SOURCE_MODEM").arg(source);
}

DeviceStatus readDeviceStatus()
{
    TKSV_DeviceInfo info = {};
    TKSV_Device_GetInfo(&info);
    DeviceStatus status;
    status.isSimulated = info.backend == TKSV_BACKEND_SIMULATOR;
    status.state = info.state;
    status.signalPercent = info.signalPercent;
    status.operatorName = QString::fromUtf8(info.operatorName);
    status.imsi = QString::fromUtf8(info.imsi);
    status.source =
        status.isSimulated ? QFile::decodeName(info.source) : QString::fromUtf8(info.source);
    return status;
}
