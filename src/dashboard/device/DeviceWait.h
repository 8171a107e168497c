#ifndef DEVICEWAIT_H
#define DEVICEWAIT_H

namespace Dashboard
{

class DeviceWatcher;
class SignalWatcher;
struct DeviceChoice;

/** Waits until the device has reached a certain state. */
struct DeviceWait {
    const DeviceWatcher &device;
    const SignalWatcher &interruption; // a signal such as SIGINT ends every wait
    int limit;                         // the time limit in milliseconds

    /// Waits until the device is ready or cannot become ready without user intervention. If the
    /// device is selected automatically, also waits while another modem is searching for a network.
    /// Processes events while it waits.
    void untilReady(const DeviceChoice &choice) const;
    /// Enables the device and waits until it is enabled. Returns false if it cannot be enabled.
    bool untilEnabled() const;
    /// Ends the session of another program and waits until it has ended.
    void untilForeignSessionHasEnded() const;
};

} // namespace Dashboard

#endif
