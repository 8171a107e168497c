#include "MessageCenter.h"

#include "account/SimKey.h"
#include "base/DashboardText.h"
#include "device/DashboardSettings.h"
#include "device/DeviceWatcher.h"
#include "MessageStore.h"

namespace Dashboard
{

namespace
{

QString userSimKey(const QString &imsi)
{
    return simKey(imsi);
}

} // namespace

MessageCenter::MessageCenter(MessageStore *store, const DeviceWatcher *device,
                             const DashboardSettings *settings, DesktopNotifier *notifier,
                             QObject *parent)
    : QObject(parent), m_store(store), m_device(device), m_settings(settings), m_notifier(notifier),
      m_isInFront([] { return true; }), m_simKey(userSimKey)
{
    connect(device, &DeviceWatcher::changed, this, &MessageCenter::look);
    connect(device, &DeviceWatcher::lost, store, &MessageStore::endWaiting);
    look();
}

void MessageCenter::setSimKey(const std::function<QString(const QString &)> &key)
{
    m_simKey = key;
    renewSimKey();
}

void MessageCenter::renewSimKey()
{
    m_imsi.clear();
    look();
}

/// Selects the messages of the current SIM. If the device disappears, its messages stay visible
/// until another SIM is known, because the device may return with the same SIM.
void MessageCenter::look()
{
    const DeviceStatus &status = m_device->status();
    m_store->setStoring(m_settings && m_settings->keepsHistory() && !status.isSimulated);
    const bool isOther = status.isSimulated != m_isSimulated;
    if (!isOther && (status.imsi.isEmpty() || status.imsi == m_imsi))
        return;
    m_isSimulated = status.isSimulated;
    m_imsi = status.imsi;
    // Without settings, nothing is stored, so the IMSI does not have to be hashed.
    m_store->setSim(status.isSimulated || !m_settings ? status.imsi : m_simKey(status.imsi));
}

void MessageCenter::add(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer)
{
    look();
    const QString &name = m_device->status().operatorName;
    const QString sender = name.isEmpty() ? dashboardText("MESSAGE_NETWORK") : name;
    notify(m_store->add(sender, text, receivedAt, waitsForAnswer), waitsForAnswer);
}

/// Shows a notification. It contains the text of the message only if the user has enabled this,
/// because notifications may be visible on a locked screen.
void MessageCenter::notify(const Message &message, bool waitsForAnswer)
{
    if (!m_settings || !m_settings->notifiesMessages() || m_isInFront())
        return;
    DesktopNote note;
    note.id = message.id;
    note.title = dashboardText("MESSAGE_FROM").arg(message.sender);
    if (m_settings->showsTextInNotifications() && !message.text.isEmpty())
        note.body = message.text;
    else
        note.body =
            dashboardText(waitsForAnswer ? "MESSAGE_WAITS_SENTENCE" : "MESSAGE_NEW_SENTENCE");
    m_notifier->notify(note);
}

void MessageCenter::notifyLowBalance(const QString &amount)
{
    DesktopNote note;
    note.kind = DesktopNote::Kind::LowBalance;
    note.title = dashboardText("APP_TITLE");
    note.body = dashboardText("MESSAGE_LOW_BALANCE").arg(amount);
    m_notifier->notify(note);
}

void MessageCenter::onInFront()
{
    m_notifier->withdraw(DesktopNote::Kind::Message);
}

} // namespace Dashboard
