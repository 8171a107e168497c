#ifndef DEVICEWAIT_H
#define DEVICEWAIT_H

namespace Dashboard
{

/// Waits until the device accepts commands, for at most `milliseconds`. Returns earlier if the
/// device cannot become ready by itself. Returns whether the device accepts commands. Must be
/// called on the GUI thread. Processes events meanwhile.
bool waitForDevice(int milliseconds);

} // namespace Dashboard

#endif
