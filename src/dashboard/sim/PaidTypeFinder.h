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
 * Makes the plug-in query whether the SIM is prepaid or postpaid, once for each SIM. Because the
 * query ends any open session on the device, it is delayed while the device is in use. All
 * functions must be called from the GUI thread and return immediately.
 */
class PaidTypeFinder : public QObject
{
    Q_OBJECT
public:
    /// `plugin` and `replies` must outlive the finder.
    PaidTypeFinder(LoadedPlugin *plugin, ReplyTap *replies, QObject *parent = nullptr);

    PaidType paidType() const { return m_type; }
    /// Returns true if the query has been sent and its reply is pending.
    bool isAsking() const { return m_timeLimit.isActive(); }

    /// Discards the result, so that the query is sent again for the current SIM.
    void restart();
    /// Sends the query. Does nothing if the query has already been sent or if restart() was called
    /// less than 200 ms ago. Must be called only while the device is ready and not in use.
    void tryToAsk();

signals:
    /// Emitted 200 ms after restart(). tryToAsk() can then send the query.
    void settled();
    /// Emitted when the return value of paidType() or isAsking() has changed.
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
    QTimer m_timeLimit; // runs while the reply is pending
    PaidType m_type = PaidType::Unknown;
    bool m_isWanted = false;
};

} // namespace Dashboard

#endif
