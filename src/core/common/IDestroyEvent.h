#ifndef IDESTROYEVENT_H
#define IDESTROYEVENT_H

/**
 * The operations that the host calls when it shuts a plug-in down.
 *
 * The order of the operations is part of the binary contract. The host calls them on its GUI
 * thread, at any time, in any order, more than once or not at all.
 */
class IDestroyEvent
{
public:
    virtual ~IDestroyEvent() {}

    /// Deletes the plug-in's windows and services. The plug-in object itself stays usable.
    virtual void OnDestroy() = 0;
    /// Unregisters the plug-in's call-backs from the device SDK. When it returns, no call-back is
    /// running and none will start. The host may unload the library only after this call.
    virtual void UnSDKRegisterEvent() = 0;
};

#endif
