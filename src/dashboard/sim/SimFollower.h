#ifndef SIMFOLLOWER_H
#define SIMFOLLOWER_H

#include <QObject>

#include "PaidTypeFinder.h"
#include "plugin/ReplyTap.h"
#include "plugin/UserActivity.h"

class DeviceWatcher;
class UiPlugin;

/**
 * Keeps plug-in and dashboard up to date with the SIM: tells the plug-in when it is another one,
 * which windows go with it, and whether it is prepaid or postpaid. GUI thread; one at a time; made
 * before the plug-in is loaded.
 */
class SimFollower : public QObject
{
    Q_OBJECT
public:
    /// Both outlive the follower.
    SimFollower(UiPlugin *plugin, const DeviceWatcher *device, QObject *parent = nullptr);

    /// "Prepaid", "Postpaid", or that it is being asked; empty when it is not known.
    QString paidTypeText() const;
    bool isAsking() const { return m_finder.isAsking(); }

public slots:
    /// The plug-in is there now, perhaps anew.
    void start();
    /// The network waits for an answer to a text of its own: nothing is asked until it has ended.
    void questionCame();

signals:
    /// These windows go with the SIM, a set of SimWindow.
    void windowsOffered(int windows);
    /// What paidTypeText() or isAsking() says is something else now.
    void paidTypeChanged();
    void frameClosed();
    /// A command that the user typed has ended.
    void commandEnded();

private slots:
    void look();
    void onDeviceLost();
    void ask();

private:
    QString currentImsi() const;
    void offer();

    UiPlugin *const m_plugin;
    const DeviceWatcher *const m_device;
    ReplyTap m_replies;
    UserActivity m_activity;
    PaidTypeFinder m_finder;
    QString m_imsi; // of the SIM that was offered for
};

#endif
