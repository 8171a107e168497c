#include <algorithm>

#include "Commands.h"
#include "DeviceText.h"
#include "ExitCodes.h"
#include "Program.h"

namespace Cli
{

namespace
{

std::vector<TKSV_Modem> modems()
{
    unsigned long count = 0;
    TKSV_Device_GetModems(nullptr, 0, &count);
    std::vector<TKSV_Modem> found(count);
    unsigned long newCount = 0;
    TKSV_Device_GetModems(found.data(), count, &newCount);
    found.resize(std::min(count, newCount));
    return found;
}

void print(Program &program, const TKSV_Modem &modem)
{
    if (!program.options().isJson) {
        const char *const use = modem.isInUse ? "\tin use" : "";
        return program.output().line(std::string(modem.equipmentId) + '\t' + modem.name + '\t' +
                                     stateName(modem.state) + use);
    }
    Json object;
    object.add("modem", modem.equipmentId);
    object.add("name", modem.name);
    object.add("state", stateName(modem.state));
    object.add("inUse", modem.isInUse != 0);
    program.output().line(object);
}

} // namespace

int printModems(Program &program)
{
    program.awaitModem();
    const std::vector<TKSV_Modem> found = modems();
    for (const TKSV_Modem &modem : found)
        print(program, modem);
    if (!found.empty() || program.waits().signal())
        return EXIT_DONE;
    TKSV_DeviceInfo none = program.awaitedInfo();
    none.state = TKSV_DEVICE_ABSENT; // a simulated device is not listed as a modem
    program.output().error(deviceText(none));
    return EXIT_NOT_READY;
}

} // namespace Cli
