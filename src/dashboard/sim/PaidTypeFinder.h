#ifndef PAIDTYPEFINDER_H
#define PAIDTYPEFINDER_H

#include <QObject>
#include <QTimer>

#include "NotificationService.h"
#include "PaidType.h"
#include "plugin/PluginContainer.h"

namespace Dashboard
{

class LoadedPlugin;
class ReplyTap;

/**
 * Makes the plug-in ask the network, once for each SIM, whether the SIM is prepaid or postpaid. The
 * plug-in first ends an open session on the device, so the query is delayed while the user needs
 * the device. Must be used on the GUI thread. No function blocks.
 */
class PaidTypeFinder : public QObject
{
    Q_OBJECT
public:
    /// `plugin` and `replies` must outlive the finder.
    PaidTypeFinder(LoadedPlugin *plugin, ReplyTap *replies, QObject *parent = nullptr);

    PaidType paidType() const { return m_type; }
    /// Returns whether the query was sent and its answer is pending.
    bool isAsking() const { return m_timeLimit.isActive(); }

    /// Discards the result, so that the query is sent for the SIM that is present now.
    void restart();
    /// Sends the query. Does nothing if the query was already sent or the settling time has not
    /// passed. Must be called only while the device is ready and nobody else uses it.
    void tryToAsk();

signals:
    /// Emitted when the settling time has passed, so that the query may be sent.
    void settled();
    /// Emitted when the result of paidType() or isAsking() has changed.
    void changed();

private slots:
    void takeAnswer(PaidType type);
    void giveUp();

private:
    void setState(PaidType type, bool asking);

    LoadedPlugin *const m_plugin;
    ReplyTap *const m_replies;
    NotificationService m_notifications;
    PluginContainer m_container;
    QTimer m_settling;  // runs while it is too early to send the query
    QTimer m_timeLimit; // runs while the answer is pending
    PaidType m_type = PaidType::Unknown;
    bool m_isWanted = false;
};

} // namespace Dashboard

#endif
