#ifndef IPLUGINCONTAINER_H
#define IPLUGINCONTAINER_H

#include <QString>

class QObject;

/** The plug-ins that the host has loaded. GUI thread. */
class IPluginContainer
{
public:
    virtual ~IPluginContainer() {}

    /// The plug-in with this identifier, which stays the container's; null when it is not loaded.
    virtual QObject *GetPlugin(const QString &clsid) = 0;
};

#endif
