#ifndef NOTIFICATIONSERVICE_H
#define NOTIFICATIONSERVICE_H

#include <QObject>

#include "INotifyService.h"
#include "PaidType.h"

/** What plug-ins tell the dashboard. GUI thread. */
class NotificationService : public QObject, public INotifyService
{
    Q_OBJECT
    Q_INTERFACES(INotifyService)
public:
    /// The identifier under which plug-ins look for the service.
    static const char *const CLSID;
    /// Whom they address: the two parts of a host that want to know what SIM there is. Here one
    /// window is both, so what it is told twice it takes once.
    static const char *const ADDRESSEES[2];

    explicit NotificationService(QObject *parent = nullptr);

    int Notify(const QString &addressee, unsigned int message, NotifyParam wParam,
               NotifyParam lParam) override;

signals:
    /// The network has said which kind the SIM is, or did not answer; comes for each addressee.
    void paidTypeTold(PaidType type);
};

#endif
