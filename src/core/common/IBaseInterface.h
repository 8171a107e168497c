#ifndef IBASEINTERFACE_H
#define IBASEINTERFACE_H

/**
 * The functions that every plug-in object has.
 *
 * The order of the virtual functions, here and in the derived interfaces, is part of the binary
 * interface. To remain compatible with existing hosts, never reorder, insert or remove a virtual
 * function. The host calls all functions from its GUI thread.
 */
class IBaseInterface
{
public:
    virtual ~IBaseInterface() {}

    /// Notifies the plug-in that the host no longer uses it. Does not delete the object.
    virtual void Release() = 0;
    /// Returns the most recent error code, or 0 if no error has occurred.
    virtual int GetLastError() = 0;
};

#endif
