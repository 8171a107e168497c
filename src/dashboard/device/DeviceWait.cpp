#include "DeviceWait.h"

#include "base/WaitUntil.h"
#include "DeviceWatcher.h"

namespace Dashboard
{

bool waitForDevice(int milliseconds)
{
    const DeviceWatcher device; // its events make waitUntil() check the condition
    waitUntil([&device] { return !device.status().mayBecomeReady(); }, milliseconds);
    return device.status().isRegistered();
}

} // namespace Dashboard
