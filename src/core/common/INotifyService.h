#ifndef INOTIFYSERVICE_H
#define INOTIFYSERVICE_H

#include <QString>
#include <QtPlugin>

/// A message parameter, which is either a number or an address. An address is valid only during the
/// call.
typedef quintptr NotifyParam;

/**
 * The host's notification service. Plug-ins use it to send messages to other parts of the host.
 *
 * The host implements this interface in an object that IPluginContainer::GetPlugin() returns. The
 * plug-in obtains the interface with qobject_cast and calls it from the GUI thread.
 */
class INotifyService
{
public:
    virtual ~INotifyService() {}

    /// Delivers `message`, such as PluginContract::MESSAGE_PRE_POST_INFO, to the part of the host
    /// with the identifier `addressee`. The
    /// delivery is synchronous. The meaning of the two parameters depends on the message. Returns 0
    /// if the addressee exists, otherwise a non-zero number.
    virtual int Notify(const QString &addressee, unsigned int message, NotifyParam wParam,
                       NotifyParam lParam) = 0;
};

Q_DECLARE_INTERFACE(INotifyService, "com.zelvor.portalcompass.plugin.INotifyService")

#endif
