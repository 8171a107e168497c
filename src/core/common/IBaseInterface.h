#ifndef IBASEINTERFACE_H
#define IBASEINTERFACE_H

/**
 * What every plug-in object can do.
 *
 * The order of the virtual operations, here and in the interfaces that derive from this one, is
 * part of the binary contract with hosts already built: never reorder, insert or remove.
 * All calls come on the host's GUI thread.
 */
class IBaseInterface
{
public:
    virtual ~IBaseInterface() {}

    /// Tells the plug-in that the host has done with it. Does not delete the object.
    virtual void Release() = 0;
    /// The last error's number; 0 is none.
    virtual int GetLastError() = 0;
};

#endif
