#ifndef SIMFOLLOWER_H
#define SIMFOLLOWER_H

#include <QObject>

#include <functional>

#include "PaidTypeFinder.h"
#include "plugin/ReplyTap.h"
#include "plugin/UserActivity.h"

namespace Dashboard
{

class DeviceWatcher;
class LoadedPlugin;

/**
 * Notifies the plug-in and the dashboard when the SIM changes. Determines which windows to offer
 * for the SIM, and whether the SIM is prepaid or postpaid. Only one follower may exist at a time,
 * and it must be constructed before the plug-in is loaded. All functions must be called from the
 * GUI thread.
 */
class SimFollower : public QObject
{
    Q_OBJECT
public:
    /// The plug-in and the device must outlive the follower.
    SimFollower(LoadedPlugin *plugin, const DeviceWatcher *device, QObject *parent = nullptr);

    /// Returns "Prepaid", "Postpaid" or a message that the prepaid/postpaid query is in progress,
    /// in the user's language. Returns an empty string if the type of contract is unknown.
    QString paidTypeText() const;
    bool isAsking() const { return m_finder.isAsking(); }
    /// Returns the tap that receives each reply. The follower owns the tap.
    ReplyTap *replies() { return &m_replies; }
    /// Sets the function that determines whether the prepaid/postpaid query may be sent. If no
    /// function is set, the query is not sent.
    void setDetectionRule(const std::function<bool()> &mayDetect) { m_mayDetect = mayDetect; }

public slots:
    /// Reads the SIM and offers its windows. Must be called each time the plug-in has been loaded
    /// or restarted.
    void start();
    /// Like start(), but keeps the type of contract of the same SIM, and does not repeat the
    /// prepaid/postpaid query. Must be called if the plug-in has been restarted with the same
    /// configuration.
    void resume();
    /// Must be called when a network-initiated message requires an answer. The prepaid/postpaid
    /// query is not sent until this session has ended.
    void questionCame();
    /// Sends the prepaid/postpaid query if it is due and permitted. Must be called when the query
    /// becomes permitted.
    void ask();

signals:
    /// Emitted with the windows to offer for the SIM, as a combination of SimWindow flags.
    void windowsOffered(int windows);
    /// Emitted when the return value of paidTypeText() or isAsking() has changed.
    void paidTypeChanged();
    void frameClosed();
    /// Emitted when a command typed by the user has ended.
    void commandEnded();

private slots:
    void look();
    void onDeviceLost();

private:
    QString currentImsi() const;
    void offer();

    LoadedPlugin *const m_plugin;
    const DeviceWatcher *const m_device;
    ReplyTap m_replies;
    UserActivity m_activity;
    PaidTypeFinder m_finder;
    std::function<bool()> m_mayDetect;
    QString m_imsi; // the IMSI of the SIM for which windows are offered
};

} // namespace Dashboard

#endif
