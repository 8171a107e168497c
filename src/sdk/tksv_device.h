/*
 * What a dashboard needs of the device beyond the services of tksv.h: the subscriber, the strength
 * of the signal, and the choice of a simulated network or a modem. Plug-ins do not include this
 * header.
 *
 * The interface is plain C. All text is UTF-8 and terminated by a zero byte. Results, threads and
 * call-backs follow tksv.h: every function returns 0 on success and another value on failure, may
 * be called from any thread, and returns without waiting for the network.
 */
#ifndef TKSV_DEVICE_H
#define TKSV_DEVICE_H

#include "tksv.h"

#include <time.h>

#ifdef __cplusplus
extern "C" {
#endif

/** What the services of tksv.h work on. */
typedef enum TKSV_Backend {
    TKSV_BACKEND_SIMULATOR = 0,   /* a network simulated from a scenario file */
    TKSV_BACKEND_MODEMMANAGER = 1 /* a modem, reached through ModemManager */
} TKSV_Backend;

/** The state of the device, from the least to the most usable. */
typedef enum TKSV_DeviceState {
    TKSV_DEVICE_ABSENT = 0,
    TKSV_DEVICE_SIM_MISSING = 1,
    TKSV_DEVICE_SIM_LOCKED = 2, /* the SIM waits for its PIN or PUK */
    TKSV_DEVICE_DISABLED = 3,   /* the modem is not switched on */
    TKSV_DEVICE_SEARCHING = 4,  /* the device is not registered with a network */
    TKSV_DEVICE_REGISTERED = 5  /* commands can be sent */
} TKSV_DeviceState;

/** A problem that the user or the system's administrator can solve. */
typedef enum TKSV_DeviceProblem {
    TKSV_PROBLEM_NONE = 0,
    TKSV_PROBLEM_NO_BUS = 1,        /* the system message bus (D-Bus) cannot be reached */
    TKSV_PROBLEM_NO_SERVICE = 2,    /* ModemManager is not running */
    TKSV_PROBLEM_NOT_PERMITTED = 3, /* the system's policy (polkit) denies this user the device */
    TKSV_PROBLEM_CHOSEN_ABSENT = 4, /* there are modems, but the chosen modem is missing */
    TKSV_PROBLEM_WRONG_PIN = 5,     /* the last PIN that was sent is wrong */
    TKSV_PROBLEM_PUK_NEEDED = 6,    /* the SIM needs its PUK, or another lock holds the modem */
    TKSV_PROBLEM_NO_USSD = 7,       /* the modem does not support USSD */
    TKSV_PROBLEM_MODEM_FAILED = 8   /* ModemManager reports that the modem has failed */
} TKSV_DeviceProblem;

/**
 * A snapshot of what is known of the device. A text that is unknown is empty; a text that is longer
 * than its field is cut between two characters.
 */
typedef struct TKSV_DeviceInfo {
    TKSV_Backend backend;
    TKSV_DeviceState state;
    TKSV_DeviceProblem problem;
    int signalPercent;         /* strength of the signal, 0 to 100; -1 when unknown */
    int canSendSMS;            /* 1 when short messages can be sent, otherwise 0 */
    int pinRetries;            /* number of PINs that may still be tried; -1 when unknown */
    char operatorName[128];    /* name of the network that the device is registered with */
    char imsi[16];             /* the subscriber's IMSI, at most 15 digits (3GPP TS 23.003) */
    char simOperatorCode[8];   /* MCC and MNC of the SIM's home network, 5 or 6 digits */
    char simOperatorName[128]; /* name of the operator as stored on the SIM */
    char equipmentId[64];      /* identifier of the modem in use, see TKSV_Modem */
    char source[1024];         /* path of the scenario file, or maker and model of the modem */
} TKSV_DeviceInfo;

/** Copies a snapshot to `*info`. Fails when `info` is null. */
TKSV_API long TKSV_Device_GetInfo(TKSV_DeviceInfo *info);

/**
 * The function that the SDK calls on its own thread after a field of TKSV_DeviceInfo or the list of
 * modems has changed. `context` is the pointer that was registered with the call-back.
 */
typedef void (*TKSV_DeviceInfoCallback)(void *context);

/**
 * Registers the call-back for changes. There is one such call-back: a second registration replaces
 * the first, and null removes it. When the function has returned, the earlier call-back is not
 * running and will not run again. The caller owns `context`.
 */
TKSV_API long TKSV_Device_SetInfoCallback(TKSV_DeviceInfoCallback callback, void *context);

/**
 * Switches to the simulated network of a scenario file, which replaces the device in use.
 * TKSV_DEV_EVENT_GONE ends a request in flight, and the SMS call-backs get the new status. A null
 * or empty `path` selects the file that $TKSV_SCENARIO names, or else the file that is installed
 * with the library.
 *
 * Fails when the file cannot be used, and changes nothing then. The complaints are copied to
 * `message` (of `messageSize` bytes; may be null), each with the file, the line and what was
 * expected there. On success, `message` is empty.
 */
TKSV_API long TKSV_Device_UseScenario(const char *path, char *message, unsigned long messageSize);

/**
 * A modem that ModemManager has found. Several modems can have the same name, but each has an
 * identifier of its own: its IMEI, or ModemManager's identifier of the device for a modem that does
 * not report its IMEI.
 */
typedef struct TKSV_Modem {
    char equipmentId[64]; /* never empty */
    char name[256];       /* maker and model */
    int isInUse;          /* 1 when the modem is the device in use, otherwise 0 */
} TKSV_Modem;

/**
 * Copies at most `capacity` entries to the array `modems`, the modem found first at the front, and
 * sets `*count` to the number of modems that exist. `modems` may be null when `capacity` is 0. The
 * call-back of TKSV_Device_SetInfoCallback reports changes of the list.
 */
TKSV_API long TKSV_Device_GetModems(TKSV_Modem *modems, unsigned long capacity,
                                    unsigned long *count);

/**
 * Switches to the modem with that identifier, which replaces the device in use in the same way as
 * TKSV_Device_UseScenario does. While the modem is missing, no other modem replaces it. A null or
 * empty identifier selects the modem that is found first.
 */
TKSV_API long TKSV_Device_UseModem(const char *equipmentId);

/**
 * Switches back to the choice that the program started with, which $TKSV_BACKEND decides:
 * "simulator" does not look for modems, "modemmanager" waits for a modem. Without the variable the
 * device is a modem as soon as there is one, and until then the simulated network of the initial
 * scenario.
 */
TKSV_API long TKSV_Device_UseAutomatic(void);

/**
 * Sends the PIN, 4 to 8 digits, to unlock the SIM (ETSI TS 102 221). Fails when the text is not a
 * PIN, and when the SIM is not waiting for a PIN. Otherwise the call-back of
 * TKSV_Device_SetInfoCallback reports the outcome as a change of `state` or `problem`.
 */
TKSV_API long TKSV_Device_SendPin(const char *pin);

/** Text from the network that no USSD call-back took. */
typedef struct TKSV_NetworkText {
    time_t receivedAt;  /* in UTC */
    int waitsForAnswer; /* 1 when the next TKSV_USSDSrv_Request answers the text, unless the request
                           has the form of a code; otherwise 0 */
    const char *text;   /* empty when the text is unknown, as for a menu that was open before the
                           program started */
} TKSV_NetworkText;

/**
 * The function that the SDK calls on its own thread for each such text. The SDK owns `text`, which
 * is valid during the call only. `context` is the pointer that was registered with the call-back.
 */
typedef void (*TKSV_NetworkTextCallback)(void *context, const TKSV_NetworkText *text);

/**
 * Registers the call-back for each text that every call-back of TKSV_USSDSrv_RegisterUSSDCallback
 * left by returning 0, or that came while none was registered. The SDK keeps the last 20 such texts
 * and delivers them first. There is one such call-back; it is replaced and removed as the call-back
 * of TKSV_Device_SetInfoCallback is.
 */
TKSV_API long TKSV_Device_SetTextCallback(TKSV_NetworkTextCallback callback, void *context);

#ifdef __cplusplus
}
#endif

#endif
