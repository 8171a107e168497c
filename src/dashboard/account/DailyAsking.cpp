#include "DailyAsking.h"

#include "device/DashboardSettings.h"
#include "device/DeviceWatcher.h"
#include "plugin/CommandMonitor.h"
#include "plugin/UserActivity.h"
#include "SimKey.h"

namespace Dashboard
{

namespace
{

const int INTERVAL = 5 * 60 * 1000; // ms between two calls to look()
const qint64 SECONDS_IN_HOUR = 3600;

QString userSimKey(const QString &imsi)
{
    return simKey(imsi);
}

} // namespace

DailyAsking::DailyAsking(CommandMonitor *monitor, const DeviceWatcher *device,
                         DashboardSettings *settings, QObject *parent)
    : QObject(parent), m_monitor(monitor), m_device(device), m_settings(settings),
      m_simKey(userSimKey)
{
    connect(monitor, &CommandMonitor::replied, this, [this](const QString &code) {
        if (code == m_code)
            note();
    });
    connect(monitor, &CommandMonitor::sent, this, [this](const QString &code) {
        if (code == m_code)
            note();
    });
    connect(device, SIGNAL(changed()), this, SLOT(look()), Qt::QueuedConnection);
    connect(&m_timer, &QTimer::timeout, this, &DailyAsking::look);
    m_timer.start(INTERVAL);
}

void DailyAsking::setCode(const QString &code)
{
    m_code = code;
}

void DailyAsking::look()
{
    if (!m_settings || !m_settings->asksDaily() || m_code.isEmpty() || !mayAsk() || !isDue())
        return;
    note(); // precedes send(), so that the code is not sent again if it fails
    m_monitor->send(m_code);
}

/// Returns true if the device and the user are idle and the device is registered with the SIM's
/// home network. Codes may be more expensive in other networks.
bool DailyAsking::mayAsk() const
{
    const DeviceStatus &status = m_device->status();
    return status.isRegistered() && !status.isRoaming && !status.hasForeignSession &&
           !status.waitsForTurn && !sim().isEmpty() && !UserActivity::isBusy() &&
           m_monitor->state().kind == CommandState::Kind::Ready && m_monitor->canSend() &&
           m_mayAsk();
}

/// Returns true if there was no query in the last 24 hours. A time in the future, which results
/// from a wrong clock, is ignored if it is at least 24 hours ahead.
bool DailyAsking::isDue() const
{
    const QDateTime last = m_settings->lastAsked(sim());
    return !last.isValid() || qAbs(last.secsTo(m_clock())) >= HOURS * SECONDS_IN_HOUR;
}

void DailyAsking::note()
{
    if (!m_settings || m_code.isEmpty())
        return; // nothing is stored, not even the random number for the key of the SIM
    const QString key = sim();
    if (!key.isEmpty())
        m_settings->setLastAsked(key, m_clock());
}

/// Returns the key that is stored instead of the IMSI of the SIM. Demonstrations use a separate
/// key.
QString DailyAsking::sim() const
{
    const DeviceStatus &status = m_device->status();
    return status.isSimulated ? QLatin1String("demonstration") : m_simKey(status.imsi);
}

void DailyAsking::forget()
{
    if (!m_settings)
        return;
    m_settings->forgetLastAsked();
    note();
}

} // namespace Dashboard
