#include "DeviceWait.h"

#include "base/WaitUntil.h"
#include "DeviceWatcher.h"

namespace Dashboard
{

bool waitForDevice(int milliseconds)
{
    const DeviceWatcher device; // its events end the waits of waitUntil()
    waitUntil([&device] { return !device.status().mayBecomeReady(); }, milliseconds);
    return device.status().isRegistered();
}

} // namespace Dashboard
