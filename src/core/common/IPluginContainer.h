#ifndef IPLUGINCONTAINER_H
#define IPLUGINCONTAINER_H

#include <QString>

class QObject;

/**
 * The plug-ins that the host has loaded. The host implements and owns the container;
 * Startup::GetPluginContainer() returns it. It is called on the GUI thread only.
 */
class IPluginContainer
{
public:
    virtual ~IPluginContainer() {}

    /// Returns the plug-in with the identifier `clsid`, or null when it is not loaded. The
    /// comparison of identifiers is case-sensitive.
    ///
    /// The container owns the object. A caller that keeps the pointer across a call into the host
    /// uses a QPointer, because the host may unload plug-ins meanwhile.
    virtual QObject *GetPlugin(const QString &clsid) = 0;
};

#endif
