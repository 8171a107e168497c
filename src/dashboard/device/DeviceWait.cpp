#include "DeviceWait.h"

#include "base/WaitUntil.h"
#include "DeviceWatcher.h"

bool waitForDevice(int milliseconds)
{
    const DeviceWatcher device; // its news end the waits for events
    waitUntil([&device] { return !device.status().mayBecomeReady(); }, milliseconds);
    return device.status().isRegistered();
}
