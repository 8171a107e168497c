#ifndef IBASEPLUGIN_H
#define IBASEPLUGIN_H

#include <QString>
#include <QtPlugin>

#include "IBaseInterface.h"
#include "IDestroyEvent.h"

class QObject;

/**
 * What the host asks of any plug-in. The order of bases and operations is part of the binary
 * contract. All calls come on the GUI thread.
 */
class IBasePlugin : public IBaseInterface, public IDestroyEvent
{
public:
    ~IBasePlugin() override {}

    /// The first call after loading; false keeps the host from using the plug-in.
    virtual bool Init() = 0;
    virtual int GetPluginType() = 0;
    virtual QString GetCLSID() = 0;
    virtual int GetVersion() = 0;
    virtual QString GetPluginName() = 0;
    /// Whether the host may unload the library while it goes on running.
    virtual bool IsAllowRelease() = 0;
    /// Hands out the service with this identifier. The object stays the plug-in's and is valid
    /// until OnDestroy(). False, and `*out` unchanged, when there is no such service.
    virtual bool QueryInterface(int id, QObject **out) = 0;
};

Q_DECLARE_INTERFACE(IBasePlugin, "com.zelvor.portalcompass.plugin.IBasePlugin")

#endif
