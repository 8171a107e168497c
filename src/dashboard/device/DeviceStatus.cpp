#include "DeviceStatus.h"

#include <QFile>
#include <QFileInfo>

#include "base/DashboardText.h"

namespace Dashboard
{

namespace
{

bool areSame(const TKSV_Modes &a, const TKSV_Modes &b)
{
    return a.allowed == b.allowed && a.preferred == b.preferred;
}

/// Returns the text key of the reason why the device cannot be used, or null if it can be used.
const char *trouble(const DeviceStatus &status)
{
    if (status.problem == TKSV_PROBLEM_REGISTRATION_DENIED)
        return "STATE_DENIED";
    if (status.problem == TKSV_PROBLEM_PUK_NEEDED)
        return "STATE_BLOCKED";
    switch (status.state) {
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
           imsi == other.imsi && source == other.source && problem == other.problem &&
           pinRetries == other.pinRetries && homeNetwork == other.homeNetwork &&
           simOperator == other.simOperator && isLooking == other.isLooking &&
           hasForeignSession == other.hasForeignSession && waitsForTurn == other.waitsForTurn &&
           isRoaming == other.isRoaming && equipmentId == other.equipmentId &&
           areSame(modes.current, other.modes.current) &&
           areSame(modes.withOlder, other.modes.withOlder) &&
           modes.hasFailed == other.modes.hasFailed;
}

bool DeviceStatus::isRegistered() const
{
    return state == TKSV_DEVICE_REGISTERED;
}

bool DeviceStatus::waitsForPin() const
{
    return state == TKSV_DEVICE_SIM_LOCKED && problem != TKSV_PROBLEM_PUK_NEEDED;
}

bool DeviceStatus::mayBecomeReady() const
{
    return problem == TKSV_PROBLEM_NONE && (state == TKSV_DEVICE_SEARCHING || isLooking);
}

bool DeviceStatus::mayBeFound() const
{
    return !isSimulated && !isLooking && state == TKSV_DEVICE_ABSENT;
}

QString DeviceStatus::operatorText() const
{
    if (!operatorName.isEmpty())
        return operatorName;
    if (state == TKSV_DEVICE_SEARCHING && problem == TKSV_PROBLEM_NONE)
        return dashboardText("STATE_SEARCHING");
    if (isLooking)
        return dashboardText("STATE_LOOKING");
    const bool isModemMissing = !isSimulated && state == TKSV_DEVICE_ABSENT;
    return dashboardText(isModemMissing ? "OPERATOR_NO_MODEM" : "OPERATOR_NONE");
}

QString DeviceStatus::signalText() const
{
    if (signalPercent < 0)
        return dashboardText("SIGNAL_UNKNOWN");
    return dashboardText("SIGNAL_PERCENT").arg(signalPercent);
}

QString DeviceStatus::troubleText() const
{
    const char *key = trouble(*this);
    return key ? dashboardText(key) : QString();
}

// Returns the IMSI, or the reason why it is not available. While the device is searching for a
// network, it has a SIM even if the IMSI is not known yet.
QString DeviceStatus::simText() const
{
    if (isLooking)
        return QString();
    if (state != TKSV_DEVICE_SEARCHING && trouble(*this))
        return troubleText();
    return imsi.isEmpty() ? dashboardText("SIM_WITHOUT_IMSI") : dashboardText("SIM_IMSI").arg(imsi);
}

QString DeviceStatus::triesText() const
{
    if (pinRetries == 1)
        return dashboardText("PIN_LAST_TRY");
    return pinRetries < 0 ? QString() : dashboardText("PIN_TRIES").arg(pinRetries);
}

QString DeviceStatus::sourceText() const
{
    if (isSimulated)
        return dashboardText("SOURCE_SIMULATED").arg(QFileInfo(source).fileName());
    if (source.isEmpty())
        return dashboardText(isLooking ? "SOURCE_LOOKING" : "SOURCE_MODEM_NONE");
    return dashboardText("SOURCE_MODEM").arg(source);
}

DeviceStatus readDeviceStatus()
{
    TKSV_DeviceInfo info = {};
    TKSV_Device_GetInfo(&info);
    DeviceStatus status;
    status.isSimulated = info.backend == TKSV_BACKEND_SIMULATOR;
    status.state = info.state;
    status.problem = info.problem;
    status.pinRetries = info.pinRetries;
    status.signalPercent = info.signalPercent;
    status.operatorName = QString::fromUtf8(info.operatorName);
    status.imsi = QString::fromUtf8(info.imsi);
    status.homeNetwork = QString::fromUtf8(info.simOperatorCode);
    status.simOperator = QString::fromUtf8(info.simOperatorName);
    status.isLooking = info.isLooking != 0;
    status.isRoaming = info.isRoaming != 0;
    status.equipmentId = QString::fromUtf8(info.equipmentId);
    TKSV_Device_GetModes(&status.modes);
    status.hasForeignSession = info.hasForeignSession != 0;
    status.waitsForTurn = info.waitsForTurn != 0;
    status.source =
        status.isSimulated ? QFile::decodeName(info.source) : QString::fromUtf8(info.source);
    return status;
}

} // namespace Dashboard
