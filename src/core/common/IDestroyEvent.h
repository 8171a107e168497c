#ifndef IDESTROYEVENT_H
#define IDESTROYEVENT_H

/**
 * The host's shut-down calls. The order of the operations is part of the binary contract.
 * Each may come on the GUI thread at any time, in any order, more than once or not at all.
 */
class IDestroyEvent
{
public:
    virtual ~IDestroyEvent() {}

    /// Deletes windows and services; the plug-in object itself stays usable.
    virtual void OnDestroy() = 0;
    /// Takes the plug-in's call-backs off the device SDK. When it returns, none is running and
    /// none will come; the library may be unloaded only after that.
    virtual void UnSDKRegisterEvent() = 0;
};

#endif
