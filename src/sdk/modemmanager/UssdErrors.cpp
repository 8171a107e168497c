#include "UssdErrors.h"

#include <cstring>
#include <libmm-glib/libmm-glib.h>

namespace Tksv
{

namespace
{

bool hasCode(const GError &error, GQuark domain, int code)
{
    return error.domain == domain && error.code == code;
}

bool isCoreError(const GError &error, MMCoreError code)
{
    return hasCode(error, MM_CORE_ERROR, code);
}

bool says(const GError &error, const char *text)
{
    return std::strstr(error.message, text) != nullptr;
}

/// A call that fails after this time has failed because the modem did not respond: ModemManager
/// makes two attempts and waits 10 s for each.
const double UNANSWERED_SECONDS = 9;

/// Returns the reason for an MM_CORE_ERROR_FAILED. Only the text of the error message distinguishes
/// the causes.
TKSV_Failure reasonOfText(const GError &error, const UssdCallContext &context)
{
    if (says(error, "Unhandled USSD reply")) // followed by the <m> of +CUSD, as in "...: 5 (5)"
        return says(error, "(5)") ? TKSV_FAILURE_NETWORK_TIMEOUT : TKSV_FAILURE_ENDED_BY_NETWORK;
    if (says(error, "missing field separator"))
        return TKSV_FAILURE_EMPTY_REPLY;
    if (says(error, "Invalid USSD message received") || says(error, "Cannot decode USSD"))
        return TKSV_FAILURE_UNDECODABLE;
    if (context.seconds >= UNANSWERED_SECONDS)
        return TKSV_FAILURE_NO_ANSWER;
    return context.isOnlyOn4G ? TKSV_FAILURE_NOT_ON_4G : TKSV_FAILURE_REFUSED;
}

/// Returns the reason for an error reported by the modem.
TKSV_Failure reasonOfEquipmentError(int code, const UssdCallContext &context)
{
    switch (code) {
    case MM_MOBILE_EQUIPMENT_ERROR_NOT_SUPPORTED:
        return context.isOnlyOn4G ? TKSV_FAILURE_NOT_ON_4G : TKSV_FAILURE_NOT_SUPPORTED;
    case MM_MOBILE_EQUIPMENT_ERROR_NO_NETWORK:
        return TKSV_FAILURE_NOT_REGISTERED;
    case MM_MOBILE_EQUIPMENT_ERROR_NETWORK_TIMEOUT:
        return TKSV_FAILURE_NETWORK_TIMEOUT;
    default:
        return TKSV_FAILURE_REFUSED;
    }
}

/// Returns the reason for an error that ModemManager reports before it sends the command.
TKSV_Failure reasonOfWrongState(const GError &error)
{
    if (says(error, "no active session")) // the answer was sent too late
        return TKSV_FAILURE_ENDED_BY_NETWORK;
    const bool isAboutSession = says(error, "session") || says(error, "response");
    return isAboutSession ? TKSV_FAILURE_IN_USE : TKSV_FAILURE_DISABLED;
}

TKSV_Failure reasonOfCoreError(const GError &error, const UssdCallContext &context)
{
    switch (error.code) {
    case MM_CORE_ERROR_ABORTED:
        return TKSV_FAILURE_ENDED_BY_NETWORK;
    case MM_CORE_ERROR_UNSUPPORTED:
        return TKSV_FAILURE_NOT_SUPPORTED;
    case MM_CORE_ERROR_INVALID_ARGS:
        return TKSV_FAILURE_NOT_ENCODABLE;
    default:
        return reasonOfText(error, context);
    }
}

} // namespace

bool isServiceLost(const GError &error)
{
    for (const int code :
         {G_DBUS_ERROR_NO_REPLY, G_DBUS_ERROR_SERVICE_UNKNOWN, G_DBUS_ERROR_NAME_HAS_NO_OWNER,
          G_DBUS_ERROR_UNKNOWN_METHOD, G_DBUS_ERROR_UNKNOWN_OBJECT, G_DBUS_ERROR_DISCONNECTED}) {
        if (hasCode(error, G_DBUS_ERROR, code))
            return true;
    }
    return hasCode(error, G_IO_ERROR, G_IO_ERROR_CLOSED);
}

Failure failureOfUssdError(const GError &error, const UssdCallContext &context)
{
    if (isNotPermitted(error))
        return Failure{TKSV_FAILURE_NOT_PERMITTED, true};
    if (isCoreError(error, MM_CORE_ERROR_WRONG_STATE))
        return Failure{reasonOfWrongState(error), true};
    if (isInProgress(error))
        return Failure{TKSV_FAILURE_IN_USE, true};
    if (error.domain == G_CONVERT_ERROR && says(error, "to UTF-8")) // the reply cannot be converted
        return Failure{TKSV_FAILURE_UNDECODABLE};
    if (error.domain == G_CONVERT_ERROR)
        return Failure{TKSV_FAILURE_NOT_ENCODABLE, true};
    if (error.domain == MM_CORE_ERROR)
        return Failure{reasonOfCoreError(error, context)};
    if (error.domain == MM_MOBILE_EQUIPMENT_ERROR)
        return Failure{reasonOfEquipmentError(error.code, context)};
    if (error.domain == MM_SERIAL_ERROR || hasCode(error, G_IO_ERROR, G_IO_ERROR_TIMED_OUT))
        return Failure{TKSV_FAILURE_NO_ANSWER};
    return Failure{TKSV_FAILURE_REFUSED};
}

bool isInProgress(const GError &error)
{
    return isCoreError(error, MM_CORE_ERROR_IN_PROGRESS);
}

/// Returns true if the policy denied the call, or if polkit is missing or does not respond. Without
/// polkit, ModemManager reports MM_CORE_ERROR_FAILED.
bool isNotPermitted(const GError &error)
{
    const bool lacksPolkit =
        isCoreError(error, MM_CORE_ERROR_FAILED) && says(error, "PolicyKit authorization");
    return lacksPolkit || isCoreError(error, MM_CORE_ERROR_UNAUTHORIZED) ||
           hasCode(error, G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED);
}

/// Returns TKSV_PROBLEM_NONE for errors that occur because the modem is changing its state. The
/// modem will report its next state.
TKSV_DeviceProblem problemOfEnableError(const GError &error)
{
    if (isNotPermitted(error))
        return TKSV_PROBLEM_NOT_PERMITTED;
    const bool isPassing = isCoreError(error, MM_CORE_ERROR_WRONG_STATE) ||
                           isCoreError(error, MM_CORE_ERROR_IN_PROGRESS) || isServiceLost(error);
    return isPassing ? TKSV_PROBLEM_NONE : TKSV_PROBLEM_MODEM_FAILED;
}

TKSV_DeviceProblem problemOfPinError(const GError &error)
{
    if (isNotPermitted(error))
        return TKSV_PROBLEM_NOT_PERMITTED;
    if (hasCode(error, MM_MOBILE_EQUIPMENT_ERROR, MM_MOBILE_EQUIPMENT_ERROR_SIM_PUK))
        return TKSV_PROBLEM_PUK_NEEDED;
    if (hasCode(error, MM_MOBILE_EQUIPMENT_ERROR, MM_MOBILE_EQUIPMENT_ERROR_INCORRECT_PASSWORD))
        return TKSV_PROBLEM_WRONG_PIN;
    return TKSV_PROBLEM_MODEM_FAILED;
}

} // namespace Tksv
