#ifndef DEVICEWAIT_H
#define DEVICEWAIT_H

namespace Dashboard
{

/// Waits until the device accepts commands, for at most `milliseconds`, and gives up earlier when
/// the device cannot become ready by itself. Returns whether the device accepts commands. GUI
/// thread; handles events meanwhile.
bool waitForDevice(int milliseconds);

} // namespace Dashboard

#endif
