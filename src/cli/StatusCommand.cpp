#include "Commands.h"
#include "DeviceText.h"
#include "ExitCodes.h"
#include "FailureText.h"
#include "Program.h"

namespace Cli
{

namespace
{

/// The time limit for details that the library reports shortly after the state of the modem.
const Milliseconds DETAIL_LIMIT = std::chrono::seconds(1);

bool hasDetails(const TKSV_DeviceInfo &device)
{
    return device.state < TKSV_DEVICE_DISABLED || (*device.imsi && device.signalPercent >= 0);
}

std::string percent(int value)
{
    return value < 0 ? "unknown" : std::to_string(value) + " %";
}

std::string orUnknown(const char *text)
{
    return *text ? text : "unknown";
}

std::string statusLines(const TKSV_DeviceInfo &device)
{
    std::string lines = "modem:    " + orUnknown(device.source);
    lines += "\nid:       " + orUnknown(device.equipmentId);
    lines += std::string("\nstate:    ") + stateName(device.state);
    lines += "\nnetwork:  " + orUnknown(device.operatorName);
    lines += "\nsignal:   " + percent(device.signalPercent);
    lines += "\nIMSI:     " + orUnknown(device.imsi);
    lines += "\noperator: " + orUnknown(device.simOperatorName);
    if (*device.simOperatorCode)
        lines += std::string(" (") + device.simOperatorCode + ")";
    if (device.hasForeignSession)
        lines += "\nsession:  opened by another program";
    return lines;
}

void fill(Json &object, const TKSV_DeviceInfo &device)
{
    object.add("modem", device.equipmentId);
    object.add("name", device.source);
    object.add("state", stateName(device.state));
    object.add("problem", problemName(device.problem));
    object.add("message", deviceText(device));
    object.add("network", device.operatorName);
    object.add("signal", device.signalPercent);
    object.add("imsi", device.imsi);
    object.add("simOperator", device.simOperatorName);
    object.add("simOperatorCode", device.simOperatorCode);
    object.add("foreignSession", device.hasForeignSession != 0);
    object.add("demonstration", device.backend == TKSV_BACKEND_SIMULATOR);
}

} // namespace

/// Prints the state of the modem. Returns EXIT_DONE if codes can be sent.
int printStatus(Program &program)
{
    Device &device = program.device();
    program.awaitModem();
    device.await([&] { return hasDetails(device.info()); }, Clock::now() + DETAIL_LIMIT);
    if (program.waits().signal())
        return EXIT_NOT_READY;
    const TKSV_DeviceInfo info = program.awaitedInfo();
    if (program.options().isJson) {
        Json object;
        fill(object, info);
        program.output().line(object);
    } else if (info.state != TKSV_DEVICE_ABSENT) {
        program.output().line(statusLines(info));
    }
    if (!deviceText(info).empty())
        program.output().error(deviceText(info));
    return exitCodeOf(deviceFailure(info));
}

} // namespace Cli
