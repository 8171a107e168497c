#ifndef TKSV_INTERNAL_BACKEND_H
#define TKSV_INTERNAL_BACKEND_H

#include <cstdint>
#include <string>
#include <tuple>

#include "tksv_device.h"

namespace Tksv
{

/// Identifies an accepted request. The value 0 means that there is no request.
using RequestToken = std::uint64_t;

enum class RequestKind { NewSession, Answer };

/// The reply types for a reply with text, which are values of <m> in +CUSD (3GPP TS 27.007, 7.15).
enum UssdType { UssdFinal = 0, UssdWaitsForAnswer = 1 };

/// The values that TKSV_USSDSrv_Request stores in `*status`.
enum RequestStatus {
    RequestAccepted = 0,
    RequestNoDevice = 1,
    RequestMalformed = 2,
    RequestDeviceTimeout = TKSV_STATUS_DEVICE_TIMEOUT
};

/** The result of Backend::request(). */
struct RequestResult {
    int status = RequestAccepted;             // a RequestStatus
    TKSV_Failure refusal = TKSV_FAILURE_NONE; // the reason why the request was rejected
};

/** The reason why a request received no reply; see TKSV_FailureInfo. */
struct Failure {
    TKSV_Failure reason = TKSV_FAILURE_NONE;
    bool wasNotSent = false;
    std::string text = {}; // the network's final message, in UTF-8; empty if unknown
};

/** A reply to a request, or a network-initiated message. */
struct UssdReply {
    int type = UssdFinal; // a UssdType, or the failure reason if the request failed
    std::string text;     // the message, in UTF-8; empty if the request failed
    Failure failure = {}; // the reason is TKSV_FAILURE_NONE if the request succeeded
};

/// Returns the empty reply for a failed request.
inline UssdReply failedReply(const Failure &failure)
{
    return UssdReply{failure.reason, std::string(), failure};
}

/**
 * A short message in UTF-16. The client later receives these strings unchanged with the result.
 */
struct SmsMessage {
    std::u16string number;
    std::u16string text;
};

/// The result codes for sending a short message, which are the same for all backends.
const int SMS_SENT = 0;
const int SMS_FAILED = 1;

/**
 * The state and the properties of the device; see TKSV_DeviceInfo. Strings are in UTF-8 and are
 * empty if unknown.
 */
struct DeviceInfo {
    TKSV_Backend backend = TKSV_BACKEND_SIMULATOR;
    TKSV_DeviceState state = TKSV_DEVICE_ABSENT;
    TKSV_DeviceProblem problem = TKSV_PROBLEM_NONE;
    int signalPercent = -1;
    bool canSendSms = false;
    int pinRetries = -1;
    std::string operatorName;
    std::string imsi;
    std::string simOperatorCode;
    std::string simOperatorName;
    std::string equipmentId;
    std::string source;
    bool isLooking = false;
    bool hasForeignSession = false;
    bool waitsForTurn = false;
    bool isRoaming = false;
    TKSV_ModesInfo modes = {};
};

inline bool operator==(const DeviceInfo &a, const DeviceInfo &b)
{
    const auto fields = [](const DeviceInfo &i) {
        return std::tie(i.backend, i.state, i.problem, i.signalPercent, i.canSendSms, i.pinRetries,
                        i.operatorName, i.imsi, i.simOperatorCode, i.simOperatorName, i.equipmentId,
                        i.source, i.isLooking, i.hasForeignSession, i.waitsForTurn, i.isRoaming,
                        i.modes.current.allowed, i.modes.current.preferred,
                        i.modes.withOlder.allowed, i.modes.withOlder.preferred, i.modes.hasFailed);
    };
    return fields(a) == fields(b);
}

/**
 * Receives the events of a backend. The backend calls the observer only from its own thread, never
 * during a call to a function of Backend and never with a lock held. The observer's functions must
 * return immediately.
 */
class BackendObserver
{
public:
    virtual ~BackendObserver() = default;

    /// Reports the network's reply to a request. The observer ignores replies to requests that have
    /// already ended.
    virtual void ussdReply(RequestToken token, const UssdReply &reply) = 0;
    /// Reports a network-initiated message that arrived outside a session.
    virtual void ussdText(const UssdReply &text) = 0;
    /// Reports that the device was lost, which ends the session and the request in flight. `event`
    /// is TKSV_DEV_EVENT_GONE or TKSV_DEV_EVENT_RESET.
    virtual void deviceLost(int event) = 0;
    virtual void smsStatusChanged(bool canSend) = 0;
    /// Reports the result of sending a message that sendSms() accepted.
    virtual void smsFinished(const SmsMessage &message, int result) = 0;
    /// Reports that a field of DeviceInfo has changed.
    virtual void infoChanged() = 0;
};

/**
 * A device and its network. Every function may be called from any thread and returns immediately.
 * UssdSession implements the session rules that all backends share, for example how answers,
 * replaced requests and late replies are handled.
 */
class Backend
{
public:
    virtual ~Backend() = default;

    /// Starts the backend. Must be called once, before any other function. `observer` must outlive
    /// the backend.
    virtual void start(BackendObserver &observer) = 0;
    /// Stops the backend and waits until its thread has ended. Afterwards, the observer is not
    /// called and all requests are rejected with RequestNoDevice.
    virtual void stop() = 0;

    /// Sends the text to the network. The new request replaces the request in flight, and a new
    /// session replaces the open session. A rejected request has no effect.
    virtual RequestResult request(RequestToken token, RequestKind kind,
                                  const std::string &text) = 0;
    /// Ends the session and the request in flight.
    virtual void endSession() = 0;
    /// Ends a session that another program has opened. Returns false if there is no such session.
    /// Otherwise, infoChanged() reports when the session has ended.
    virtual bool endForeignSession() = 0;

    /// Starts sending the message. Returns false if no message can be sent at this time. Otherwise,
    /// smsFinished() reports the result.
    virtual bool sendSms(const SmsMessage &message) = 0;
    /// Sends the PIN to the SIM. Returns false if the SIM is not waiting for a PIN. Otherwise,
    /// infoChanged() reports the result.
    virtual bool sendPin(const std::string &pin) = 0;
    /// Enables the device. Returns false if the device is not disabled. Otherwise, infoChanged()
    /// reports the result.
    virtual bool enable() = 0;
    /// Changes the network generations that the modem may use. Returns false if there is no modem.
    /// Otherwise, infoChanged() reports the result.
    virtual bool setModes(const TKSV_Modes &modes) = 0;
    virtual DeviceInfo info() const = 0;
};

const unsigned int OLDER_MODES = TKSV_MODE_2G | TKSV_MODE_3G;

/// Returns the reason why a device in this state cannot send commands.
TKSV_Failure refusalOf(TKSV_DeviceState state);

} // namespace Tksv

#endif
