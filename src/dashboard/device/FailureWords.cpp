#include "FailureWords.h"

#include "base/DashboardText.h"

namespace Dashboard
{

namespace
{

enum Again { No, Yes };

struct Row {
    TKSV_Failure reason;
    const char *textKey;
    const char *titleKey;
    const char *meaningKey;
    Again again;
};

// The last row applies to all other reasons.
const Row ROWS[] = {
    {TKSV_FAILURE_ENDED_BY_NETWORK, "FAILURE_ENDED_BY_NETWORK", "STRIP_REFUSED",
     "STRIP_REFUSED_TEXT", Yes},
    {TKSV_FAILURE_NOT_SUPPORTED, "FAILURE_NOT_SUPPORTED", "STRIP_REFUSED", "FAILURE_NOT_SUPPORTED",
     No},
    {TKSV_FAILURE_NETWORK_TIMEOUT, "FAILURE_NETWORK_TIMEOUT", "STRIP_MENU_ENDED",
     "FAILURE_NETWORK_TIMEOUT", No},
    {TKSV_FAILURE_NO_ANSWER, "FAILURE_NO_ANSWER", "STRIP_NO_REPLY", "STRIP_NO_REPLY_TEXT", Yes},
    {TKSV_FAILURE_EMPTY_REPLY, "FAILURE_EMPTY_REPLY", "STRIP_EMPTY_REPLY", "STRIP_EMPTY_REPLY_TEXT",
     No},
    {TKSV_FAILURE_UNDECODABLE, "FAILURE_UNDECODABLE", "STRIP_UNREADABLE", "FAILURE_UNDECODABLE",
     No},
    {TKSV_FAILURE_NOT_ENCODABLE, "FAILURE_NOT_ENCODABLE", "STRIP_NOT_SENT", "FAILURE_NOT_ENCODABLE",
     No},
    {TKSV_FAILURE_NO_DEVICE, "FAILURE_NO_DEVICE", "STRIP_NOT_SENT", "STRIP_NOT_SENT_TEXT", Yes},
    {TKSV_FAILURE_DISABLED, "FAILURE_DISABLED", "STRIP_NOT_SENT", "FAILURE_DISABLED", Yes},
    {TKSV_FAILURE_NOT_REGISTERED, "FAILURE_NOT_REGISTERED", "STRIP_NOT_SENT",
     "FAILURE_NOT_REGISTERED", Yes},
    {TKSV_FAILURE_DEVICE_LOST, "FAILURE_DEVICE_LOST", "STRIP_BROKEN_OFF", "STRIP_BROKEN_OFF_TEXT",
     Yes},
    {TKSV_FAILURE_NOT_PERMITTED, "FAILURE_NOT_PERMITTED", "STRIP_NOT_SENT", "FAILURE_NOT_PERMITTED",
     No},
    {TKSV_FAILURE_IN_USE, "FAILURE_IN_USE", "STRIP_NOT_SENT", "FAILURE_IN_USE", Yes},
    {TKSV_FAILURE_NOT_ON_4G, "FAILURE_ON_LTE", "STRIP_REFUSED", "FAILURE_ON_LTE", Yes},
    {TKSV_FAILURE_CANCELLED, "FAILURE_CANCELLED", "STRIP_CANCELLED", "STRIP_CANCELLED_TEXT", Yes},
    {TKSV_FAILURE_REFUSED, "FAILURE_REFUSED", "STRIP_REFUSED", "STRIP_REFUSED_TEXT", Yes},
};

const Row &rowOf(TKSV_Failure reason)
{
    const Row *row = ROWS;
    const Row *const last = ROWS + sizeof ROWS / sizeof *ROWS - 1;
    while (row != last && row->reason != reason)
        ++row;
    return *row;
}

QString reasonText(TKSV_Failure reason)
{
    return dashboardText(rowOf(reason).textKey);
}

/// Returns the text for the key, with the code inserted if the text contains a placeholder.
QString withCode(const char *key, const QString &code)
{
    QString text = dashboardText(key);
    return text.replace(QLatin1String("%1"), code);
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

QString failureTitle(const TKSV_FailureInfo &failure, const QString &code)
{
    const bool isCancelled = failure.reason == TKSV_FAILURE_CANCELLED;
    const char *key = rowOf(failure.reason).titleKey;
    return withCode(failure.wasNotSent && !isCancelled ? "STRIP_NOT_SENT" : key, code);
}

QString failureMeaning(const TKSV_FailureInfo &failure, const QString &code)
{
    if (failure.text[0])
        return dashboardText("FAILURE_CLOSING_TEXT").arg(QString::fromUtf8(failure.text));
    if (!failure.wasNotSent)
        return withCode(rowOf(failure.reason).meaningKey, code);
    if (failure.reason == TKSV_FAILURE_CANCELLED)
        return withCode("STRIP_CANCELLED_UNSENT_TEXT", code);
    const bool isOutcomeText = isOutcomeUnknown(failure.reason);
    const char *key = rowOf(failure.reason).meaningKey;
    return isOutcomeText || failure.reason == TKSV_FAILURE_REFUSED
               ? dashboardText("STRIP_NOT_SENT_TEXT")
               : dashboardText(key);
}

bool mayBeSentAgain(const TKSV_FailureInfo &failure)
{
    return failure.wasNotSent ? failure.reason != TKSV_FAILURE_NOT_ENCODABLE &&
                                    failure.reason != TKSV_FAILURE_NOT_PERMITTED
                              : rowOf(failure.reason).again == Yes;
}

bool mayHaveBeenExecuted(const TKSV_FailureInfo &failure)
{
    const bool hasReply =
        failure.reason == TKSV_FAILURE_EMPTY_REPLY || failure.reason == TKSV_FAILURE_UNDECODABLE;
    return !failure.wasNotSent && (hasReply || isOutcomeUnknown(failure.reason));
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
