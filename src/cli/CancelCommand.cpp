#include "Commands.h"
#include "ExitCodes.h"
#include "Program.h"

namespace Cli
{

namespace
{

const char ENDED[] = "The session was ended.";
const char NONE[] = "No session is open.";
const char NOT_ENDED[] = "The session could not be ended.";

void print(Program &program, bool hadSession)
{
    if (!program.options().isJson)
        return program.output().notice(hadSession ? ENDED : NONE);
    Json object;
    object.add("modem", program.device().info().equipmentId);
    object.add("session", hadSession ? "ended" : "none");
    program.output().line(object);
}

} // namespace

/// Ends the open session, if any. Returns EXIT_DONE if no session is open afterwards.
int cancel(Program &program)
{
    Device &device = program.device();
    program.awaitModem();
    const TKSV_DeviceInfo info = device.info();
    if (program.waits().signal())
        return EXIT_NOT_READY;
    if (info.state == TKSV_DEVICE_ABSENT || info.problem == TKSV_PROBLEM_NOT_PERMITTED)
        return program.failOnDevice(std::string());
    if (info.hasForeignSession && !device.endForeignSession(program.options().timeout)) {
        const bool isRefused = device.info().problem == TKSV_PROBLEM_NOT_PERMITTED;
        return program.fail(isRefused ? TKSV_FAILURE_NOT_PERMITTED : TKSV_FAILURE_NO_ANSWER,
                            NOT_ENDED);
    }
    print(program, info.hasForeignSession);
    return EXIT_DONE;
}

} // namespace Cli
