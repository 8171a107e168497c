/*
 * What a dashboard needs of the device beyond the services of tksv.h: who the subscriber is, how
 * good the signal is, and which simulated network or modem is used. The plug-in never includes it.
 *
 * Plain C, text in UTF-8, any thread; every call returns at once.
 */
#ifndef TKSV_DEVICE_H
#define TKSV_DEVICE_H

#include "tksv.h"

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

/** A snapshot; texts are always terminated and empty when unknown. */
typedef struct TKSV_DeviceInfo {
    TKSV_Backend backend;
    TKSV_DeviceState state;
    int signalPercent;      /* 0 to 100; -1 when unknown */
    int canSendSMS;         /* 0 or 1 */
    char operatorName[128]; /* of the network the device is registered with */
    char imsi[16];          /* at most 15 digits (3GPP TS 23.003) */
    char source[1024];      /* simulator: the scenario file; modem: its maker and model */
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

#ifdef __cplusplus
}
#endif

#endif
