#include "SimFollower.h"

#include "base/DashboardText.h"
#include "device/DeviceWatcher.h"
#include "plugin/LoadedPlugin.h"
#include "SimWindows.h"
#include "tksv_device.h"

namespace Dashboard
{

SimFollower::SimFollower(LoadedPlugin *plugin, const DeviceWatcher *device, QObject *parent)
    : QObject(parent), m_plugin(plugin), m_device(device), m_finder(plugin, &m_replies, this)
{
    connect(device, SIGNAL(changed()), this, SLOT(look()));
    connect(device, SIGNAL(lost()), this, SLOT(onDeviceLost()));
    connect(&m_finder, SIGNAL(settled()), this, SLOT(ask()));
    connect(&m_finder, SIGNAL(changed()), this, SIGNAL(paidTypeChanged()));
    connect(&m_activity, SIGNAL(frameClosed()), this, SIGNAL(frameClosed()));
    connect(&m_activity, SIGNAL(frameClosed()), this, SLOT(ask()));
    connect(&m_activity, SIGNAL(commandEnded()), this, SIGNAL(commandEnded()));
    connect(&m_activity, SIGNAL(commandEnded()), this, SLOT(ask()));
}

QString SimFollower::paidTypeText() const
{
    return isAsking() ? dashboardText("PAID_ASKING") : Dashboard::paidTypeText(m_finder.paidType());
}

void SimFollower::start()
{
    m_imsi = currentImsi();
    offer();
}

void SimFollower::resume()
{
    if (currentImsi() != m_imsi)
        return start();
    emit windowsOffered(windowsForSim(m_plugin->ussd(), m_imsi));
}

/// Returns the IMSI of the SIM. While the device is absent, returns the previous IMSI, because the
/// device may return with the same SIM.
QString SimFollower::currentImsi() const
{
    const DeviceStatus &status = m_device->status();
    return status.state == TKSV_DEVICE_ABSENT ? m_imsi : status.imsi;
}

void SimFollower::look()
{
    if (!m_plugin->isUsable())
        return;
    const QString imsi = currentImsi();
    if (imsi == m_imsi)
        return ask(); // the device may have registered
    if (!m_imsi.isEmpty())
        m_replies.clear();
    m_imsi = imsi;
    m_plugin->notifySimChange();
    offer();
}

void SimFollower::offer()
{
    emit windowsOffered(windowsForSim(m_plugin->ussd(), m_imsi));
    m_finder.restart();
}

// Informs the reply tap, because the message may have arrived before the tap was installed.
void SimFollower::questionCame()
{
    m_replies.expectAnswer();
}

/// Discards the state of the removed device, which no longer has an open menu.
void SimFollower::onDeviceLost()
{
    m_replies.clear();
    m_finder.restart();
}

/// Sends the prepaid/postpaid query. Does nothing while the user is using the device or a menu is
/// open, because the query would end the user's session.
void SimFollower::ask()
{
    const bool isThere = m_device->status().isRegistered() && !m_imsi.isEmpty();
    if (isThere && m_mayDetect && m_mayDetect() && !UserActivity::isBusy() &&
        !m_replies.reply().asksForAnswer)
        m_finder.tryToAsk();
}

} // namespace Dashboard
