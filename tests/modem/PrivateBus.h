#ifndef MODEM_PRIVATEBUS_H
#define MODEM_PRIVATEBUS_H

#include <string>

#include "ChildProcess.h"

namespace FakeModems
{

/** A message bus in a directory, which allows everything to everybody. It ends with the object. */
class PrivateBus
{
public:
    /// Starts the bus and returns when clients can connect. The result is empty on success,
    /// otherwise the error. The path of `folder` must be short because socket names have at most
    /// 107 bytes.
    std::string start(const std::string &folder);
    const std::string &address() const { return m_address; }
    void stop();

private:
    std::string m_address;
    ChildProcess m_process;
};

} // namespace FakeModems

#endif
