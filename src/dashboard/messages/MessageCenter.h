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
 * Stores network-initiated messages for the current SIM, and shows desktop notifications while the
 * window is not active. Messages of a demonstration (a simulated network) are never stored in the
 * file. All functions must be called from the GUI thread.
 */
class MessageCenter : public QObject
{
    Q_OBJECT
public:
    /// All arguments must outlive this object. If `settings` is null, messages are only kept in
    /// memory, and no notifications are shown.
    MessageCenter(MessageStore *store, const DeviceWatcher *device,
                  const DashboardSettings *settings, DesktopNotifier *notifier,
                  QObject *parent = nullptr);

    /// Sets the function that returns true if the window is active.
    void setInFront(const std::function<bool()> &isInFront) { m_isInFront = isInFront; }
    /// Sets the function that converts an IMSI to the key of the SIM.
    void setSimKey(const std::function<QString(const QString &)> &key);

public slots:
    void add(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);
    /// Shows a notification about a low balance. `amount` is the balance as displayed to the user.
    void notifyLowBalance(const QString &amount);
    /// Applies the current SIM and the current settings. Must be called when the settings have
    /// changed.
    void look();
    /// Determines the key of the SIM again. Must be called when the keys of all SIMs have changed;
    /// see forgetSimKeys().
    void renewSimKey();
    /// Removes the notification about messages. Must be called when the window has come to the
    /// front.
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
