#ifndef USSDCOMMAND_H
#define USSDCOMMAND_H

#include <QString>

#include "tksv.h"

/**
 * The component that sends a command. The values are also the component indexes in the
 * configuration.
 */
enum _COMPONENT {
    COMPONENT_BALANCE = 0,
    COMPONENT_CHARGE = 1,
    COMPONENT_ONLINE_CHARGE = 2, // used only in the configuration, not for commands
    COMPONENT_MSISDN = 3,
    COMPONENT_PREPOST_QUERY = 4,
    COMPONENT_GENERAL = 5,
    COMPONENT_USSD_SMS = 6
};

/** How a window is shown. */
enum WINDOW_MODEL {
    WINDOW_MODEL_MODAL = 0,   // in a separate frame
    WINDOW_MODEL_EMBEDDED = 1 // as a child of a widget of the host
};

/** The results of SendUSSDCommand(). */
enum SendResult {
    SEND_OK = 0,
    SEND_FAILED = 1,
    SEND_QUEUED = 12 // never returned by the plug-in itself; treated like SEND_OK
};

/// Returns true if a reply is expected after this result.
inline bool isAnswerAwaited(int result)
{
    return result == SEND_OK || result == SEND_QUEUED;
}

/// Returns the text key of the error message for a command that could not be sent. The key is
/// `failed` unless the device did not respond in time.
inline const char *failureKey(int status, const char *failed)
{
    return status == TKSV_STATUS_DEVICE_TIMEOUT ? "USSD_CODE_TIME_OUT" : failed;
}

/** A command for the network. */
struct USSDCmdOrResp {
    USSDCmdOrResp() : component(COMPONENT_BALANCE) {}
    USSDCmdOrResp(_COMPONENT sender, const QString &text) : component(sender), command(text) {}

    _COMPONENT component; // the component that sends the command and receives its reply
    QString command;      // the command as entered by the user or as configured
};

#endif
