#ifndef NOTIFICATIONSERVICE_H
#define NOTIFICATIONSERVICE_H

#include <QObject>

#include "INotifyService.h"
#include "PaidType.h"

namespace Dashboard
{

/** Receives the messages that plug-ins send to the dashboard. GUI thread. */
class NotificationService : public QObject, public INotifyService
{
    Q_OBJECT
    Q_INTERFACES(INotifyService)
public:
    /// The identifier under which plug-ins look for the service.
    static const char *const CLSID;
    /// The addressees: two parts of a host that need to know the kind of the SIM. In the dashboard
    /// one window is both of them, so it receives each message twice.
    static const char *const ADDRESSEES[2];

    explicit NotificationService(QObject *parent = nullptr);

    int Notify(const QString &addressee, unsigned int message, NotifyParam wParam,
               NotifyParam lParam) override;

signals:
    /// Emitted when the network has reported the kind of the SIM or did not answer in time, once
    /// for each addressee.
    void paidTypeTold(PaidType type);
};

} // namespace Dashboard

#endif
