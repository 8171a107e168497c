#ifndef DEVICEWAIT_H
#define DEVICEWAIT_H

namespace Dashboard
{

class DeviceWatcher;
class SignalWatcher;
struct DeviceChoice;

/** The conditions of a wait for a device. */
struct DeviceWait {
    const DeviceWatcher &device;
    const SignalWatcher &interruption; // a signal ends every wait
    int limit;                         // milliseconds

    /// Waits while the device may become ready by itself. With the automatic choice, waits also
    /// while another modem may become ready. Processes events while it waits.
    void untilReady(const DeviceChoice &choice) const;
    /// Enables the device and waits until it is enabled. Returns false if it cannot be enabled.
    bool untilEnabled() const;
    /// Ends the session of another program and waits until it has ended.
    void untilForeignSessionHasEnded() const;
};

} // namespace Dashboard

#endif
