/*
 * Additional functions and records for a dashboard: the subscriber, the signal strength, and the
 * choice between a simulated network and a modem. Plug-ins do not use this header.
 *
 * The interface is plain C. All strings are null-terminated and in UTF-8. The rules of tksv.h for
 * results, threads and call-backs also apply here. Every function returns 0 on success and a
 * non-zero value on failure, may be called from any thread, and does not wait for the network.
 */
#ifndef TKSV_DEVICE_H
#define TKSV_DEVICE_H

#include "tksv.h"

#include <time.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The kind of device that the services of tksv.h use. */
typedef enum TKSV_Backend {
    TKSV_BACKEND_SIMULATOR = 0,   /* a network simulated from a scenario file */
    TKSV_BACKEND_MODEMMANAGER = 1 /* a modem that is controlled by ModemManager */
} TKSV_Backend;

/** The state of the device, from the least to the most usable. */
typedef enum TKSV_DeviceState {
    TKSV_DEVICE_ABSENT = 0,
    TKSV_DEVICE_SIM_MISSING = 1,
    TKSV_DEVICE_SIM_LOCKED = 2, /* the SIM requires its PIN or PUK */
    TKSV_DEVICE_DISABLED = 3,   /* the modem is disabled */
    TKSV_DEVICE_SEARCHING = 4,  /* the device is not registered with a network */
    TKSV_DEVICE_REGISTERED = 5  /* commands can be sent */
} TKSV_DeviceState;

/** A problem that the user or the system administrator can solve. */
typedef enum TKSV_DeviceProblem {
    TKSV_PROBLEM_NONE = 0,
    TKSV_PROBLEM_NO_BUS = 1,        /* the system message bus (D-Bus) is not available */
    TKSV_PROBLEM_NO_SERVICE = 2,    /* ModemManager is not running */
    TKSV_PROBLEM_NOT_PERMITTED = 3, /* the system's policy (polkit) denies access to the device */
    TKSV_PROBLEM_CHOSEN_ABSENT = 4, /* the selected modem is not available, but others are */
    TKSV_PROBLEM_WRONG_PIN = 5,     /* the PIN that was last sent is wrong */
    TKSV_PROBLEM_PUK_NEEDED = 6,    /* the SIM requires its PUK, or another lock is active */
    TKSV_PROBLEM_NO_USSD = 7,       /* the modem does not support USSD */
    TKSV_PROBLEM_MODEM_FAILED = 8,  /* ModemManager reports that the modem has failed */
    TKSV_PROBLEM_REGISTRATION_DENIED = 9, /* the network rejects the SIM */
    TKSV_PROBLEM_SERVICE_SILENT = 10,     /* ModemManager is running but does not respond */
    TKSV_PROBLEM_MODEM_REMOVED = 11       /* the modem in use was removed */
} TKSV_DeviceProblem;

/**
 * A snapshot of the device's state and properties. Unknown strings are empty. A string that is too
 * long for its field is truncated at a character boundary.
 */
typedef struct TKSV_DeviceInfo {
    TKSV_Backend backend;       /* the kind of device */
    TKSV_DeviceState state;     /* the state of the device */
    TKSV_DeviceProblem problem; /* a problem that the user may be able to solve */
    int signalPercent;          /* signal strength, 0 to 100; -1 if unknown */
    int canSendSMS;             /* 1 if short messages can be sent, otherwise 0 */
    int pinRetries;             /* number of remaining PIN attempts; -1 if unknown */
    char operatorName[128];     /* name of the network that the device is registered with */
    char imsi[16];              /* the subscriber's IMSI, at most 15 digits (3GPP TS 23.003) */
    char simOperatorCode[8];    /* MCC and MNC of the SIM's home network, 5 or 6 digits */
    char simOperatorName[128];  /* service provider name (SPN) stored on the SIM */
    char equipmentId[64];       /* identifier of the current modem; see TKSV_Modem */
    char source[1024];     /* path of the scenario file, or manufacturer and model of the modem */
    int isLooking;         /* 1 until ModemManager has reported its modems, otherwise 0 */
    int hasForeignSession; /* 1 while a USSD session of another program is open */
    int waitsForTurn;      /* 1 while a request waits for another program of the same user */
    int isRoaming;         /* 1 while the network is not the home network of the SIM */
} TKSV_DeviceInfo;

/** Copies a snapshot to `*info`. Fails if `info` is null. */
TKSV_API long TKSV_Device_GetInfo(TKSV_DeviceInfo *info);

/**
 * A function that the SDK calls from its own thread after a change to a field of TKSV_DeviceInfo,
 * to the list of modems or to the session (TKSV_SessionInfo). `context` is the pointer that was
 * registered with the call-back.
 */
typedef void (*TKSV_DeviceInfoCallback)(void *context);

/**
 * Registers the call-back for changes. Only one such call-back can be registered: a new call-back
 * replaces the previous one, and null removes it. When the function returns, the previous call-back
 * is not running and will not be called again. The caller owns `context`.
 */
TKSV_API long TKSV_Device_SetInfoCallback(TKSV_DeviceInfoCallback callback, void *context);

/**
 * Switches to the simulated network of a scenario file, which replaces the current device. A
 * request in flight ends with TKSV_DEV_EVENT_GONE, and the SMS call-backs receive the new status.
 * If `path` is null or empty, the path in $TKSV_SCENARIO is used or, if the variable is not set,
 * the file that is installed with the library.
 *
 * If the file cannot be used, the function fails and has no effect. It then copies the error
 * messages to `message`, an array of `messageSize` bytes that may be null. Each error message
 * consists of the file name, the line number and the expected value. On success, `message` is
 * empty.
 */
TKSV_API long TKSV_Device_UseScenario(const char *path, char *message, unsigned long messageSize);

/**
 * A modem that ModemManager has found. Modems can have the same name, but their identifiers are
 * unique. The identifier is the IMEI, or ModemManager's device identifier if the IMEI is unknown.
 */
typedef struct TKSV_Modem {
    char equipmentId[64];   /* never empty */
    char name[256];         /* manufacturer and model */
    int isInUse;            /* 1 if the modem is the current device, otherwise 0 */
    TKSV_DeviceState state; /* the state of the modem */
} TKSV_Modem;

/**
 * Copies at most `capacity` modems to the array `modems`, in the order in which they were found.
 * Sets `*count` to the total number of modems. `modems` may be null if `capacity` is 0. Changes to
 * the list are reported to the call-back of TKSV_Device_SetInfoCallback.
 */
TKSV_API long TKSV_Device_GetModems(TKSV_Modem *modems, unsigned long capacity,
                                    unsigned long *count);

/**
 * Switches to the modem with this identifier, which replaces the current device in the same way as
 * TKSV_Device_UseScenario does. If the modem is not present, no other modem is used instead. A null
 * or empty identifier selects the first registered modem or, if no modem is registered, the modem
 * that was found first.
 */
TKSV_API long TKSV_Device_UseModem(const char *equipmentId);

/**
 * Switches back to the device that was selected when the program started. This is a simulated
 * network if $TKSV_BACKEND is "simulator", or if $TKSV_BACKEND is not set and $TKSV_SCENARIO
 * contains the path of a file. Otherwise, it is the first registered modem or, if no modem is
 * registered, the modem that was found first. A missing modem is never replaced by a simulated
 * network.
 */
TKSV_API long TKSV_Device_UseAutomatic(void);

/**
 * Sends the PIN, which has 4 to 8 digits, to unlock the SIM (ETSI TS 102 221). Fails if the string
 * is not a PIN or if the SIM is not waiting for a PIN. Otherwise, the result is reported as a
 * change to TKSV_DeviceInfo::state or TKSV_DeviceInfo::problem.
 */
TKSV_API long TKSV_Device_SendPin(const char *pin);

/**
 * Enables the modem in use, which then registers with its network. The SDK does not enable modems
 * by itself, except after TKSV_Device_SendPin has unlocked the SIM. Fails if there is no modem or
 * if it is not disabled. Otherwise, the result is reported as a change to TKSV_DeviceInfo::state or
 * TKSV_DeviceInfo::problem.
 */
TKSV_API long TKSV_Device_Enable(void);

/** The network generations that a modem may use. */
typedef enum TKSV_Mode {
    TKSV_MODE_2G = 1,
    TKSV_MODE_3G = 2,
    TKSV_MODE_4G = 4,
    TKSV_MODE_5G = 8
} TKSV_Mode;

/** The network generations of a modem. Each field is a combination of TKSV_Mode values. */
typedef struct TKSV_Modes {
    unsigned int allowed;   /* the generations that the modem may use; 0 if unknown */
    unsigned int preferred; /* the generations that the modem prefers; 0 if none */
} TKSV_Modes;

/** The network generations of the modem in use: the current setting and a suggested one. */
typedef struct TKSV_ModesInfo {
    TKSV_Modes current;   /* the current setting */
    TKSV_Modes withOlder; /* the setting that also allows 2G or 3G; `allowed` is 0 if the modem
                             supports no such setting, or if 2G or 3G is already allowed */
    int hasFailed;        /* 1 if the most recent change has failed, otherwise 0 */
} TKSV_ModesInfo;

/**
 * Copies the network generations of the modem in use to `*info`. Changes are reported to the
 * call-back of TKSV_Device_SetInfoCallback. Fails if `info` is null.
 */
TKSV_API long TKSV_Device_GetModes(TKSV_ModesInfo *info);

/**
 * Changes the network generations of the modem in use. The SDK never changes them on its own. Fails
 * if `modes` is null, if `allowed` is 0, or if there is no modem. Otherwise, the result is reported
 * to the call-back of TKSV_Device_SetInfoCallback.
 */
TKSV_API long TKSV_Device_SetModes(const TKSV_Modes *modes);

/**
 * Searches for ModemManager and its modems again, for example after the message bus or ModemManager
 * has been started. Changes are reported to the call-back of TKSV_Device_SetInfoCallback.
 */
TKSV_API long TKSV_Device_LookAgain(void);

/* ---- the session ------------------------------------------------------------------------- */

/** The state of this program's USSD session. */
typedef enum TKSV_SessionState {
    TKSV_SESSION_IDLE = 0,            /* there is no session */
    TKSV_SESSION_IN_FLIGHT = 1,       /* a request is in flight */
    TKSV_SESSION_WAITS_FOR_ANSWER = 2 /* the network is waiting for an answer */
} TKSV_SessionState;

/** A snapshot of the session. */
typedef struct TKSV_SessionInfo {
    TKSV_SessionState state;    /* the state of the session */
    unsigned long requestCount; /* number of requests accepted so far */
    char request[1024];         /* the newest accepted request, in UTF-8 */
} TKSV_SessionInfo;

/**
 * Copies a snapshot of the session to `*session`. In the call-back of a response, `request` is the
 * request that the response belongs to. In the call-back of a network-initiated message, `request`
 * is empty. Changes are reported to the call-back of TKSV_Device_SetInfoCallback. Fails if
 * `session` is null.
 */
TKSV_API long TKSV_Device_GetSession(TKSV_SessionInfo *session);

/* ---- failures of requests ---------------------------------------------------------------- */

/**
 * The reason why a request received no reply. If the request received an empty response, the reason
 * is also the `type` of the TKSV_USSDResponse. The values up to 5 are those of <m> in +CUSD (3GPP
 * TS 27.007, 7.15).
 */
typedef enum TKSV_Failure {
    TKSV_FAILURE_NONE = 0,
    TKSV_FAILURE_ENDED_BY_NETWORK = 2,
    TKSV_FAILURE_NOT_SUPPORTED = 4,   /* the network or the modem does not support USSD */
    TKSV_FAILURE_NETWORK_TIMEOUT = 5, /* the user did not answer the network in time */
    TKSV_FAILURE_REFUSED = 16,        /* the network or the modem refused the command */
    TKSV_FAILURE_NO_ANSWER = 17,      /* the modem did not respond in time */
    TKSV_FAILURE_EMPTY_REPLY = 18,    /* the network sent an empty reply */
    TKSV_FAILURE_UNDECODABLE = 19,    /* the reply could not be decoded */
    TKSV_FAILURE_NOT_ENCODABLE = 20,  /* the modem's character set cannot encode the command */
    TKSV_FAILURE_NO_DEVICE = 21,      /* no modem, or its SIM is missing or locked */
    TKSV_FAILURE_DISABLED = 22,       /* the modem is disabled */
    TKSV_FAILURE_NOT_REGISTERED = 23, /* the modem is not registered with a network */
    TKSV_FAILURE_DEVICE_LOST = 24,    /* the modem was removed, or ModemManager exited */
    TKSV_FAILURE_NOT_PERMITTED = 25,  /* the system's policy (polkit) denies USSD */
    TKSV_FAILURE_IN_USE = 26,         /* another program uses USSD on this modem */
    TKSV_FAILURE_NOT_ON_4G = 27,      /* the modem uses only 4G or 5G, but the network supports USSD
                                         only on 2G or 3G */
    TKSV_FAILURE_CANCELLED = 28       /* TKSV_Device_CancelRequest ended the request */
} TKSV_Failure;

/** The failure of the newest request. */
typedef struct TKSV_FailureInfo {
    TKSV_Failure reason; /* the cause of the failure */
    int wasNotSent;      /* 1 if the command definitely did not reach the network, otherwise 0 */
    char text[512];      /* the network's final message, in UTF-8; empty if unknown */
} TKSV_FailureInfo;

/**
 * Copies the failure of the newest request to `*failure`. The reason is TKSV_FAILURE_NONE if no
 * request has been made, or if the newest request is in flight or has received a reply. In the
 * call-back of an empty response, the function returns the failure of the request that the response
 * belongs to. It also returns the reason after TKSV_USSDSrv_Request itself has failed. Fails if
 * `failure` is null.
 */
TKSV_API long TKSV_Device_GetLastFailure(TKSV_FailureInfo *failure);

/**
 * Cancels the request in flight. The client receives an empty response of type
 * TKSV_FAILURE_CANCELLED. If a reply arrives at the same time, it is dropped unless its call-back
 * has already started. Fails if no request is in flight.
 */
TKSV_API long TKSV_Device_CancelRequest(void);

/**
 * Sets how long a request may wait for other programs of the same user. Applies to later requests.
 * A request whose time limit expires is not sent and fails with TKSV_FAILURE_IN_USE. The initial
 * value is 29000 ms. This is less than the 30 s that the plug-in waits for a reply, so that no
 * command is sent after its client has given up.
 */
TKSV_API long TKSV_Device_SetTurnLimit(unsigned int milliseconds);

/**
 * Ends the USSD session that another program has opened on the modem in use. Call this function
 * only at the user's request, because a purchase may be in progress. Fails if there is no such
 * session. TKSV_DeviceInfo::hasForeignSession becomes 0 when the session has ended.
 */
TKSV_API long TKSV_Device_EndForeignSession(void);

/* ---- network-initiated messages ---------------------------------------------------------- */

/** A USSD message from the network that no USSD call-back accepted. */
typedef struct TKSV_NetworkText {
    time_t receivedAt;  /* in UTC */
    int waitsForAnswer; /* 1 if the network is waiting for an answer to this message,
                           otherwise 0 */
    const char *text;   /* the message, in UTF-8 */
} TKSV_NetworkText;

/**
 * A function that the SDK calls from its own thread for each message that no USSD call-back
 * accepted. The SDK owns `text`, which is valid only during the call. `context` is the pointer that
 * was registered with the call-back.
 */
typedef void (*TKSV_NetworkTextCallback)(void *context, const TKSV_NetworkText *text);

/**
 * Registers the call-back for messages that no USSD call-back accepted, either because none was
 * registered or because all of them returned 0. The SDK stores the 20 most recent such messages and
 * delivers them to the new call-back. Only one call-back can be registered. It is replaced and
 * removed in the same way as the call-back of TKSV_Device_SetInfoCallback.
 */
TKSV_API long TKSV_Device_SetTextCallback(TKSV_NetworkTextCallback callback, void *context);

#ifdef __cplusplus
}
#endif

#endif
