#ifndef DEVICEWAIT_H
#define DEVICEWAIT_H

/// Waits until the device takes commands, as long as it may get there by itself, and at most so
/// many milliseconds. Returns whether it does. GUI thread; handles events meanwhile.
bool waitForDevice(int milliseconds);

#endif
