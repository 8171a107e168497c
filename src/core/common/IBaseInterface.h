#ifndef IBASEINTERFACE_H
#define IBASEINTERFACE_H

/**
 * The functions of every plug-in object.
 *
 * The order of the virtual functions, here and in the derived interfaces, is part of the binary
 * interface with hosts that are already built. Never reorder, insert or remove a virtual function.
 * The host calls all of them on its GUI thread.
 */
class IBaseInterface
{
public:
    virtual ~IBaseInterface() {}

    /// Notifies the plug-in that the host no longer uses it. Does not delete the object.
    virtual void Release() = 0;
    /// Returns the number of the last error, or 0 when there was none.
    virtual int GetLastError() = 0;
};

#endif
