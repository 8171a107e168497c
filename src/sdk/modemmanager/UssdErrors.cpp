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

/// Returns the type of a reply whose <m> of +CUSD the daemon does not handle. The daemon writes <m>
/// into the text of the error, as in "...: 5 (5)".
TKSV_Failure unhandledReason(const GError &error)
{
    const bool timeout =
        std::strstr(error.message, "Unhandled USSD reply") && std::strstr(error.message, "(5)");
    return timeout ? TKSV_FAILURE_NETWORK_TIMEOUT : TKSV_FAILURE_ENDED_BY_NETWORK;
}

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

} // namespace

UssdVerdict classifyUssdError(const GError &error)
{
    if (isNotPermitted(error))
        return {UssdFailure::NotPermitted, TKSV_FAILURE_ENDED_BY_NETWORK};
    if (isServiceLost(error))
        return {UssdFailure::ServiceLost, TKSV_FAILURE_ENDED_BY_NETWORK};
    if (isCoreError(error, MM_CORE_ERROR_WRONG_STATE) ||
        isCoreError(error, MM_CORE_ERROR_IN_PROGRESS))
        return {UssdFailure::SessionOpen, TKSV_FAILURE_ENDED_BY_NETWORK};
    if (hasCode(error, MM_MOBILE_EQUIPMENT_ERROR, MM_MOBILE_EQUIPMENT_ERROR_NOT_SUPPORTED))
        return {UssdFailure::Replied, TKSV_FAILURE_NOT_SUPPORTED};
    return {UssdFailure::Replied, unhandledReason(error)};
}

bool isNotPermitted(const GError &error)
{
    return isCoreError(error, MM_CORE_ERROR_UNAUTHORIZED) ||
           hasCode(error, G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED);
}

/// A modem whose state is changing can refuse the call. This is no problem, because its next state
/// is reported.
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
