#ifndef USSDCOMMAND_H
#define USSDCOMMAND_H

#include <QString>

#include "tksv.h"

/** The sender of a command. It is also the component index of the configuration. */
enum _COMPONENT {
    COMPONENT_BALANCE = 0,
    COMPONENT_CHARGE = 1,
    COMPONENT_ONLINE_CHARGE = 2, // used in the configuration only, never for a command
    COMPONENT_MSISDN = 3,
    COMPONENT_PREPOST_QUERY = 4,
    COMPONENT_GENERAL = 5,
    COMPONENT_USSD_SMS = 6
};

/** The ways to show a dialog. */
enum WINDOW_MODEL {
    WINDOW_MODEL_MODAL = 0,   // in a separate frame
    WINDOW_MODEL_EMBEDDED = 1 // as a child of a widget of the host
};

/** The results of SendUSSDCommand(). */
enum SendResult {
    SEND_OK = 0,
    SEND_FAILED = 1,
    SEND_QUEUED = 12 // never returned by the plug-in itself; the dialogs treat it as SEND_OK
};

/// Returns whether a command with this result will receive an answer.
inline bool isAnswerAwaited(int result)
{
    return result == SEND_OK || result == SEND_QUEUED;
}

/// Returns the key of the text that is shown for a command that could not be sent. The key is
/// `failed`, unless the device did not answer in time.
inline const char *failureKey(int status, const char *failed)
{
    return status == TKSV_STATUS_DEVICE_TIMEOUT ? "USSD_CODE_TIME_OUT" : failed;
}

/** One command on its way to the network. */
struct USSDCmdOrResp {
    USSDCmdOrResp() : component(COMPONENT_BALANCE) {}
    USSDCmdOrResp(_COMPONENT sender, const QString &text) : component(sender), command(text) {}

    _COMPONENT component; // the sender, which also receives the answer
    QString command;      // the text that the user typed or the configuration contains
};

#endif
