#include "DeviceText.h"

namespace Cli
{

namespace
{

struct ProblemRow {
    TKSV_DeviceProblem problem;
    const char *name;
    const char *text;
};

const ProblemRow PROBLEMS[] = {
    {TKSV_PROBLEM_NO_BUS, "no-bus",
     "The system message bus (D-Bus) cannot be reached, so no modem can be found."},
    {TKSV_PROBLEM_NO_SERVICE, "no-service",
     "ModemManager is not running, so no modem can be found. Start it with 'systemctl start "
     "ModemManager'."},
    {TKSV_PROBLEM_SERVICE_SILENT, "service-silent",
     "ModemManager is running, but does not answer."},
    {TKSV_PROBLEM_NOT_PERMITTED, "not-permitted",
     "You are not permitted to control the modem. An administrator can grant the permission with a "
     "rule for polkit."},
    {TKSV_PROBLEM_CHOSEN_ABSENT, "chosen-absent",
     "There is no modem with this identifier. 'ussd modems' lists the modems."},
    {TKSV_PROBLEM_WRONG_PIN, "wrong-pin", "The PIN of the SIM card is wrong."},
    {TKSV_PROBLEM_PUK_NEEDED, "puk-needed",
     "The SIM card is locked with its PUK, or another lock blocks the modem."},
    {TKSV_PROBLEM_NO_USSD, "no-ussd", "The modem does not support USSD codes."},
    {TKSV_PROBLEM_MODEM_FAILED, "modem-failed", "ModemManager reports that the modem has failed."},
    {TKSV_PROBLEM_REGISTRATION_DENIED, "registration-denied",
     "The network does not accept this SIM."},
    {TKSV_PROBLEM_MODEM_REMOVED, "modem-removed", "The modem was removed."},
};

struct StateRow {
    TKSV_DeviceState state;
    const char *name;
    const char *text;
    TKSV_Failure failure;
};

const StateRow STATES[] = {
    {TKSV_DEVICE_ABSENT, "absent", "There is no modem.", TKSV_FAILURE_NO_DEVICE},
    {TKSV_DEVICE_SIM_MISSING, "sim-missing", "There is no SIM card in the modem.",
     TKSV_FAILURE_NO_DEVICE},
    {TKSV_DEVICE_SIM_LOCKED, "sim-locked",
     "The SIM card is locked with its PIN. Enter the PIN in ussd-dashboard, or use 'mmcli -i any "
     "--pin=PIN'.",
     TKSV_FAILURE_NO_DEVICE},
    {TKSV_DEVICE_DISABLED, "disabled", "The modem is switched off.", TKSV_FAILURE_DISABLED},
    {TKSV_DEVICE_SEARCHING, "searching", "The modem is searching for a network.",
     TKSV_FAILURE_NOT_REGISTERED},
    {TKSV_DEVICE_REGISTERED, "registered", "", TKSV_FAILURE_NONE},
};

const ProblemRow *rowOf(TKSV_DeviceProblem problem)
{
    for (const ProblemRow &row : PROBLEMS) {
        if (row.problem == problem)
            return &row;
    }
    return nullptr;
}

const StateRow &rowOf(TKSV_DeviceState state)
{
    for (const StateRow &row : STATES) {
        if (row.state == state)
            return row;
    }
    return STATES[0];
}

} // namespace

std::string deviceText(const TKSV_DeviceInfo &device)
{
    const ProblemRow *const problem = rowOf(device.problem);
    return problem ? problem->text : rowOf(device.state).text;
}

TKSV_Failure deviceFailure(const TKSV_DeviceInfo &device)
{
    if (device.problem == TKSV_PROBLEM_NOT_PERMITTED)
        return TKSV_FAILURE_NOT_PERMITTED;
    return rowOf(device.state).failure;
}

const char *stateName(TKSV_DeviceState state)
{
    return rowOf(state).name;
}

const char *problemName(TKSV_DeviceProblem problem)
{
    const ProblemRow *const row = rowOf(problem);
    return row ? row->name : "";
}

} // namespace Cli
