/*
 * The device SDK: USSD, short messages and device events of a mobile-broadband device.
 *
 * Plain C; every function may be called from any thread and returns at once: none waits for the
 * network. 0 means success everywhere. All text is UTF-16 in host byte order.
 *
 * Call-backs come on threads of the SDK, never from inside a call that the client makes, and one
 * at a time for each of the three services (device, USSD, SMS). The record that a call-back gets
 * lives during that call only. After an unregister call has returned, that call-back is not
 * running and will not run again; an unregister from inside the call-back itself returns at once.
 */
#ifndef TKSV_H
#define TKSV_H

#ifdef __cplusplus
extern "C" {
#endif

#define TKSV_API __attribute__((visibility("default")))

/* ---- call-backs and events --------------------------------------------------------------- */

/**
 * Called by the SDK. What `event` and `data` are depends on the service it is registered with.
 * Returns 1 when the client took the event, 0 when it had no use for it.
 */
typedef unsigned char (*TKSV_EventCallback)(int event, void *data);

/** Device events that end a request in flight (data is null). */
#define TKSV_DEV_EVENT_GONE 6016  /* the device went away */
#define TKSV_DEV_EVENT_RESET 6601 /* the device was reset */

/** SMS events. */
#define TKSV_SMS_EVENT_SEND_RESULT 0    /* data: TKSV_SMSSendResult */
#define TKSV_SMS_EVENT_STATUS_CHANGED 2 /* data: TKSV_SMSStatus */

/** Values of TKSV_SMSStatus::status. */
#define TKSV_SMS_STATUS_CAN_SEND 7
#define TKSV_SMS_STATUS_CANNOT_SEND 8

/** `*status` of a refused TKSV_USSDSrv_Request when the device did not answer in time. */
#define TKSV_STATUS_DEVICE_TIMEOUT 5

/* ---- records ----------------------------------------------------------------------------- */

/** UTF-16 units that the record of a command holds. */
#define TKSV_USSD_MAX_UNITS 184

/**
 * The longest command that a client hands over, in bytes: 91 UTF-16 units. The record would hold
 * more, and the SDK accepts what the record holds.
 */
#define TKSV_USSD_MAX_COMMAND_BYTES 183

/** A command on its way to the network. 372 bytes on every build. */
typedef struct TKSV_USSDRequest {
    unsigned int length;                      /* of the command, in bytes */
    unsigned short text[TKSV_USSD_MAX_UNITS]; /* UTF-16, not terminated */
} TKSV_USSDRequest;

/**
 * The network's reply to a command, or text that it sent of its own accord.
 * `type` is the <m> of an unsolicited +CUSD result (3GPP TS 27.007): 0 nothing more to do, 1 the
 * network waits for an answer. A response that the network refused or that failed on the device
 * has an empty text and a type other than 0.
 */
typedef struct TKSV_USSDResponse {
    int type;
    int reserved;
    unsigned short text[1]; /* UTF-16, as long as it needs, closed by a zero unit */
} TKSV_USSDResponse;

/** How a short message fared. The two texts are those that the record was created with. */
typedef struct TKSV_SMSSendResult {
    unsigned char reserved0[16];
    int result; /* 0 sent, anything else failed */
    unsigned char reserved1[64];
    const unsigned short *number; /* UTF-16, closed by a zero unit */
    const unsigned short *text;   /* likewise */
} TKSV_SMSSendResult;

/** Whether short messages can be sent: TKSV_SMS_STATUS_CAN_SEND or TKSV_SMS_STATUS_CANNOT_SEND. */
typedef struct TKSV_SMSStatus {
    int status;
} TKSV_SMSStatus;

/** A short message being written; only the SDK knows its inside. */
typedef struct TKSV_SMSRecordData *TKSV_SMSRecord;

/* ---- USSD (3GPP TS 22.090) --------------------------------------------------------------- */

/**
 * Hands a command to the network; the record is copied. One accepted request gets at most one
 * response. While the network waits for an answer, the request is that answer, unless it has the
 * form of a code (begins with * or #, ends with #): then it ends the session and begins a new one.
 * A request made while an earlier one is still on its way replaces it, and the earlier one gets no
 * response any more.
 *
 * Returns non-zero and sets `*status` when there is no usable device or the record is malformed
 * (length 0, odd or over 368, text that is no UTF-16 or holds a zero unit); `*status` is
 * TKSV_STATUS_DEVICE_TIMEOUT when the device did not answer in time. What was refused leaves
 * everything as it was. A response whose call-back has begun counts as given. `status` must not be
 * null.
 */
TKSV_API long TKSV_USSDSrv_Request(TKSV_USSDRequest *request, int *status);

/** Ends the USSD session, and with it a request in flight. Harmless without a session. */
TKSV_API long TKSV_USSDSrv_Release(int *status);

/**
 * From now on `callback` gets each response (event 0, data: TKSV_USSDResponse), and text that the
 * network sends of its own accord. Twice is the same as once.
 */
TKSV_API long TKSV_USSDSrv_RegisterUSSDCallback(TKSV_EventCallback callback);
/** Non-zero when it was not registered. The last one to go ends the session. */
TKSV_API long TKSV_USSDSrv_UnRegisterUSSDCallback(TKSV_EventCallback callback);

/* ---- device ------------------------------------------------------------------------------ */

/** From now on `callback` gets each device event. */
TKSV_API long TKSV_DevSrv_RegisterDevInitEventCallback(TKSV_EventCallback callback);
TKSV_API long TKSV_DevSrv_UnRegisterDevInitEventCallback(TKSV_EventCallback callback);

/* ---- short messages (3GPP TS 23.040) ------------------------------------------------------ */

/**
 * From now on `callback` gets each SMS event. While messages can be sent, it gets status
 * TKSV_SMS_STATUS_CAN_SEND soon after.
 */
TKSV_API long TKSV_SMSSrv_RegCallBack(TKSV_EventCallback callback);
TKSV_API long TKSV_SMSSrv_UnRegCallBack(TKSV_EventCallback callback);

/**
 * Makes a message of two zero-terminated UTF-16 texts, which are copied. On success `*record` is
 * the caller's and is given back with TKSV_SMSSrv_ReleaseSMSRecord; on failure it is null.
 */
TKSV_API long TKSV_SMSSrv_CreateSMSRecord(TKSV_SMSRecord *record, const unsigned short *number,
                                          const unsigned short *text);

/** Sends the message; TKSV_SMS_EVENT_SEND_RESULT tells later how it fared. */
TKSV_API long TKSV_SMSSrv_SendMsg(TKSV_SMSRecord record);

/** Gives a message back; also right after TKSV_SMSSrv_SendMsg, which keeps what it needs. */
TKSV_API long TKSV_SMSSrv_ReleaseSMSRecord(TKSV_SMSRecord record);

/* ---- folders ----------------------------------------------------------------------------- */

/**
 * Hands out the user's data folder as a new zero-terminated UTF-16 array, which the caller frees
 * with delete[]. The folder exists and its text ends in "/".
 */
TKSV_API long TKSV_GetUserDataDirectory(unsigned short **directory);

#ifdef __cplusplus
}
#endif

#endif
