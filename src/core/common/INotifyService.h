#ifndef INOTIFYSERVICE_H
#define INOTIFYSERVICE_H

#include <QString>
#include <QtPlugin>

/// Carries a number or an address; an address is valid during the call only.
typedef quintptr NotifyParam;

/** The host's notification service, found among its plug-ins. Called on the GUI thread. */
class INotifyService
{
public:
    virtual ~INotifyService() {}

    /// Hands `message` to `addressee` before it returns. 0 when there was one.
    virtual int Notify(const QString &addressee, unsigned int message, NotifyParam wParam,
                       NotifyParam lParam) = 0;
};

Q_DECLARE_INTERFACE(INotifyService, "com.zelvor.portalcompass.plugin.INotifyService")

#endif
