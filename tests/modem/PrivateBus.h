#ifndef MODEM_PRIVATEBUS_H
#define MODEM_PRIVATEBUS_H

#include <string>

#include "ChildProcess.h"

namespace FakeModems
{

/**
 * A message bus without access restrictions. Its socket is in a given folder. The destructor stops
 * the bus.
 */
class PrivateBus
{
public:
    /// Starts the bus and waits until it accepts connections. Returns an empty string on success,
    /// otherwise an error message. The path of `folder` must be short, because a socket name can
    /// have at most 107 bytes.
    std::string start(const std::string &folder);
    const std::string &address() const { return m_address; }
    void stop();

private:
    std::string m_address;
    ChildProcess m_process;
};

} // namespace FakeModems

#endif
