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

    /// Selects the device specified by the options. Must be called before all other functions.
    /// Returns an empty string on success, otherwise an error message.
    std::string select(const Options &options);
    TKSV_DeviceInfo info() const;
    /// Returns true if the device is simulated.
    bool isSimulated() const { return info().backend == TKSV_BACKEND_SIMULATOR; }

    /// Makes each subsequent change to the device wake the main thread, so that the current wait
    /// evaluates its condition again.
    void follow();
    /// Waits until the condition is true. Returns false if the time limit expires or a signal
    /// arrives first.
    bool await(const Waits::Condition &condition, Clock::time_point end);
    /// Waits until the library has found a modem or has determined that there is none.
    void awaitModem(Milliseconds limit);
    /// Waits until the modem can send codes. Stops waiting if the user must solve a problem first.
    /// Returns true if codes can be sent.
    bool awaitReady(Milliseconds limit);
    /// Enables the modem if it is disabled, and waits until it can send codes. Returns true if
    /// codes can be sent.
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
