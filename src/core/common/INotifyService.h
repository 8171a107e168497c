#ifndef INOTIFYSERVICE_H
#define INOTIFYSERVICE_H

#include <QString>
#include <QtPlugin>

/// A parameter of a message: a number or an address. An address is valid during the call only.
typedef quintptr NotifyParam;

/**
 * The host's notification service. A plug-in uses it to send messages to other parts of the host.
 *
 * The host implements it in an object that IPluginContainer::GetPlugin() returns. The plug-in finds
 * it with qobject_cast and calls it on the GUI thread.
 */
class INotifyService
{
public:
    virtual ~INotifyService() {}

    /// Delivers `message`, such as PluginContract::MESSAGE_PRE_POST_INFO, to `addressee` before it
    /// returns. The meaning of the two parameters depends on the message. Returns 0 if the
    /// addressee exists, otherwise any other number.
    virtual int Notify(const QString &addressee, unsigned int message, NotifyParam wParam,
                       NotifyParam lParam) = 0;
};

Q_DECLARE_INTERFACE(INotifyService, "com.zelvor.portalcompass.plugin.INotifyService")

#endif
