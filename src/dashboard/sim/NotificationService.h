#ifndef NOTIFICATIONSERVICE_H
#define NOTIFICATIONSERVICE_H

#include <QObject>

#include "INotifyService.h"
#include "PaidType.h"

namespace Dashboard
{

/**
 * Receives the messages that plug-ins send to the dashboard. All functions must be called from the
 * GUI thread.
 */
class NotificationService : public QObject, public INotifyService
{
    Q_OBJECT
    Q_INTERFACES(INotifyService)
public:
    /// The identifier under which plug-ins find the service.
    static const char *const CLSID;
    /// The addressees of the messages, which represent two components of a host that show the type
    /// of contract. The dashboard does not distinguish these components and therefore receives each
    /// message twice.
    static const char *const ADDRESSEES[2];

    explicit NotificationService(QObject *parent = nullptr);

    int Notify(const QString &addressee, unsigned int message, NotifyParam wParam,
               NotifyParam lParam) override;

signals:
    /// Emitted once for each addressee when the network has reported the type of contract or did
    /// not reply in time.
    void paidTypeTold(PaidType type);
};

} // namespace Dashboard

#endif
