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

/// The values of <m> in +CUSD (3GPP TS 27.007, 7.15).
enum UssdType {
    UssdFinal = 0,
    UssdWaitsForAnswer = 1,
    UssdEndedByNetwork = 2,
    UssdNotSupported = 4,
    UssdNetworkTimeout = 5
};

/// The values that TKSV_USSDSrv_Request stores in `*status`.
enum RequestStatus {
    RequestAccepted = 0,
    RequestNoDevice = 1,
    RequestMalformed = 2,
    RequestDeviceTimeout = TKSV_STATUS_DEVICE_TIMEOUT
};

/**
 * A USSD message from the network. If the network rejected the request, the text is empty and the
 * type is not UssdFinal.
 */
struct UssdReply {
    int type = UssdFinal;
    std::string text; // UTF-8
};

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
};

inline bool operator==(const DeviceInfo &a, const DeviceInfo &b)
{
    const auto fields = [](const DeviceInfo &i) {
        return std::tie(i.backend, i.state, i.problem, i.signalPercent, i.canSendSms, i.pinRetries,
                        i.operatorName, i.imsi, i.simOperatorCode, i.simOperatorName, i.equipmentId,
                        i.source);
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

    /// Sends the string to the network and replaces the request in flight. A new session ends the
    /// open session. Returns a RequestStatus. A request that is not accepted has no effect.
    virtual int request(RequestToken token, RequestKind kind, const std::string &text) = 0;
    /// Ends the session and the request in flight.
    virtual void endSession() = 0;

    /// Returns false if no message can be sent at this time. Otherwise, smsFinished() reports the
    /// outcome.
    virtual bool sendSms(const SmsMessage &message) = 0;
    /// Returns false if the SIM does not wait for a PIN. Otherwise, infoChanged() reports the
    /// outcome.
    virtual bool sendPin(const std::string &pin) = 0;
    virtual DeviceInfo info() const = 0;
};

} // namespace Tksv

#endif
