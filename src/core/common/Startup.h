#ifndef STARTUP_H
#define STARTUP_H

#include <QtGlobal>

class IPluginContainer;

/** What the host set up when it started. */
class Q_DECL_EXPORT Startup
{
public:
    /// The host's plug-ins; null when there is no container. Not the caller's. GUI thread.
    static IPluginContainer *GetPluginContainer();
};

#endif
