#ifndef MODEM_PRIVATEBUS_H
#define MODEM_PRIVATEBUS_H

#include <string>

#include "ChildProcess.h"

namespace modem
{

/** A message bus in a folder, on which everybody may do everything; it ends with the object. */
class PrivateBus
{
public:
    /// `folder` has a short path: socket names have at most 107 bytes. Returns when clients can
    /// connect; empty on success.
    std::string start(const std::string &folder);
    const std::string &address() const { return m_address; }
    void stop();

private:
    std::string m_address;
    ChildProcess m_process;
};

} // namespace modem

#endif
