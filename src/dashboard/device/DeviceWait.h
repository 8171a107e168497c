#ifndef DEVICEWAIT_H
#define DEVICEWAIT_H

namespace Dashboard
{

/// Waits until the device accepts commands, but at most `milliseconds`. Returns earlier if the
/// device cannot become ready without any action by the user. Returns true if the device accepts
/// commands. Processes events while it waits. Must be called from the GUI thread.
bool waitForDevice(int milliseconds);

} // namespace Dashboard

#endif
