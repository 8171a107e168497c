#ifndef IBASEINTERFACE_H
#define IBASEINTERFACE_H

/**
 * The operations of every plug-in object.
 *
 * The order of the virtual operations, here and in the interfaces that derive from this one, is
 * part of the binary contract with hosts already built: never reorder, insert or remove one.
 * The host calls all of them on its GUI thread.
 */
class IBaseInterface
{
public:
    virtual ~IBaseInterface() {}

    /// Tells the plug-in that the host no longer uses it. Does not delete the object.
    virtual void Release() = 0;
    /// Returns the number of the last error, or 0 when there was none.
    virtual int GetLastError() = 0;
};

#endif
