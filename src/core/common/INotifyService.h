#ifndef INOTIFYSERVICE_H
#define INOTIFYSERVICE_H

#include <QString>
#include <QtPlugin>

/// A parameter of a message: a number or an address. An address is valid during the call only.
typedef quintptr NotifyParam;

/**
 * The host's notification service, by which a plug-in sends messages to other parts of the host.
 *
 * The host implements it in an object that IPluginContainer::GetPlugin() returns. The plug-in
 * finds it by qobject_cast and calls it on the GUI thread.
 */
class INotifyService
{
public:
    virtual ~INotifyService() {}

    /// Delivers `message`, such as PluginContract::MESSAGE_PRE_POST_INFO, to `addressee` before it
    /// returns. The meaning of the two parameters depends on the message. Returns 0 when the
    /// addressee exists, and any other number when it does not.
    virtual int Notify(const QString &addressee, unsigned int message, NotifyParam wParam,
                       NotifyParam lParam) = 0;
};

Q_DECLARE_INTERFACE(INotifyService, "com.zelvor.portalcompass.plugin.INotifyService")

#endif
