#ifndef TKSV_INTERNAL_BACKEND_H
#define TKSV_INTERNAL_BACKEND_H

#include <cstdint>
#include <string>
#include <tuple>

#include "tksv_device.h"

namespace tksv
{

/// Tells one accepted request from every other; 0 is none.
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

/// What `*status` of TKSV_USSDSrv_Request says.
enum RequestStatus {
    RequestAccepted = 0,
    RequestNoDevice = 1,
    RequestMalformed = 2,
    RequestDeviceTimeout = TKSV_STATUS_DEVICE_TIMEOUT
};

/** What the network said. A refusal has an empty text and a type other than UssdFinal. */
struct UssdReply {
    int type = UssdFinal;
    std::string text; // UTF-8
};

/** A short message; kept in UTF-16, since its two texts go back to the client unit by unit. */
struct SmsMessage {
    std::u16string number;
    std::u16string text;
};

const int SMS_SENT = 0;
const int SMS_FAILED = 1;

/** What is known of the device; texts in UTF-8, empty when unknown. */
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
 * Told by a backend of what happens. Called on the backend's own thread only, never from inside a
 * call of Backend and with none of the backend's locks held; each call returns at once.
 */
class BackendObserver
{
public:
    virtual ~BackendObserver() = default;

    /// The network's reply to that request. A reply to a request that was ended is ignored.
    virtual void ussdReply(RequestToken token, const UssdReply &reply) = 0;
    /// Text that the network sent of its own accord, while no session was open.
    virtual void ussdText(const UssdReply &text) = 0;
    /// TKSV_DEV_EVENT_GONE or _RESET; the request in flight and the session have ended with it.
    virtual void deviceLost(int event) = 0;
    virtual void smsStatusChanged(bool canSend) = 0;
    virtual void smsFinished(const SmsMessage &message, int result) = 0;
    /// Something of DeviceInfo has changed.
    virtual void infoChanged() = 0;
};

/**
 * A device with its network. Any thread may call; every call returns at once. The rules of a
 * session (answer or new code, replaced requests, late replies) are kept by UssdSession, so that
 * they are the same for every backend.
 */
class Backend
{
public:
    virtual ~Backend() = default;

    /// Called once, before anything else. `observer` outlives the backend.
    virtual void start(BackendObserver &observer) = 0;
    /// Waits for the backend's thread. From then on the observer is not called any more, and
    /// requests are refused with RequestNoDevice.
    virtual void stop() = 0;

    /// Hands the text to the network in place of what is on its way; a new session ends the one
    /// that is open. A RequestStatus other than RequestAccepted means that nothing has changed.
    virtual int request(RequestToken token, RequestKind kind, const std::string &text) = 0;
    /// Ends the request in flight and the session.
    virtual void endSession() = 0;

    /// False when no message can be sent now; otherwise smsFinished() follows.
    virtual bool sendSms(const SmsMessage &message) = 0;
    /// False when the SIM waits for no PIN; otherwise infoChanged() tells how it went.
    virtual bool sendPin(const std::string &pin) = 0;
    virtual DeviceInfo info() const = 0;
};

} // namespace tksv

#endif
