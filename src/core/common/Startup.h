#ifndef STARTUP_H
#define STARTUP_H

#include <QtGlobal>

class IPluginContainer;

/**
 * Gives plug-ins access to the objects that the host creates when it starts.
 *
 * Call the function each time you need an object. Do not store the result, because the host may
 * replace or delete the object.
 */
class Q_DECL_EXPORT Startup
{
public:
    /// Returns the container of the host's plug-ins, or null if the host has no container. The host
    /// owns the container. Must be called from the GUI thread.
    static IPluginContainer *GetPluginContainer();
};

#endif
