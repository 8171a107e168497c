/*
 * What a dashboard needs of the device beyond the services of tksv.h: who the subscriber is, how
 * good the signal is, and which simulated network or modem is used. The plug-in never includes it.
 *
 * Plain C, text in UTF-8, any thread; every call returns at once.
 */
#ifndef TKSV_DEVICE_H
#define TKSV_DEVICE_H

#include "tksv.h"

#include <time.h>

#ifdef __cplusplus
extern "C" {
#endif

/** What stands behind the services. */
typedef enum TKSV_Backend {
    TKSV_BACKEND_SIMULATOR = 0,   /* a scenario file plays the network */
    TKSV_BACKEND_MODEMMANAGER = 1 /* a modem, through ModemManager */
} TKSV_Backend;

/** How far the device has got. */
typedef enum TKSV_DeviceState {
    TKSV_DEVICE_ABSENT = 0,
    TKSV_DEVICE_SIM_MISSING = 1,
    TKSV_DEVICE_SIM_LOCKED = 2, /* the SIM waits for its PIN */
    TKSV_DEVICE_DISABLED = 3,   /* switched off, or not yet switched on */
    TKSV_DEVICE_SEARCHING = 4,  /* not registered with a network */
    TKSV_DEVICE_REGISTERED = 5  /* commands can be sent */
} TKSV_DeviceState;

/** What the user, or who looks after his computer, can do something about. */
typedef enum TKSV_DeviceProblem {
    TKSV_PROBLEM_NONE = 0,
    TKSV_PROBLEM_NO_BUS = 1,        /* the system's message bus (D-Bus) cannot be reached */
    TKSV_PROBLEM_NO_SERVICE = 2,    /* ModemManager does not run */
    TKSV_PROBLEM_NOT_PERMITTED = 3, /* the system's policy (polkit) does not let this user do it */
    TKSV_PROBLEM_CHOSEN_ABSENT = 4, /* there are modems, but not the one that was chosen */
    TKSV_PROBLEM_WRONG_PIN = 5,     /* the PIN sent last was not the SIM's */
    TKSV_PROBLEM_PUK_NEEDED = 6,    /* too many wrong PINs, or another lock than the PIN's */
    TKSV_PROBLEM_NO_USSD = 7,       /* the modem cannot send USSD commands */
    TKSV_PROBLEM_MODEM_FAILED = 8   /* ModemManager has given the modem up */
} TKSV_DeviceProblem;

/** A snapshot; texts are always terminated and empty when unknown. */
typedef struct TKSV_DeviceInfo {
    TKSV_Backend backend;
    TKSV_DeviceState state;
    TKSV_DeviceProblem problem;
    int signalPercent;         /* 0 to 100; -1 when unknown */
    int canSendSMS;            /* 0 or 1 */
    int pinRetries;            /* PINs that can still be tried; -1 when unknown */
    char operatorName[128];    /* of the network the device is registered with */
    char imsi[16];             /* at most 15 digits (3GPP TS 23.003) */
    char simOperatorCode[8];   /* MCC and MNC of the SIM's home network, 5 or 6 digits */
    char simOperatorName[128]; /* what the SIM calls its operator */
    char equipmentId[64];      /* of the modem in use, see TKSV_Modem */
    char source[1024];         /* simulator: the scenario file; modem: its maker and model */
} TKSV_DeviceInfo;

/** Fills `*info`. Returns non-zero for a null pointer only. */
TKSV_API long TKSV_Device_GetInfo(TKSV_DeviceInfo *info);

/** Called on a thread of the SDK whenever something of TKSV_DeviceInfo has changed. */
typedef void (*TKSV_DeviceInfoCallback)(void *context);

/**
 * One call-back; a second registration replaces the first, null takes it off. When the call has
 * returned, the earlier call-back is not running and will not run again.
 */
TKSV_API long TKSV_Device_SetInfoCallback(TKSV_DeviceInfoCallback callback, void *context);

/**
 * Makes the network of a scenario file the device, in place of the one before: a request in flight
 * is ended by TKSV_DEV_EVENT_GONE, and readiness for SMS is told anew. A null or empty path takes
 * the scenario that $TKSV_SCENARIO names, or the one that comes with the library.
 *
 * A file that cannot be used changes nothing: the result is non-zero and `message` (of
 * `messageSize` bytes; may be null) says file, line and what was expected there.
 */
TKSV_API long TKSV_Device_UseScenario(const char *path, char *message, unsigned long messageSize);

/**
 * A modem that ModemManager has found. Two modems can have the same name, never the same
 * identifier; one that does not tell its IMEI gives ModemManager's name for the device.
 */
typedef struct TKSV_Modem {
    char equipmentId[64];
    char name[256]; /* maker and model */
    int isInUse;    /* 0 or 1 */
} TKSV_Modem;

/**
 * Fills at most `capacity` entries of `modems` (which may be null when that is 0), the one that has
 * been there longest first; `*count` is how many there are. The information call-back tells of
 * changes.
 */
TKSV_API long TKSV_Device_GetModems(TKSV_Modem *modems, unsigned long capacity,
                                    unsigned long *count);

/**
 * Makes that modem the device, in place of the one before, as TKSV_Device_UseScenario does. While
 * it is not there no other takes its place. A null or empty identifier takes the one that comes
 * first.
 */
TKSV_API long TKSV_Device_UseModem(const char *equipmentId);

/**
 * Takes a modem when there is one or once there is one, and until then the simulator: what a
 * program begins with unless $TKSV_BACKEND is "simulator" or "modemmanager". With "simulator"
 * ModemManager is not looked for, and there are no modems.
 */
TKSV_API long TKSV_Device_UseAutomatic(void);

/**
 * Unlocks the SIM with its PIN, 4 to 8 digits. Non-zero when it cannot be one or the SIM waits for
 * none; otherwise the information call-back tells later how it went, by state and problem.
 */
TKSV_API long TKSV_Device_SendPin(const char *pin);

/** What the network said of its own accord. */
typedef struct TKSV_NetworkText {
    time_t receivedAt;  /* UTC */
    int waitsForAnswer; /* 1: the next TKSV_USSDSrv_Request answers it, unless it is a code */
    const char *text;   /* UTF-8, zero-terminated; empty when the network's text is not known any
                           more, as of a menu that was open before the program started */
} TKSV_NetworkText;

/** Called on a thread of the SDK; the record lives only during the call. */
typedef void (*TKSV_NetworkTextCallback)(void *context, const TKSV_NetworkText *text);

/**
 * Told of each text that no call-back of TKSV_USSDSrv_RegisterUSSDCallback took (all returned 0),
 * beginning with the last 20 that came before. One call-back; replaced and taken off as that of
 * TKSV_Device_SetInfoCallback.
 */
TKSV_API long TKSV_Device_SetTextCallback(TKSV_NetworkTextCallback callback, void *context);

#ifdef __cplusplus
}
#endif

#endif
