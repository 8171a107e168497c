#ifndef IPLUGINCONTAINER_H
#define IPLUGINCONTAINER_H

#include <QString>

class QObject;

/**
 * The plug-ins that the host has loaded. The host implements and owns the container, which
 * Startup::GetPluginContainer() returns. The container must be used only on the GUI thread.
 */
class IPluginContainer
{
public:
    virtual ~IPluginContainer() {}

    /// Returns the plug-in with the identifier `clsid`, or null if it is not loaded. Identifiers
    /// are case-sensitive.
    ///
    /// The container owns the plug-in object and may unload it whenever the caller calls a function
    /// of the host. Use a QPointer to keep the result during such a call.
    virtual QObject *GetPlugin(const QString &clsid) = 0;
};

#endif
