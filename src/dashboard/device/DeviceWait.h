#ifndef DEVICEWAIT_H
#define DEVICEWAIT_H

namespace Dashboard
{

class DeviceWatcher;
class SignalWatcher;
struct DeviceChoice;

/** Waits for states of the device. */
struct DeviceWait {
    const DeviceWatcher &device;
    const SignalWatcher &interruption; // ends every wait when a signal arrives
    int limit;                         // the time limit in milliseconds

    /// Waits as long as the device may become ready without any action of the user. With the
    /// automatic choice, also waits as long as any other modem may become ready. Processes events
    /// in the meantime.
    void untilReady(const DeviceChoice &choice) const;
    /// Enables the device and waits until it is enabled. Returns false if it cannot be enabled.
    bool untilEnabled() const;
    /// Ends the session of another program and waits until it has ended.
    void untilForeignSessionHasEnded() const;
};

} // namespace Dashboard

#endif
