#ifndef STARTUP_H
#define STARTUP_H

#include <QtGlobal>

class IPluginContainer;

/**
 * Gives plug-ins access to the objects that the host creates when it starts.
 *
 * Plug-ins call it whenever they need an object and must not store the result, because the host may
 * replace or delete the object.
 */
class Q_DECL_EXPORT Startup
{
public:
    /// Returns the container of the host's plug-ins, or null if the host has none. The host owns
    /// the container. Must be called on the GUI thread.
    static IPluginContainer *GetPluginContainer();
};

#endif
