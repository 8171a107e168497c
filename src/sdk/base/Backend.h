#ifndef TKSV_INTERNAL_BACKEND_H
#define TKSV_INTERNAL_BACKEND_H

#include <cstdint>
#include <string>
#include <tuple>

#include "tksv_device.h"

namespace Tksv
{

/// Identifies an accepted request; 0 stands for no request.
using RequestToken = std::uint64_t;

enum class RequestKind { NewSession, Answer };

/// The <m> of +CUSD (3GPP TS 27.007, 7.15).
enum UssdType {
    UssdFinal = 0,
    UssdWaitsForAnswer = 1,
    UssdEndedByNetwork = 2,
    UssdNotSupported = 4,
    UssdNetworkTimeout = 5
};

/// Values of `*status` of TKSV_USSDSrv_Request.
enum RequestStatus {
    RequestAccepted = 0,
    RequestNoDevice = 1,
    RequestMalformed = 2,
    RequestDeviceTimeout = TKSV_STATUS_DEVICE_TIMEOUT
};

/** A text from the network. A refusal has an empty text and a type other than UssdFinal. */
struct UssdReply {
    int type = UssdFinal;
    std::string text; // UTF-8
};

/** A short message, in UTF-16: the client gets both texts back without any conversion. */
struct SmsMessage {
    std::u16string number;
    std::u16string text;
};

/// The results of sending a short message that every backend uses.
const int SMS_SENT = 0;
const int SMS_FAILED = 1;

/** What is known of the device, see TKSV_DeviceInfo. Texts are UTF-8 and empty when unknown. */
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
 * Receives the events of a backend. The backend calls the observer on its own thread only, never
 * from inside a call of Backend and never while it holds a lock. Each function returns at once.
 */
class BackendObserver
{
public:
    virtual ~BackendObserver() = default;

    /// The network's reply to a request. The observer ignores a reply to a request that has ended.
    virtual void ussdReply(RequestToken token, const UssdReply &reply) = 0;
    /// Text that the network sent of its own accord, while no session was open.
    virtual void ussdText(const UssdReply &text) = 0;
    /// The device was lost, and with it the session and the request in flight. `event` is
    /// TKSV_DEV_EVENT_GONE or TKSV_DEV_EVENT_RESET.
    virtual void deviceLost(int event) = 0;
    virtual void smsStatusChanged(bool canSend) = 0;
    /// The outcome of a message that sendSms() accepted.
    virtual void smsFinished(const SmsMessage &message, int result) = 0;
    /// A field of DeviceInfo has changed.
    virtual void infoChanged() = 0;
};

/**
 * A device with its network. Any thread may call; every call returns at once. UssdSession keeps the
 * rules of a session (answer or new code, replaced requests, late replies) for every backend.
 */
class Backend
{
public:
    virtual ~Backend() = default;

    /// Called once, before any other function. `observer` outlives the backend.
    virtual void start(BackendObserver &observer) = 0;
    /// Waits for the backend's thread. Afterwards the observer is not called any more, and requests
    /// are refused with RequestNoDevice.
    virtual void stop() = 0;

    /// Sends the text to the network and replaces the request in flight; a new session ends the
    /// open session. Returns a RequestStatus; a request that is not accepted changes nothing.
    virtual int request(RequestToken token, RequestKind kind, const std::string &text) = 0;
    /// Ends the session and the request in flight.
    virtual void endSession() = 0;

    /// Returns false when no message can be sent at this time; otherwise smsFinished() follows.
    virtual bool sendSms(const SmsMessage &message) = 0;
    /// Returns false when the SIM is not waiting for a PIN; otherwise infoChanged() reports the
    /// outcome.
    virtual bool sendPin(const std::string &pin) = 0;
    virtual DeviceInfo info() const = 0;
};

} // namespace Tksv

#endif
