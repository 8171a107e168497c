#ifndef INOTIFY_H
#define INOTIFY_H

#include <QtPlugin>

/** How the host tells a plug-in of an event. Called on the GUI thread. */
class INotify
{
public:
    virtual ~INotify() {}

    /// `event` is the host's number (320: the language changed, 579: check the SIM again); what
    /// the two parameters are depends on it. Unknown events are ignored. The result is 0.
    virtual int Notify(unsigned int event, unsigned int param1, unsigned int param2) = 0;
};

Q_DECLARE_INTERFACE(INotify, "com.zelvor.portalcompass.plugin.INotify")

#endif
