#ifndef PAIDTYPEFINDER_H
#define PAIDTYPEFINDER_H

#include <QObject>
#include <QTimer>

#include "NotificationService.h"
#include "PaidType.h"
#include "plugin/PluginContainer.h"

class UiPlugin;

/**
 * Has the plug-in ask the network, once for each SIM, whether it is prepaid or postpaid. The
 * plug-in ends what is open on the device before it asks, so the question waits until the user
 * needs nothing of it. GUI thread; nothing here waits.
 */
class PaidTypeFinder : public QObject
{
    Q_OBJECT
public:
    /// `plugin` outlives the finder.
    explicit PaidTypeFinder(UiPlugin *plugin, QObject *parent = nullptr);

    PaidType paidType() const { return m_type; }
    /// Whether the question is on its way.
    bool isAsking() const { return m_timeLimit.isActive(); }

    /// There is a SIM, perhaps another one: forgets what was found, and wants the question asked.
    void restart();
    /// Asks, unless that was done or is too early. To be called while the device can be used and
    /// nobody else uses it.
    void tryToAsk();

signals:
    /// It is no longer too early to ask.
    void settled();
    /// What paidType() or isAsking() says is something else now.
    void changed();

private slots:
    void takeAnswer(PaidType type);
    void giveUp();

private:
    void setState(PaidType type, bool asking);

    UiPlugin *const m_plugin;
    NotificationService m_notifications;
    PluginContainer m_container;
    QTimer m_settling;  // runs while it is too early
    QTimer m_timeLimit; // runs while the question is on its way
    PaidType m_type = PaidType::Unknown;
    bool m_isWanted = false;
};

#endif
