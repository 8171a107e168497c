#ifndef USSDCOMMAND_H
#define USSDCOMMAND_H

#include <QString>

#include "tksv.h"

/** Who sent a command; also the component index of the configuration. */
enum _COMPONENT {
    COMPONENT_BALANCE = 0,
    COMPONENT_CHARGE = 1,
    COMPONENT_ONLINE_CHARGE = 2, // configuration only, nothing is sent with it
    COMPONENT_MSISDN = 3,
    COMPONENT_PREPOST_QUERY = 4,
    COMPONENT_GENERAL = 5,
    COMPONENT_USSD_SMS = 6
};

/** How a dialog is placed. */
enum WINDOW_MODEL {
    WINDOW_MODEL_MODAL = 0,   // in a frame of its own
    WINDOW_MODEL_EMBEDDED = 1 // as a child of a host's widget
};

/** What SendUSSDCommand() returns. */
enum SendResult {
    SEND_OK = 0,
    SEND_FAILED = 1,
    SEND_QUEUED = 12 // nothing of ours returns it; the dialogs treat it as SEND_OK
};

/// Whether an answer to a command with this result will come.
inline bool isAnswerAwaited(int result)
{
    return result == SEND_OK || result == SEND_QUEUED;
}

/// The key of the text that is shown for a command that could not be sent. `failed` is the key for
/// every reason but a device that did not answer in time.
inline const char *failureKey(int status, const char *failed)
{
    return status == TKSV_STATUS_DEVICE_TIMEOUT ? "USSD_CODE_TIME_OUT" : failed;
}

/** One command on its way to the network. */
struct USSDCmdOrResp {
    USSDCmdOrResp() : component(COMPONENT_BALANCE) {}
    USSDCmdOrResp(_COMPONENT sender, const QString &text) : component(sender), command(text) {}

    _COMPONENT component; // whose answer it will be
    QString command;      // as typed or configured
};

#endif
