#ifndef SIMFOLLOWER_H
#define SIMFOLLOWER_H

#include <QObject>

#include "PaidTypeFinder.h"
#include "plugin/ReplyTap.h"
#include "plugin/UserActivity.h"

namespace Dashboard
{

class DeviceWatcher;
class LoadedPlugin;

/**
 * Keeps the plug-in and the dashboard up to date with the SIM. Notifies the plug-in of another SIM,
 * and reports which windows to offer for the SIM and whether it is prepaid or postpaid. GUI thread.
 * Only one follower may exist at a time, constructed before the plug-in is loaded.
 */
class SimFollower : public QObject
{
    Q_OBJECT
public:
    /// The plug-in and the device must outlive the follower.
    SimFollower(LoadedPlugin *plugin, const DeviceWatcher *device, QObject *parent = nullptr);

    /// Returns "Prepaid", "Postpaid" or that the network is being asked, in the user's language;
    /// empty when the kind is unknown.
    QString paidTypeText() const;
    bool isAsking() const { return m_finder.isAsking(); }

public slots:
    /// Starts to follow the SIM. To be called whenever the plug-in was loaded or restarted.
    void start();
    /// To be called when the network waits for an answer to a message of its own. The finder asks
    /// nothing until that session has ended.
    void questionCame();

signals:
    /// Emitted with the windows to offer for the SIM, a set of SimWindow.
    void windowsOffered(int windows);
    /// Emitted when the result of paidTypeText() or isAsking() has changed.
    void paidTypeChanged();
    void frameClosed();
    /// Emitted when a command typed by the user has ended.
    void commandEnded();

private slots:
    void look();
    void onDeviceLost();
    void ask();

private:
    QString currentImsi() const;
    void offer();

    LoadedPlugin *const m_plugin;
    const DeviceWatcher *const m_device;
    ReplyTap m_replies;
    UserActivity m_activity;
    PaidTypeFinder m_finder;
    QString m_imsi; // of the SIM that the offered windows belong to
};

} // namespace Dashboard

#endif
