#ifndef INOTIFY_H
#define INOTIFY_H

#include <QtPlugin>

/**
 * Receives events from the host. A plug-in object can implement this interface in addition to its
 * other interfaces. The host obtains the interface with qobject_cast and calls it from the GUI
 * thread.
 */
class INotify
{
public:
    /// Allows the host to delete a plug-in object through this interface.
    virtual ~INotify() {}

    /// Handles `event`, one of the EVENT_ constants of PluginContract. The meaning of the two
    /// parameters depends on the event. Unknown events are ignored. Always returns 0, even for
    /// unknown events.
    virtual int Notify(unsigned int event, unsigned int param1, unsigned int param2) = 0;
};

Q_DECLARE_INTERFACE(INotify, "com.zelvor.portalcompass.plugin.INotify")

#endif
