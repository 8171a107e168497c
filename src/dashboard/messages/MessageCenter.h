#ifndef MESSAGECENTER_H
#define MESSAGECENTER_H

#include <QObject>

#include <functional>

#include "DesktopNotifier.h"
#include "Message.h"

namespace Dashboard
{

class DashboardSettings;
class DeviceWatcher;
class MessageStore;

/**
 * Receives the network-initiated messages: stores them for the current SIM and notifies the user
 * while the window is not in front. Messages of the demonstration are never stored in the file. All
 * functions must be called from the GUI thread.
 */
class MessageCenter : public QObject
{
    Q_OBJECT
public:
    /// All arguments must outlive the center. If `settings` is null, messages are kept in memory
    /// and the user is not notified.
    MessageCenter(MessageStore *store, const DeviceWatcher *device,
                  const DashboardSettings *settings, DesktopNotifier *notifier,
                  QObject *parent = nullptr);

    /// Sets the function that returns true if the window is in front of the user.
    void setInFront(const std::function<bool()> &isInFront) { m_isInFront = isInFront; }
    /// Sets the function that returns the key of the SIM with this IMSI.
    void setSimKey(const std::function<QString(const QString &)> &key);

public slots:
    void add(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);
    /// Notifies the user of a low balance. `amount` is the amount as it is shown to the user.
    void notifyLowBalance(const QString &amount);
    /// Follows the SIM and the settings. Must be called when the settings have changed.
    void look();
    /// Determines the key of the SIM again.
    void renewSimKey();
    /// Must be called when the window has come to the front.
    void onInFront();

private:
    void notify(const Message &message, bool waitsForAnswer);

    MessageStore *const m_store;
    const DeviceWatcher *const m_device;
    const DashboardSettings *const m_settings;
    DesktopNotifier *const m_notifier;
    std::function<bool()> m_isInFront;
    std::function<QString(const QString &)> m_simKey;
    QString m_imsi;
    bool m_isSimulated = false;
};

} // namespace Dashboard

#endif
