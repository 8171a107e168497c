/*
 * Functions and records for a dashboard that the services of tksv.h do not provide: the subscriber,
 * the signal strength, and the choice between a simulated network and a modem. Plug-ins do not
 * include this header.
 *
 * The interface is plain C. All strings are UTF-8 and terminated by a zero byte. Results, threads
 * and call-backs follow the rules of tksv.h: every function returns 0 on success and another value
 * on failure. Every function may be called from any thread and does not wait for the network.
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
    TKSV_DEVICE_SIM_LOCKED = 2, /* the SIM waits for its PIN or PUK */
    TKSV_DEVICE_DISABLED = 3,   /* the modem is disabled */
    TKSV_DEVICE_SEARCHING = 4,  /* the device is not registered with a network */
    TKSV_DEVICE_REGISTERED = 5  /* commands can be sent */
} TKSV_DeviceState;

/** A problem that the user or the system administrator can solve. */
typedef enum TKSV_DeviceProblem {
    TKSV_PROBLEM_NONE = 0,
    TKSV_PROBLEM_NO_BUS = 1,        /* the system message bus (D-Bus) cannot be reached */
    TKSV_PROBLEM_NO_SERVICE = 2,    /* ModemManager is not running */
    TKSV_PROBLEM_NOT_PERMITTED = 3, /* the system's policy (polkit) denies access to the device */
    TKSV_PROBLEM_CHOSEN_ABSENT = 4, /* there are modems, but not the chosen one */
    TKSV_PROBLEM_WRONG_PIN = 5,     /* the most recently sent PIN is wrong */
    TKSV_PROBLEM_PUK_NEEDED = 6,    /* the SIM needs its PUK, or another lock blocks the modem */
    TKSV_PROBLEM_NO_USSD = 7,       /* the modem does not support USSD */
    TKSV_PROBLEM_MODEM_FAILED = 8,  /* ModemManager reports that the modem has failed */
    TKSV_PROBLEM_REGISTRATION_DENIED = 9, /* the network does not accept the SIM */
    TKSV_PROBLEM_SERVICE_SILENT = 10,     /* ModemManager is running, but does not answer */
    TKSV_PROBLEM_MODEM_REMOVED = 11       /* the modem in use was removed */
} TKSV_DeviceProblem;

/**
 * A snapshot of the device. An unknown string is empty. A string that is too long for its field is
 * truncated after a complete character.
 */
typedef struct TKSV_DeviceInfo {
    TKSV_Backend backend;       /* the kind of device */
    TKSV_DeviceState state;     /* the state of the device */
    TKSV_DeviceProblem problem; /* why the device cannot be used, if a user can solve this */
    int signalPercent;          /* signal strength, 0 to 100; -1 if unknown */
    int canSendSMS;             /* 1 if short messages can be sent, otherwise 0 */
    int pinRetries;             /* number of remaining PIN attempts; -1 if unknown */
    char operatorName[128];     /* name of the network that the device is registered with */
    char imsi[16];              /* the subscriber's IMSI, at most 15 digits (3GPP TS 23.003) */
    char simOperatorCode[8];    /* MCC and MNC of the SIM's home network, 5 or 6 digits */
    char simOperatorName[128];  /* service provider name (SPN) stored on the SIM */
    char equipmentId[64];       /* identifier of the current modem; see TKSV_Modem */
    char source[1024];     /* path of the scenario file, or manufacturer and model of the modem */
    int isLooking;         /* 1 until ModemManager has first reported its modems, otherwise 0 */
    int hasForeignSession; /* 1 while a USSD session is open that another program opened */
    int waitsForTurn;      /* 1 while a request waits for another program of the same user */
} TKSV_DeviceInfo;

/** Copies a snapshot to `*info`. Fails if `info` is null. */
TKSV_API long TKSV_Device_GetInfo(TKSV_DeviceInfo *info);

/**
 * The type of a function that the SDK calls from its own thread after a field of TKSV_DeviceInfo,
 * the list of modems or the session (TKSV_SessionInfo) has changed. `context` is the pointer that
 * was registered with the call-back.
 */
typedef void (*TKSV_DeviceInfoCallback)(void *context);

/**
 * Registers the call-back for changes. Only one such call-back can be registered. A second
 * registration replaces the first, and null removes it. When the function has returned, the
 * previous call-back is not running and will not run again. The caller owns `context`.
 */
TKSV_API long TKSV_Device_SetInfoCallback(TKSV_DeviceInfoCallback callback, void *context);

/**
 * Switches to the simulated network of a scenario file, which replaces the current device. A
 * request in flight ends with TKSV_DEV_EVENT_GONE, and the SMS call-backs receive the new status.
 * If `path` is null or empty, the path is the value of $TKSV_SCENARIO. If the variable is not set,
 * the path is that of the file installed with the library.
 *
 * If the file cannot be used, the function fails and has no effect. It then copies the error
 * messages to `message`, an array of `messageSize` bytes that may be null. Each error message
 * contains the file, the line and the expected value. On success, `message` is empty.
 */
TKSV_API long TKSV_Device_UseScenario(const char *path, char *message, unsigned long messageSize);

/**
 * A modem that ModemManager has found. Several modems can have the same name, but each has a unique
 * identifier: its IMEI, or ModemManager's device identifier if the modem does not report its IMEI.
 */
typedef struct TKSV_Modem {
    char equipmentId[64];   /* never empty */
    char name[256];         /* manufacturer and model */
    int isInUse;            /* 1 if the modem is the current device, otherwise 0 */
    TKSV_DeviceState state; /* the state of the modem */
} TKSV_Modem;

/**
 * Copies at most `capacity` entries to the array `modems`, in the order in which the modems were
 * found. Sets `*count` to the total number of modems. `modems` may be null if `capacity` is 0. The
 * call-back of TKSV_Device_SetInfoCallback reports changes to the list.
 */
TKSV_API long TKSV_Device_GetModems(TKSV_Modem *modems, unsigned long capacity,
                                    unsigned long *count);

/**
 * Switches to the modem with that identifier, which replaces the device in use in the same way as
 * TKSV_Device_UseScenario does. While the modem is missing, no other modem replaces it. A null or
 * empty identifier selects the first modem that is registered, or, as long as no modem is
 * registered, the modem that was found first.
 */
TKSV_API long TKSV_Device_UseModem(const char *equipmentId);

/**
 * Switches back to the device that the program started with. If $TKSV_BACKEND is "simulator", or if
 * the variable is not set and $TKSV_SCENARIO names a file, this is a simulated network. Otherwise
 * it is the first modem that is registered, or, as long as no modem is registered, the modem that
 * was found first. A simulated network never replaces a modem.
 */
TKSV_API long TKSV_Device_UseAutomatic(void);

/**
 * Sends the PIN, which has 4 to 8 digits, to unlock the SIM (ETSI TS 102 221). Fails if the string
 * is not a PIN, or if the SIM does not wait for a PIN. Otherwise, the call-back of
 * TKSV_Device_SetInfoCallback reports the outcome as a change to `state` or `problem`.
 */
TKSV_API long TKSV_Device_SendPin(const char *pin);

/**
 * Enables the modem in use, which then registers with its network. The SDK never enables a modem on
 * its own, except after TKSV_Device_SendPin has unlocked the SIM. Fails if there is no modem or if
 * the modem is not disabled. The call-back of TKSV_Device_SetInfoCallback reports the outcome as a
 * change to `state` or `problem`.
 */
TKSV_API long TKSV_Device_Enable(void);

/**
 * Looks for ModemManager and its modems again, for example after the message bus or the service was
 * started. The call-back of TKSV_Device_SetInfoCallback reports changes.
 */
TKSV_API long TKSV_Device_LookAgain(void);

/* ---- the session ------------------------------------------------------------------------- */

/** The state of this program's USSD session. */
typedef enum TKSV_SessionState {
    TKSV_SESSION_IDLE = 0,            /* there is no session */
    TKSV_SESSION_IN_FLIGHT = 1,       /* a request is in flight */
    TKSV_SESSION_WAITS_FOR_ANSWER = 2 /* the network waits for an answer of the user */
} TKSV_SessionState;

/** A snapshot of the session. */
typedef struct TKSV_SessionInfo {
    TKSV_SessionState state;    /* the state of the session */
    unsigned long requestCount; /* number of requests that were accepted so far */
    char request[1024];         /* the newest accepted request, in UTF-8 */
} TKSV_SessionInfo;

/**
 * Copies a snapshot to `*session`. In the call-back of a response, `request` is the request that
 * the response belongs to. In the call-back of a network-initiated message, it is empty. The
 * call-back of TKSV_Device_SetInfoCallback reports changes. Fails if `session` is null.
 */
TKSV_API long TKSV_Device_GetSession(TKSV_SessionInfo *session);

/* ---- requests that fail ------------------------------------------------------------------ */

/**
 * The reason why a request has no reply. If the request receives an empty response, the reason is
 * also the `type` of the TKSV_USSDResponse. The values up to 5 are the <m> of +CUSD (3GPP TS
 * 27.007, 7.15).
 */
typedef enum TKSV_Failure {
    TKSV_FAILURE_NONE = 0,
    TKSV_FAILURE_ENDED_BY_NETWORK = 2,
    TKSV_FAILURE_NOT_SUPPORTED = 4,   /* by the network or by the modem */
    TKSV_FAILURE_NETWORK_TIMEOUT = 5, /* the network waited too long for the answer of the user */
    TKSV_FAILURE_REFUSED = 16,        /* the network or the modem refused the command */
    TKSV_FAILURE_NO_ANSWER = 17,      /* the modem did not answer in time */
    TKSV_FAILURE_EMPTY_REPLY = 18,    /* the network answered without a text */
    TKSV_FAILURE_UNDECODABLE = 19,    /* the reply could not be decoded */
    TKSV_FAILURE_NOT_ENCODABLE = 20,  /* the modem's character set lacks a character */
    TKSV_FAILURE_NO_DEVICE = 21,      /* no modem, or its SIM is missing or locked */
    TKSV_FAILURE_DISABLED = 22,       /* the modem is disabled */
    TKSV_FAILURE_NOT_REGISTERED = 23, /* the modem is not registered with a network */
    TKSV_FAILURE_DEVICE_LOST = 24,    /* the modem or ModemManager disappeared */
    TKSV_FAILURE_NOT_PERMITTED = 25,  /* the system's policy (polkit) denies USSD */
    TKSV_FAILURE_IN_USE = 26,         /* another program uses codes on this modem */
    TKSV_FAILURE_NOT_ON_4G = 27,      /* not supported while the modem is on 4G only; the network
                                         answers codes on 2G or 3G */
    TKSV_FAILURE_CANCELLED = 28       /* TKSV_Device_CancelRequest ended the request */
} TKSV_Failure;

/** How the newest request failed. */
typedef struct TKSV_FailureInfo {
    TKSV_Failure reason; /* the cause of the failure */
    int wasNotSent;      /* 1 if the command certainly did not reach the network, otherwise 0 */
    char text[512];      /* the network's closing text, in UTF-8; empty if unknown */
} TKSV_FailureInfo;

/**
 * Copies how the newest request failed to `*failure`. The reason is TKSV_FAILURE_NONE if there was
 * no request yet, if the newest request is in flight, or if it received a reply. In the call-back
 * of an empty response, the function reports the failure of this response. It also reports why
 * TKSV_USSDSrv_Request failed. Fails if `failure` is null.
 */
TKSV_API long TKSV_Device_GetLastFailure(TKSV_FailureInfo *failure);

/**
 * Ends the request in flight on the device. The client receives one response, which is empty and
 * whose type is TKSV_FAILURE_CANCELLED. A reply that arrives at the same time is dropped, unless
 * its call-back has already started. Fails if no request is in flight.
 */
TKSV_API long TKSV_Device_CancelRequest(void);

/**
 * Sets how long a later request may wait for another program of the same user. The initial value is
 * 29000 ms, which is less than the 30 s that the plug-in waits for a reply. Then the request fails
 * with TKSV_FAILURE_IN_USE and is not sent, so that no command is sent after its client has given
 * up.
 */
TKSV_API long TKSV_Device_SetTurnLimit(unsigned int milliseconds);

/**
 * Ends the USSD session that another program opened on the modem in use. Call this function only if
 * the user has asked for it, since a purchase may be in progress. Fails if there is no such
 * session. `hasForeignSession` changes when the session has ended.
 */
TKSV_API long TKSV_Device_EndForeignSession(void);

/* ---- texts that the network sends of its own accord -------------------------------------- */

/** A USSD message from the network that no USSD call-back accepted. */
typedef struct TKSV_NetworkText {
    time_t receivedAt;  /* in UTC */
    int waitsForAnswer; /* 1 if the next TKSV_USSDSrv_Request answers this message, unless the
                           request has the form of a code; otherwise 0 */
    const char *text;   /* the message, in UTF-8 */
} TKSV_NetworkText;

/**
 * The type of a function that the SDK calls from its own thread for each message that no USSD
 * call-back accepted. The SDK owns `text`, which is valid only during the call. `context` is the
 * pointer that was registered with the call-back.
 */
typedef void (*TKSV_NetworkTextCallback)(void *context, const TKSV_NetworkText *text);

/**
 * Registers the call-back for messages that no USSD call-back accepted: either no call-back was
 * registered, or each call-back of TKSV_USSDSrv_RegisterUSSDCallback returned 0. The SDK keeps the
 * 20 most recent such messages and delivers them first. Only one call-back can be registered. It is
 * replaced and removed in the same way as the call-back of TKSV_Device_SetInfoCallback.
 */
TKSV_API long TKSV_Device_SetTextCallback(TKSV_NetworkTextCallback callback, void *context);

#ifdef __cplusplus
}
#endif

#endif
