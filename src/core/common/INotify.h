#ifndef INOTIFY_H
#define INOTIFY_H

#include <QtPlugin>

/**
 * Receives the host's events. A plug-in object implements it beside its other interfaces; the
 * host finds it by qobject_cast and calls it on the GUI thread.
 */
class INotify
{
public:
    /// Lets the host delete a plug-in object through this interface.
    virtual ~INotify() {}

    /// Handles `event`, one of the EVENT_ constants of PluginContract, and ignores an unknown one.
    /// The meaning of the two parameters depends on the event. Returns 0 in any case, so a host
    /// cannot learn from the result whether the event was known.
    virtual int Notify(unsigned int event, unsigned int param1, unsigned int param2) = 0;
};

Q_DECLARE_INTERFACE(INotify, "com.zelvor.portalcompass.plugin.INotify")

#endif
