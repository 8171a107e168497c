#include "FailureText.h"

#include "ExitCodes.h"

namespace Cli
{

namespace
{

const char NOT_CARRIED_OUT[] = " It was not carried out.";
const char MAYBE_CARRIED_OUT[] = " The network may have carried out the command all the same.";

struct Row {
    TKSV_Failure reason;
    int exitCode;
    const char *name;
    const char *text;
};

// The last row is the fallback for unknown reasons.
const Row ROWS[] = {
    {TKSV_FAILURE_NONE, EXIT_DONE, "none", ""},
    {TKSV_FAILURE_ENDED_BY_NETWORK, EXIT_REFUSED, "ended-by-network",
     "The network ended the session."},
    {TKSV_FAILURE_NOT_SUPPORTED, EXIT_REFUSED, "not-supported",
     "The network or the modem does not support this code."},
    {TKSV_FAILURE_NETWORK_TIMEOUT, EXIT_REFUSED, "network-timeout",
     "The network waited too long and ended the session."},
    {TKSV_FAILURE_NO_ANSWER, EXIT_NO_ANSWER, "no-answer", "The network did not reply in time."},
    {TKSV_FAILURE_EMPTY_REPLY, EXIT_REFUSED, "empty-reply", "The network sent an empty reply."},
    {TKSV_FAILURE_UNDECODABLE, EXIT_REFUSED, "undecodable",
     "The network replied, but the modem could not decode the reply."},
    {TKSV_FAILURE_NOT_ENCODABLE, EXIT_REFUSED, "not-encodable",
     "The modem cannot send a character of this command."},
    {TKSV_FAILURE_NO_DEVICE, EXIT_NOT_READY, "no-device", "There is no modem that can send codes."},
    {TKSV_FAILURE_DISABLED, EXIT_NOT_READY, "disabled", "The modem is switched off."},
    {TKSV_FAILURE_NOT_REGISTERED, EXIT_NOT_READY, "not-registered",
     "The modem is not registered with a network."},
    {TKSV_FAILURE_DEVICE_LOST, EXIT_NOT_READY, "device-lost",
     "The modem was removed, or ModemManager ended."},
    {TKSV_FAILURE_NOT_PERMITTED, EXIT_NOT_PERMITTED, "not-permitted",
     "You are not permitted to send codes with this modem."},
    {TKSV_FAILURE_IN_USE, EXIT_IN_USE, "in-use", "Another program is using codes on this modem."},
    {TKSV_FAILURE_NOT_ON_4G, EXIT_REFUSED, "not-on-4g",
     "The modem uses only 4G, but codes need 2G or 3G here."},
    {TKSV_FAILURE_CANCELLED, EXIT_CANCELLED, "cancelled", "The command was cancelled."},
    {TKSV_FAILURE_REFUSED, EXIT_REFUSED, "refused",
     "The network or the modem refused the command."},
};

const Row &rowOf(TKSV_Failure reason)
{
    const Row *row = ROWS;
    const Row *const last = ROWS + sizeof ROWS / sizeof *ROWS - 1;
    while (row != last && row->reason != reason)
        ++row;
    return *row;
}

bool isOutcomeUnknown(TKSV_Failure reason)
{
    return reason == TKSV_FAILURE_NO_ANSWER || reason == TKSV_FAILURE_DEVICE_LOST ||
           reason == TKSV_FAILURE_CANCELLED;
}

} // namespace

int exitCodeOf(TKSV_Failure reason)
{
    return rowOf(reason).exitCode;
}

std::string failureText(const TKSV_FailureInfo &failure)
{
    std::string text = rowOf(failure.reason).text;
    if (text.empty())
        return text;
    if (failure.wasNotSent)
        text += NOT_CARRIED_OUT;
    else if (isOutcomeUnknown(failure.reason))
        text += MAYBE_CARRIED_OUT;
    return text;
}

const char *reasonName(TKSV_Failure reason)
{
    return rowOf(reason).name;
}

} // namespace Cli
