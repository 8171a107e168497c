#include "FailureWords.h"

#include "base/DashboardText.h"

namespace Dashboard
{

namespace
{

struct Row {
    TKSV_Failure reason;
    const char *textKey;
};

// The last row describes every other reason.
const Row ROWS[] = {
    {TKSV_FAILURE_ENDED_BY_NETWORK, "FAILURE_ENDED_BY_NETWORK"},
    {TKSV_FAILURE_NOT_SUPPORTED, "FAILURE_NOT_SUPPORTED"},
    {TKSV_FAILURE_NETWORK_TIMEOUT, "FAILURE_NETWORK_TIMEOUT"},
    {TKSV_FAILURE_NO_ANSWER, "FAILURE_NO_ANSWER"},
    {TKSV_FAILURE_EMPTY_REPLY, "FAILURE_EMPTY_REPLY"},
    {TKSV_FAILURE_UNDECODABLE, "FAILURE_UNDECODABLE"},
    {TKSV_FAILURE_NOT_ENCODABLE, "FAILURE_NOT_ENCODABLE"},
    {TKSV_FAILURE_NO_DEVICE, "FAILURE_NO_DEVICE"},
    {TKSV_FAILURE_DISABLED, "FAILURE_DISABLED"},
    {TKSV_FAILURE_NOT_REGISTERED, "FAILURE_NOT_REGISTERED"},
    {TKSV_FAILURE_DEVICE_LOST, "FAILURE_DEVICE_LOST"},
    {TKSV_FAILURE_NOT_PERMITTED, "FAILURE_NOT_PERMITTED"},
    {TKSV_FAILURE_IN_USE, "FAILURE_IN_USE"},
    {TKSV_FAILURE_NOT_ON_4G, "FAILURE_ON_LTE"},
    {TKSV_FAILURE_CANCELLED, "FAILURE_CANCELLED"},
    {TKSV_FAILURE_REFUSED, "FAILURE_REFUSED"},
};

QString reasonText(TKSV_Failure reason)
{
    const Row *row = ROWS;
    const Row *const last = ROWS + sizeof ROWS / sizeof *ROWS - 1;
    while (row != last && row->reason != reason)
        ++row;
    return dashboardText(row->textKey);
}

bool isOutcomeUnknown(TKSV_Failure reason)
{
    return reason == TKSV_FAILURE_NO_ANSWER || reason == TKSV_FAILURE_DEVICE_LOST ||
           reason == TKSV_FAILURE_CANCELLED;
}

} // namespace

TKSV_FailureInfo lastFailure()
{
    TKSV_FailureInfo failure = {};
    TKSV_Device_GetLastFailure(&failure);
    return failure;
}

QString failureWords(const TKSV_FailureInfo &failure)
{
    if (failure.reason == TKSV_FAILURE_NONE)
        return QString();
    QString words = reasonText(failure.reason);
    if (failure.wasNotSent)
        words += QLatin1Char(' ') + dashboardText("FAILURE_NOT_CARRIED_OUT");
    else if (isOutcomeUnknown(failure.reason))
        words += QLatin1Char(' ') + dashboardText("FAILURE_MAYBE_CARRIED_OUT");
    if (failure.text[0])
        words += QLatin1Char(' ') +
                 dashboardText("FAILURE_CLOSING_TEXT").arg(QString::fromUtf8(failure.text));
    return words;
}

} // namespace Dashboard
