#ifndef IDESTROYEVENT_H
#define IDESTROYEVENT_H

/**
 * The functions that the host calls to shut down a plug-in.
 *
 * The order of the functions is part of the binary interface. The host calls them from its GUI
 * thread. The host may call them at any time, in any order, more than once or not at all.
 */
class IDestroyEvent
{
public:
    virtual ~IDestroyEvent() {}

    /// Deletes the plug-in's windows and services. The plug-in object itself remains usable.
    virtual void OnDestroy() = 0;
    /// Unregisters the plug-in's call-backs from the device SDK. When the function returns, no
    /// call-back is running and none will be called again. The host must call this function before
    /// it unloads the library.
    virtual void UnSDKRegisterEvent() = 0;
};

#endif
