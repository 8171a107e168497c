#ifndef IBASEPLUGIN_H
#define IBASEPLUGIN_H

#include <QString>
#include <QtPlugin>

#include "IBaseInterface.h"
#include "IDestroyEvent.h"

class QObject;

/**
 * The operations of a plug-in that do not depend on what it does.
 *
 * The order of the base classes and of the operations is part of the binary contract. The host
 * calls all of them on its GUI thread.
 */
class IBasePlugin : public IBaseInterface, public IDestroyEvent
{
public:
    ~IBasePlugin() override {}

    /// Prepares the plug-in; the host calls it first after loading. Returns false when the plug-in
    /// cannot be used.
    virtual bool Init() = 0;
    /// Returns the kind of plug-in as a number of the host's; 0 when the plug-in states none.
    virtual int GetPluginType() = 0;
    /// Returns the identifier of the plug-in; empty when the plug-in states none.
    virtual QString GetCLSID() = 0;
    /// Returns the version of the plug-in; 0 when the plug-in states none.
    virtual int GetVersion() = 0;
    /// Returns the name of the plug-in's class. It is not meant for display.
    virtual QString GetPluginName() = 0;
    /// Returns whether the host may unload the library while the program keeps running.
    virtual bool IsAllowRelease() = 0;
    /// Stores the service with the identifier `id` in `*out` and returns true. The plug-in owns
    /// the object, which is valid until OnDestroy(). Returns false and leaves `*out` unchanged
    /// when there is no such service. `out` may be null.
    virtual bool QueryInterface(int id, QObject **out) = 0;
};

Q_DECLARE_INTERFACE(IBasePlugin, "com.zelvor.portalcompass.plugin.IBasePlugin")

#endif
