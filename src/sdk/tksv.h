/*
 * The device SDK: USSD, short messages and device events of a mobile-broadband device.
 *
 * The interface is plain C and can be used from C89, C++98 or newer. All strings are UTF-16 in host
 * byte order.
 *
 * Results: every function returns 0 on success and a non-zero value on failure. A function also
 * fails if a required pointer is null, or if memory or threads are exhausted.
 *
 * Threads: every function may be called from any thread, even from inside a call-back. No function
 * waits for the network.
 *
 * Call-backs: the SDK calls them from its own threads, never from inside a function that the client
 * has called. Each of the three services (device, USSD, SMS) runs only one call-back at a time.
 * When an unregister function returns, the call-back is not running and will not be called again.
 * If the call-back itself calls the unregister function, that function returns immediately. At
 * program exit, the SDK waits for at most one second for a running call-back of each service.
 */
#ifndef TKSV_H
#define TKSV_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Exports a function from the library. */
#define TKSV_API __attribute__((visibility("default")))

/* ---- call-backs and events --------------------------------------------------------------- */

/**
 * A function that the SDK calls for each event. The meaning of `event` and `data` depends on the
 * service with which the call-back is registered. The SDK owns `data`, which is valid only during
 * the call.
 *
 * Returns 1 if the client accepted the event, otherwise 0. The call-back must not throw an
 * exception.
 */
typedef unsigned char (*TKSV_EventCallback)(int event, void *data);

/* Device events. Each event ends the USSD session and the request in flight. `data` is null. */
#define TKSV_DEV_EVENT_GONE 6016  /* the device was removed */
#define TKSV_DEV_EVENT_RESET 6601 /* the device was reset */

/* SMS events. */
#define TKSV_SMS_EVENT_SEND_RESULT 0    /* `data` is a TKSV_SMSSendResult */
#define TKSV_SMS_EVENT_STATUS_CHANGED 2 /* `data` is a TKSV_SMSStatus */

/* Values of TKSV_SMSStatus::status. */
#define TKSV_SMS_STATUS_CAN_SEND 7    /* short messages can be sent */
#define TKSV_SMS_STATUS_CANNOT_SEND 8 /* short messages cannot be sent */

/**
 * The value that TKSV_USSDSrv_Request stores in `*status` if the device did not respond in time.
 */
#define TKSV_STATUS_DEVICE_TIMEOUT 5

/* ---- records ----------------------------------------------------------------------------- */

/** The capacity of TKSV_USSDRequest::text, in UTF-16 code units. */
#define TKSV_USSD_MAX_UNITS 184

/**
 * The maximum length of a command from a client in bytes, which is enough for 91 UTF-16 code units.
 * The SDK does not enforce this limit; it accepts any length that fits into the record.
 */
#define TKSV_USSD_MAX_COMMAND_BYTES 183

/**
 * A command for the network (3GPP TS 22.090). The size of the record is 372 bytes on all platforms.
 */
typedef struct TKSV_USSDRequest {
    unsigned int length; /* length of the command in bytes: an even number from 2 to 368 */
    unsigned short text[TKSV_USSD_MAX_UNITS]; /* UTF-16, not null-terminated */
} TKSV_USSDRequest;

/**
 * The network's reply to a command, or a network-initiated message.
 *
 * `type` is the <m> of an unsolicited +CUSD result (3GPP TS 27.007, 7.15): 0 if no further action
 * is required, 1 if the network waits for an answer. If the network rejected a command, or the
 * command failed on the device, the text is empty and the type is not 0.
 */
typedef struct TKSV_USSDResponse {
    int type;               /* the <m> of +CUSD */
    int reserved;           /* reserved */
    unsigned short text[1]; /* null-terminated UTF-16 of any length */
} TKSV_USSDResponse;

/**
 * The result of sending a short message. The two strings are copies of the strings passed to
 * TKSV_SMSSrv_CreateSMSRecord. They are null-terminated UTF-16 strings owned by the record.
 */
typedef struct TKSV_SMSSendResult {
    unsigned char reserved0[16];  /* reserved */
    int result;                   /* 0 if the message was sent, otherwise an error */
    unsigned char reserved1[64];  /* reserved */
    const unsigned short *number; /* the recipient */
    const unsigned short *text;   /* the message */
} TKSV_SMSSendResult;

/** The record of an SMS event that reports whether short messages can be sent. */
typedef struct TKSV_SMSStatus {
    int status; /* TKSV_SMS_STATUS_CAN_SEND or TKSV_SMS_STATUS_CANNOT_SEND */
} TKSV_SMSStatus;

/** The handle of a short message. The contents of the record are private to the SDK. */
typedef struct TKSV_SMSRecordData *TKSV_SMSRecord;

/* ---- USSD (3GPP TS 22.090) --------------------------------------------------------------- */

/**
 * Sends a command to the network. The record is copied. An accepted request receives at most one
 * response, which counts as delivered as soon as its call-back starts.
 *
 * If the network is waiting for an answer, the request is sent as the answer. However, a request in
 * the form of a code (it starts with * or # and ends with #) ends this session and starts a new
 * one. A new request replaces a request in flight, which then receives no response.
 *
 * Fails and sets `*status` to a non-zero value if there is no usable device or if the record is
 * malformed. A record is malformed if its length is 0, odd or greater than 368, or if its text is
 * not well-formed UTF-16 or contains a null character. If the device did not respond in time,
 * `*status` is TKSV_STATUS_DEVICE_TIMEOUT. A failed request does not affect the session or a
 * request in flight. `status` must not be null.
 */
TKSV_API long TKSV_USSDSrv_Request(TKSV_USSDRequest *request, int *status);

/**
 * Ends the USSD session. A request in flight is cancelled and receives no response. The function
 * succeeds even if no session is open. Sets `*status` to 0. `status` may be null.
 */
TKSV_API long TKSV_USSDSrv_Release(int *status);

/**
 * Registers a call-back for responses and for network-initiated messages. The call-back receives
 * the event 0 and a TKSV_USSDResponse. Registering the same call-back again has no effect.
 */
TKSV_API long TKSV_USSDSrv_RegisterUSSDCallback(TKSV_EventCallback callback);

/**
 * Unregisters a call-back. Fails if the call-back is not registered. The session ends when the last
 * call-back is unregistered.
 */
TKSV_API long TKSV_USSDSrv_UnRegisterUSSDCallback(TKSV_EventCallback callback);

/* ---- device ------------------------------------------------------------------------------ */

/**
 * Registers a call-back for device events. Registering the same call-back again has no effect.
 */
TKSV_API long TKSV_DevSrv_RegisterDevInitEventCallback(TKSV_EventCallback callback);

/** Unregisters a call-back. Fails if the call-back is not registered. */
TKSV_API long TKSV_DevSrv_UnRegisterDevInitEventCallback(TKSV_EventCallback callback);

/* ---- short messages (3GPP TS 23.040) ----------------------------------------------------- */

/**
 * Registers a call-back for SMS events. If messages can currently be sent, the call-back soon
 * receives the status TKSV_SMS_STATUS_CAN_SEND.
 */
TKSV_API long TKSV_SMSSrv_RegCallBack(TKSV_EventCallback callback);

/** Unregisters a call-back. Fails if the call-back is not registered. */
TKSV_API long TKSV_SMSSrv_UnRegCallBack(TKSV_EventCallback callback);

/**
 * Creates a message from two null-terminated UTF-16 strings, which are copied. `number` must not be
 * empty. On success, the caller owns `*record` and must release it with
 * TKSV_SMSSrv_ReleaseSMSRecord. On failure, `*record` is null.
 */
TKSV_API long TKSV_SMSSrv_CreateSMSRecord(TKSV_SMSRecord *record, const unsigned short *number,
                                          const unsigned short *text);

/**
 * Sends the message. The event TKSV_SMS_EVENT_SEND_RESULT reports the result later. The function
 * fails, and no event follows, if messages cannot currently be sent or if `record` is not a valid
 * handle.
 */
TKSV_API long TKSV_SMSSrv_SendMsg(TKSV_SMSRecord record);

/**
 * Releases a message. May be called immediately after TKSV_SMSSrv_SendMsg, which copies the data
 * that it needs. Fails if `record` is not a valid handle.
 */
TKSV_API long TKSV_SMSSrv_ReleaseSMSRecord(TKSV_SMSRecord record);

/* ---- folders ----------------------------------------------------------------------------- */

/**
 * Returns the user's data folder as a new null-terminated UTF-16 array. The caller owns the array
 * and must free it with delete[]. The path ends with "/", and the folder exists. On failure,
 * `*directory` is null.
 */
TKSV_API long TKSV_GetUserDataDirectory(unsigned short **directory);

#ifdef __cplusplus
}
#endif

/* ---- layout of the records --------------------------------------------------------------- */

/*
 * The layout is checked both in the build of the library and in the build of the client, because
 * they may use different compilers. Compilers without static assertions (before C11 or C++11) skip
 * the checks.
 */
#if defined(__cplusplus) && __cplusplus >= 201103L
#define TKSV_CHECK_LAYOUT(condition) static_assert(condition, "layout of a device SDK record")
#elif !defined(__cplusplus) && defined(__STDC_VERSION__) && __STDC_VERSION__ >= 201112L
#define TKSV_CHECK_LAYOUT(condition) _Static_assert(condition, "layout of a device SDK record")
#endif

#ifdef TKSV_CHECK_LAYOUT
/*
 * Selects the offset for 32-bit platforms (4-byte pointers) or for 64-bit platforms (8-byte
 * pointers with an alignment of 8 bytes).
 */
#define TKSV_BY_POINTER_SIZE(of4, of8) (sizeof(void *) == 4 ? (of4) : (of8))

TKSV_CHECK_LAYOUT(sizeof(TKSV_USSDRequest) == 372);
TKSV_CHECK_LAYOUT(offsetof(TKSV_USSDRequest, length) == 0);
TKSV_CHECK_LAYOUT(offsetof(TKSV_USSDRequest, text) == 4);
TKSV_CHECK_LAYOUT(sizeof(unsigned short) * TKSV_USSD_MAX_UNITS == 368);
TKSV_CHECK_LAYOUT(offsetof(TKSV_USSDResponse, type) == 0);
TKSV_CHECK_LAYOUT(offsetof(TKSV_USSDResponse, reserved) == 4);
TKSV_CHECK_LAYOUT(offsetof(TKSV_USSDResponse, text) == 8);
TKSV_CHECK_LAYOUT(offsetof(TKSV_SMSSendResult, result) == 16);
TKSV_CHECK_LAYOUT(offsetof(TKSV_SMSSendResult, number) == TKSV_BY_POINTER_SIZE(84, 88));
TKSV_CHECK_LAYOUT(offsetof(TKSV_SMSSendResult, text) == TKSV_BY_POINTER_SIZE(88, 96));
TKSV_CHECK_LAYOUT(offsetof(TKSV_SMSStatus, status) == 0);

#undef TKSV_BY_POINTER_SIZE
#undef TKSV_CHECK_LAYOUT
#endif

#endif
