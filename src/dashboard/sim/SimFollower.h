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
 * Keeps the plug-in and the dashboard up to date with the SIM. Notifies the plug-in of another SIM,
 * and reports which windows to offer for the SIM and whether it is prepaid or postpaid. Must be
 * used on the GUI thread. Only one follower may exist at a time, and it must be constructed before
 * the plug-in is loaded.
 */
class SimFollower : public QObject
{
    Q_OBJECT
public:
    /// The plug-in and the device must outlive the follower.
    SimFollower(LoadedPlugin *plugin, const DeviceWatcher *device, QObject *parent = nullptr);

    /// Returns "Prepaid", "Postpaid" or a text that the network is being queried, in the user's
    /// language. Returns an empty string if the kind is unknown.
    QString paidTypeText() const;
    bool isAsking() const { return m_finder.isAsking(); }
    /// Sets the function that decides whether the network may be queried. Without it, no query is
    /// sent.
    void setDetectionRule(const std::function<bool()> &mayDetect) { m_mayDetect = mayDetect; }

public slots:
    /// Starts to follow the SIM. Must be called whenever the plug-in has been loaded or restarted.
    void start();
    /// Must be called when the network waits for an answer to a message that it sent of its own
    /// accord. The finder sends no query until that session has ended.
    void questionCame();
    /// Sends the query if it is due and allowed. Must be called when it has become allowed.
    void ask();

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
