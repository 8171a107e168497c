#include "WantedDevice.h"

#include "Arguments.h"
#include "device/DashboardSettings.h"

namespace Dashboard
{

namespace
{

const char BACKEND[] = "TKSV_BACKEND";
const char SCENARIO[] = "TKSV_SCENARIO";
const char SIMULATOR[] = "simulator";

} // namespace

DeviceChoice wantedDevice(const Arguments &arguments, const DashboardSettings &settings)
{
    if (!arguments.modem.isEmpty())
        return DeviceChoice::modem(arguments.modem);
    if (arguments.demo || !arguments.scenario.isEmpty())
        return DeviceChoice::simulated(arguments.scenario);
    if (!qgetenv(BACKEND).isEmpty())
        return DeviceChoice::automatic();
    if (!qgetenv(SCENARIO).isEmpty())
        return DeviceChoice::simulated(QString());
    const DeviceChoice last = settings.device();
    const bool isUnwanted =
        arguments.mode == Arguments::Send && last.kind == DeviceChoice::Simulated;
    return isUnwanted ? DeviceChoice::automatic() : last;
}

bool isDemonstration(const DeviceChoice &choice)
{
    return choice.kind == DeviceChoice::Simulated ||
           (choice.kind == DeviceChoice::Automatic && qgetenv(BACKEND) == SIMULATOR);
}

} // namespace Dashboard
