#include "Device.h"

#include <utility>

namespace Cli
{

namespace
{

const std::size_t LONGEST_COMPLAINT = 4096; // the maximum size of an error message, in bytes

void wake(void *waits)
{
    static_cast<Waits *>(waits)->wake();
}

bool mayBecomeReady(const TKSV_DeviceInfo &device)
{
    return device.problem == TKSV_PROBLEM_NONE &&
           (device.isLooking || device.state == TKSV_DEVICE_SEARCHING);
}

bool isEnabling(const TKSV_DeviceInfo &device)
{
    return device.state == TKSV_DEVICE_DISABLED && device.problem == TKSV_PROBLEM_NONE;
}

} // namespace

bool isReady(const TKSV_DeviceInfo &device)
{
    return device.state == TKSV_DEVICE_REGISTERED;
}

Device::~Device()
{
    if (m_isFollowed)
        TKSV_Device_SetInfoCallback(nullptr, nullptr);
}

/// Registers the call-back for changes. This is done only when it is needed, because the library
/// starts a thread for the call-back.
void Device::follow()
{
    if (!std::exchange(m_isFollowed, true))
        TKSV_Device_SetInfoCallback(wake, &m_waits);
}

std::string Device::select(const Options &options)
{
    if (!options.modem.empty())
        TKSV_Device_UseModem(options.modem.c_str());
    if (!options.isDemo && options.scenario.empty())
        return std::string();
    char complaint[LONGEST_COMPLAINT] = "";
    const char *const path = options.scenario.empty() ? nullptr : options.scenario.c_str();
    if (TKSV_Device_UseScenario(path, complaint, sizeof complaint) == 0)
        return std::string();
    return *complaint ? complaint : "The simulated network cannot be used.";
}

TKSV_DeviceInfo Device::info() const
{
    TKSV_DeviceInfo info = {};
    TKSV_Device_GetInfo(&info);
    return info;
}

bool Device::await(const Waits::Condition &condition, Clock::time_point end)
{
    follow();
    return m_waits.until(condition, end);
}

void Device::awaitModem(Milliseconds limit)
{
    const auto isKnown = [this] {
        const TKSV_DeviceInfo now = info();
        return !now.isLooking || now.problem != TKSV_PROBLEM_NONE;
    };
    await(isKnown, Clock::now() + limit);
}

bool Device::awaitReady(Milliseconds limit)
{
    await([this] { return !mayBecomeReady(info()); }, Clock::now() + limit);
    return isReady(info());
}

bool Device::enable(Milliseconds limit)
{
    const Clock::time_point end = Clock::now() + limit;
    if (!isEnabling(info()) || TKSV_Device_Enable() != 0)
        return isReady(info());
    await(
        [this] {
            const TKSV_DeviceInfo now = info();
            return !isEnabling(now) && !mayBecomeReady(now);
        },
        end);
    return isReady(info());
}

bool Device::endForeignSession(Milliseconds limit)
{
    TKSV_Device_EndForeignSession();
    await([this] { return !info().hasForeignSession; }, Clock::now() + limit);
    return !info().hasForeignSession;
}

} // namespace Cli
