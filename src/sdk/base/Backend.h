#ifndef TKSV_INTERNAL_BACKEND_H
#define TKSV_INTERNAL_BACKEND_H

#include <cstdint>
#include <string>
#include <tuple>

#include "tksv_device.h"

namespace Tksv
{

/// Identifies an accepted request. 0 means that there is no request.
using RequestToken = std::uint64_t;

enum class RequestKind { NewSession, Answer };

/// The types of a reply with a text: the values of <m> in +CUSD (3GPP TS 27.007, 7.15).
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
    TKSV_Failure refusal = TKSV_FAILURE_NONE; // the reason why the request is not accepted
};

/** The reason why a request has no reply, see TKSV_FailureInfo. */
struct Failure {
    TKSV_Failure reason = TKSV_FAILURE_NONE;
    bool wasNotSent = false;
    std::string text = {}; // UTF-8
};

/** A reply to a request, or a text that the network sent of its own accord. */
struct UssdReply {
    int type = UssdFinal; // a UssdType; the reason if the request failed
    std::string text;     // UTF-8; empty if the request failed
    Failure failure = {}; // the reason is TKSV_FAILURE_NONE unless the request failed
};

/// Returns the empty reply of a request that failed.
inline UssdReply failedReply(const Failure &failure)
{
    return UssdReply{failure.reason, std::string(), failure};
}

/**
 * A short message in UTF-16. The strings are returned to the client exactly as the client passed
 * them.
 */
struct SmsMessage {
    std::u16string number;
    std::u16string text;
};

/// The result codes of sending a short message, used by every backend.
const int SMS_SENT = 0;
const int SMS_FAILED = 1;

/**
 * The state and the properties of the device; see TKSV_DeviceInfo. Strings are UTF-8. An unknown
 * string is empty.
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
};

inline bool operator==(const DeviceInfo &a, const DeviceInfo &b)
{
    const auto fields = [](const DeviceInfo &i) {
        return std::tie(i.backend, i.state, i.problem, i.signalPercent, i.canSendSms, i.pinRetries,
                        i.operatorName, i.imsi, i.simOperatorCode, i.simOperatorName, i.equipmentId,
                        i.source, i.isLooking, i.hasForeignSession, i.waitsForTurn);
    };
    return fields(a) == fields(b);
}

/**
 * Receives the events of a backend. The backend calls the observer only from its own thread. It
 * never calls the observer from inside a Backend function or while it holds a lock. Each function
 * of the observer must return immediately.
 */
class BackendObserver
{
public:
    virtual ~BackendObserver() = default;

    /// Reports the network's reply to a request. The observer ignores the reply if the request has
    /// already ended.
    virtual void ussdReply(RequestToken token, const UssdReply &reply) = 0;
    /// Reports a network-initiated message that arrived while no session was open.
    virtual void ussdText(const UssdReply &text) = 0;
    /// Reports that the device was lost, which ends the session and the request in flight. `event`
    /// is TKSV_DEV_EVENT_GONE or TKSV_DEV_EVENT_RESET.
    virtual void deviceLost(int event) = 0;
    virtual void smsStatusChanged(bool canSend) = 0;
    /// Reports the outcome of a message that sendSms() accepted.
    virtual void smsFinished(const SmsMessage &message, int result) = 0;
    /// Reports that a field of DeviceInfo has changed.
    virtual void infoChanged() = 0;
};

/**
 * A device and its network. Every function may be called from any thread and returns immediately.
 * The rules of a session (answers and new codes, replaced requests, late replies) are the same for
 * every backend. UssdSession implements them.
 */
class Backend
{
public:
    virtual ~Backend() = default;

    /// Must be called once, before any other function. `observer` must outlive the backend.
    virtual void start(BackendObserver &observer) = 0;
    /// Waits until the backend's thread has ended. Afterwards, the observer is not called any more,
    /// and requests are rejected with RequestNoDevice.
    virtual void stop() = 0;

    /// Sends the text to the network and replaces the request in flight. A new session ends the
    /// open session. A request that is not accepted changes nothing.
    virtual RequestResult request(RequestToken token, RequestKind kind,
                                  const std::string &text) = 0;
    /// Ends the session and the request in flight.
    virtual void endSession() = 0;
    /// Ends the session that another program opened. Returns false if there is none; otherwise
    /// infoChanged() reports the outcome.
    virtual bool endForeignSession() = 0;

    /// Returns false if no message can be sent at this time. Otherwise, smsFinished() reports the
    /// outcome.
    virtual bool sendSms(const SmsMessage &message) = 0;
    /// Returns false if the SIM does not wait for a PIN. Otherwise, infoChanged() reports the
    /// outcome.
    virtual bool sendPin(const std::string &pin) = 0;
    /// Enables the device. Returns false if it is not disabled; otherwise infoChanged() reports the
    /// outcome.
    virtual bool enable() = 0;
    virtual DeviceInfo info() const = 0;
};

/// Returns the reason why a device in this state sends no commands.
TKSV_Failure refusalOf(TKSV_DeviceState state);

} // namespace Tksv

#endif
