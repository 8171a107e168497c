#ifndef IBASEPLUGIN_H
#define IBASEPLUGIN_H

#include <QString>
#include <QtPlugin>

#include "IBaseInterface.h"
#include "IDestroyEvent.h"

class QObject;

/**
 * The functions that every plug-in provides, regardless of its purpose.
 *
 * The order of the base classes and of the functions is part of the binary interface. The host
 * calls all functions from its GUI thread.
 */
class IBasePlugin : public IBaseInterface, public IDestroyEvent
{
public:
    ~IBasePlugin() override {}

    /// Prepares the plug-in. This is the first function that the host calls after it has loaded the
    /// plug-in. Returns false if the plug-in cannot be used.
    virtual bool Init() = 0;
    /// Returns the plug-in type, a number defined by the host. Returns 0 if the plug-in has no
    /// type.
    virtual int GetPluginType() = 0;
    /// Returns the identifier of the plug-in, or an empty string if it has none.
    virtual QString GetCLSID() = 0;
    /// Returns the version of the plug-in, or 0 if it has none.
    virtual int GetVersion() = 0;
    /// Returns the name of the plug-in's class. The name is not intended for display.
    virtual QString GetPluginName() = 0;
    /// Returns true if the host may unload the library while the program is running.
    virtual bool IsAllowRelease() = 0;
    /// Stores the service with the identifier `id` in `*out` and returns true. The plug-in owns the
    /// service, which is valid until OnDestroy(). If there is no such service, returns false and
    /// leaves `*out` unchanged. `out` may be null.
    virtual bool QueryInterface(int id, QObject **out) = 0;
};

Q_DECLARE_INTERFACE(IBasePlugin, "com.zelvor.portalcompass.plugin.IBasePlugin")

#endif
