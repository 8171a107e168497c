#ifndef CLI_DEVICE_H
#define CLI_DEVICE_H

#include <string>

#include "Options.h"
#include "tksv_device.h"
#include "Waits.h"

namespace Cli
{

/** The modem or the simulated network that the program uses. */
class Device
{
public:
    /// `waits` must outlive the object.
    explicit Device(Waits &waits) : m_waits(waits) {}
    ~Device();
    Device(const Device &) = delete;
    Device &operator=(const Device &) = delete;

    /// Selects the device that the options name. Returns an empty string on success, otherwise the
    /// error. Must be the first call.
    std::string select(const Options &options);
    TKSV_DeviceInfo info() const;
    /// Returns true if the network is simulated.
    bool isSimulated() const { return info().backend == TKSV_BACKEND_SIMULATOR; }

    /// From now on, each change of the device wakes `waits`.
    void follow();
    /// Waits until the condition is true. Returns false if the time is over or a signal has
    /// arrived.
    bool await(const Waits::Condition &condition, Clock::time_point end);
    /// Waits until the library has found the modem, or has found that there is none.
    void awaitModem(Milliseconds limit);
    /// Waits until the modem can send codes. Returns early if the modem does not leave its state by
    /// itself. Returns true if codes can be sent.
    bool awaitReady(Milliseconds limit);
    /// Switches the modem on if it is off, and waits until it can send codes.
    bool enable(Milliseconds limit);
    /// Ends the session of another program. Returns true if there is no such session afterwards.
    bool endForeignSession(Milliseconds limit);

private:
    Waits &m_waits;
    bool m_isFollowed = false;
};

/// Returns true if codes can be sent.
bool isReady(const TKSV_DeviceInfo &device);

} // namespace Cli

#endif
