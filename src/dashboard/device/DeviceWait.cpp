#include "DeviceWait.h"

#include <algorithm>

#include "base/SignalWatcher.h"
#include "base/WaitUntil.h"
#include "DeviceChoice.h"
#include "DeviceWatcher.h"
#include "tksv_device.h"

namespace Dashboard
{

namespace
{

bool isSearching(const Modem &modem)
{
    return modem.state == TKSV_DEVICE_SEARCHING;
}

bool mayBecomeReady(const DeviceWatcher &device, const DeviceChoice &choice)
{
    const QList<Modem> &modems = device.modems();
    return device.status().mayBecomeReady() ||
           (choice.kind == DeviceChoice::Automatic && !device.status().isRegistered() &&
            std::any_of(modems.begin(), modems.end(), isSearching));
}

} // namespace

void DeviceWait::untilReady(const DeviceChoice &choice) const
{
    waitUntil([&] { return interruption.signalNumber() != 0 || !mayBecomeReady(device, choice); },
              limit);
}

bool DeviceWait::untilEnabled() const
{
    if (TKSV_Device_Enable() != 0)
        return false;
    return waitUntil(
               [this] {
                   return interruption.signalNumber() != 0 ||
                          device.status().state != TKSV_DEVICE_DISABLED ||
                          device.status().problem != TKSV_PROBLEM_NONE;
               },
               limit) &&
           device.status().state != TKSV_DEVICE_DISABLED;
}

void DeviceWait::untilForeignSessionHasEnded() const
{
    if (TKSV_Device_EndForeignSession() != 0)
        return;
    waitUntil(
        [this] { return interruption.signalNumber() != 0 || !device.status().hasForeignSession; },
        limit);
}

} // namespace Dashboard
