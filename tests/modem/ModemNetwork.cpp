/* Implements SdkFixture::useNetwork() with a fake modem and ModemManager. */
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "ModemWorld.h"
#include "SdkFixture.h"
#include "sim/ScenarioReader.h"
#include "tksv_device.h"

namespace
{

const char MODEM_ID[] = "m1";

TKSV_DeviceInfo deviceInfo()
{
    TKSV_DeviceInfo info = {};
    TKSV_Device_GetInfo(&info);
    return info;
}

/// Creates the ModemWorld before the SDK library is first used, so that it is destroyed after the
/// library has stopped.
FakeModems::ModemWorld &world()
{
    static const std::unique_ptr<FakeModems::ModemWorld> instance = [] {
        auto made = std::make_unique<FakeModems::ModemWorld>();
        const std::string complaint = made->start();
        if (!complaint.empty()) {
            std::fprintf(stderr, "%s\n", complaint.c_str());
            std::abort();
        }
        setenv("TKSV_BACKEND", "modemmanager", 1);
        return made;
    }();
    return *instance;
}

std::atomic<bool> wantsEnabledModem(true);

/// Enables the modem as a user would, even after a reset. The library never enables it on its own.
void enableModem(void *)
{
    if (wantsEnabledModem && deviceInfo().state == TKSV_DEVICE_DISABLED)
        TKSV_Device_Enable();
}

/// Returns true if the modem is in the state that the scenario specifies.
bool isReady(const Tksv::Scenario &scenario)
{
    const TKSV_DeviceInfo now = deviceInfo();
    if (scenario.state != TKSV_DEVICE_REGISTERED)
        return now.state == scenario.state;
    return now.state == TKSV_DEVICE_REGISTERED && scenario.operatorName == now.operatorName &&
           scenario.imsi == now.imsi && (now.canSendSMS != 0) == scenario.smsReady;
}

std::string unlessReady(const char *what)
{
    std::fprintf(stderr, "%s\n", world().logTail().c_str());
    const TKSV_DeviceInfo now = deviceInfo();
    return std::string("the library has not seen that the modem is ") + what + "; state " +
           std::to_string(now.state) + ", problem " + std::to_string(now.problem) + ", operator " +
           now.operatorName + ", IMSI " + now.imsi + ", SMS " + std::to_string(now.canSendSMS);
}

} // namespace

namespace SdkFixture
{

/// Waits until the library has detected that the previous modem was removed. Otherwise, the library
/// would mistake the new modem for the previous one.
std::string useNetwork(const std::string &scenario)
{
    const Tksv::ScenarioResult result = Tksv::readScenario(scenario, "test.scenario");
    if (!result.scenario)
        return Tksv::describe(result.complaints);
    FakeModems::ModemWorld &here = world();
    wantsEnabledModem = result.scenario->state != TKSV_DEVICE_DISABLED;
    TKSV_Device_SetInfoCallback(enableModem, nullptr);
    if (here.hasModem(MODEM_ID))
        here.unplug(MODEM_ID);
    if (!waitUntil([] { return deviceInfo().state == TKSV_DEVICE_ABSENT; }))
        return unlessReady("gone");
    here.addModem(MODEM_ID, scenario, FakeModems::ModemSettings(),
                  FakeModems::FakeModem::Clock::Stopped);
    if (!waitUntil([&] { return isReady(*result.scenario); }))
        return unlessReady("ready");
    here.modem(MODEM_ID).startClock();
    return std::string();
}

Abilities abilities()
{
    Abilities abilities;
    abilities.failsInTheCall = false;
    abilities.sendsEmptySms = false;
    abilities.knowsAllOfUnicode = false;
    return abilities;
}

} // namespace SdkFixture
