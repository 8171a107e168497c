/*
 * Controls of the fake device SDK that tests use in place of the real one.
 *
 * The fake SDK implements all functions of tksv.h and tksv_device.h, and calls back on threads of
 * its own, one for each service. It behaves as a test has set, and records all calls. By default it
 * is a correct SDK with a silent network: requests are accepted and never answered.
 *
 * Every function may be called on any thread. fakeSdkReset() and the functions that wait must not
 * be called inside a call-back.
 */
#ifndef FAKE_TKSV_H
#define FAKE_TKSV_H

#include "tksv.h"
#include "tksv_device.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <thread>
#include <vector>

#define FAKE_API __attribute__((visibility("default")))

/// The default time limit of the functions that wait.
const std::chrono::milliseconds FAKE_SDK_PATIENCE(10000);

// ---- life cycle ------------------------------------------------------------------------------

/// Ends all threads and discards call-backs, records and settings. Waits for running call-backs.
FAKE_API void fakeSdkReset();

/// Returns true as soon as no delivery is pending and no call-back runs. Returns false after
/// `limit`.
FAKE_API bool fakeSdkWaitIdle(std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

// ---- recorded calls --------------------------------------------------------------------------

/// A call of a function of the SDK.
struct FakeCall {
    std::string function; ///< its name, such as "TKSV_USSDSrv_Request"
    std::thread::id thread;
    std::vector<unsigned char> bytes; ///< the 372 bytes of a request record
    std::u16string text;              ///< of a request or a short message
    std::u16string number;            ///< of a short message
    std::string path;                 ///< path of a scenario, identifier of a modem, or PIN
    const void *handle = nullptr;     ///< the SMS record
    TKSV_EventCallback callback = nullptr;
    bool returned = false; ///< false while the call is running
    long result = 0;       ///< valid after the call has returned
    int status = 0;        ///< what was written to `*status`
};

/// Returns all calls, or only those of the named function, in the order in which they were made.
FAKE_API std::vector<FakeCall> fakeSdkCalls();
FAKE_API std::vector<FakeCall> fakeSdkCalls(const std::string &function);

/// Returns the texts of all requests, including rejected ones.
FAKE_API std::vector<std::u16string> fakeSdkCommands();

/// Discards the recorded calls and deliveries, so that a long test needs little memory. Must be
/// called while no call is running.
FAKE_API void fakeSdkForgetRecords();

/// Waits until `function` has been called `count` times. Returns false after `limit`.
FAKE_API bool fakeSdkWaitForCalls(const std::string &function, std::size_t count,
                                  std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

/// Waits until `count` requests have been made. Returns false after `limit`.
FAKE_API bool fakeSdkWaitForRequests(std::size_t count,
                                     std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

/// The services of the SDK. Each has call-backs and a thread of its own.
enum class FakeService { Ussd, Device, Sms };

/// A completed run of a call-back.
struct FakeDelivery {
    FakeService service = FakeService::Ussd;
    int event = 0;
    unsigned char result = 0; ///< what the call-back returned
    std::thread::id thread;
};

/// Returns all call-backs that have returned, in the order of their returns.
FAKE_API std::vector<FakeDelivery> fakeSdkDeliveries();
FAKE_API std::vector<FakeDelivery> fakeSdkDeliveries(FakeService service);

/// Waits until call-backs of `service` have returned `count` times. Returns false after `limit`.
FAKE_API bool fakeSdkWaitForDeliveries(FakeService service, std::size_t count,
                                       std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

/// Returns the number of call-backs registered with `service`.
FAKE_API std::size_t fakeSdkRegistered(FakeService service);

// ---- results of functions --------------------------------------------------------------------

/// Makes `function` do nothing and return `result`; 0 makes it work again. Requests are rejected by
/// a FakeAnswer instead, because they also have a status.
FAKE_API void fakeSdkSetResult(const std::string &function, long result);

/// Sets whether the unregister functions wait for a running call-back. Without waiting, the SDK is
/// faulty.
FAKE_API void fakeSdkSetUnregisterWaits(bool waits);

// ---- USSD ------------------------------------------------------------------------------------

/// Describes how the SDK handles a request.
struct FakeAnswer {
    // the call itself
    long result = 0;                    ///< any value except 0 rejects the request
    int status = 0;                     ///< written to `*status`
    std::chrono::milliseconds block{0}; ///< duration of the call, unless fakeSdkUnblock() ends it

    // the response
    int times = 0; ///< number of responses
    std::u16string text;
    int type = 0;
    std::chrono::milliseconds delay{0};
    bool nullData = false;         ///< the call-back gets a null pointer
    bool beforeReturn = false;     ///< the call returns after the call-back, or half a second later
    bool afterNextRequest = false; ///< delayed until another request has been accepted
    bool stubborn = false; ///< sent even if a later request or a release has ended the session
    int threads = 1; ///< number of threads that send `times` responses each at the same moment
};

FAKE_API FakeAnswer fakeReply(const std::u16string &text, int type = 0);
FAKE_API FakeAnswer fakeReplyAfter(std::chrono::milliseconds delay, const std::u16string &text);
FAKE_API FakeAnswer fakeNetworkRefusal(); ///< an empty text with a type other than 0
FAKE_API FakeAnswer fakeSilence();
FAKE_API FakeAnswer fakeRefused(long result, int status);

/// Sets how requests are handled that follow the end of the script.
FAKE_API void fakeSdkSetAnswer(const FakeAnswer &answer);

/// Sets how the next requests are handled, one after another.
FAKE_API void fakeSdkScript(const std::vector<FakeAnswer> &answers);

/// Ends the `block` of the pending requests.
FAKE_API void fakeSdkUnblock();

/// Sends a response on the USSD thread, whether or not a request is pending.
FAKE_API void fakeSdkRespond(const std::u16string &text, int type = 0);
FAKE_API void fakeSdkRespondNull();

// ---- device ----------------------------------------------------------------------------------

FAKE_API void fakeSdkRaiseDeviceEvent(int event);

/// Sets what TKSV_Device_GetInfo returns, and calls the info call-back.
FAKE_API void fakeSdkSetDeviceInfo(const TKSV_DeviceInfo &info);

/// Sets what TKSV_Device_GetModems returns, and calls the info call-back.
FAKE_API void fakeSdkSetModems(const std::vector<TKSV_Modem> &modems);

/// Sets what TKSV_Device_GetLastFailure returns. The fake SDK itself sets it only in
/// TKSV_Device_CancelRequest.
FAKE_API void fakeSdkSetLastFailure(const TKSV_FailureInfo &failure);

/// Sends a message on the network's initiative, on the device's thread. The message is lost when no
/// call-back is registered.
FAKE_API void fakeSdkTellNetworkText(const std::string &text, bool waitsForAnswer,
                                     long long receivedAt);

/// Sets the result and the message of TKSV_Device_UseScenario.
FAKE_API void fakeSdkSetScenarioOutcome(long result, const std::string &message);

// ---- short messages --------------------------------------------------------------------------

/// Sets whether short messages can be sent. A call-back that is registered while they can be sent
/// is told so soon after. A change raises no event.
FAKE_API void fakeSdkSetCanSendSms(bool can);

FAKE_API void fakeSdkRaiseSmsStatus(int status);
FAKE_API void fakeSdkRaiseSmsResult(int result, const std::u16string &number,
                                    const std::u16string &text);

/// Raises a known or unknown event with null data.
FAKE_API void fakeSdkRaiseSmsEvent(int event);

/// Sets whether the function that creates a record returns the record even if it fails, as a faulty
/// SDK may do.
FAKE_API void fakeSdkSetFailedCreateLeavesRecord(bool leaves);

/// Returns the number of records that were created and not yet freed.
FAKE_API std::size_t fakeSdkLiveSmsRecords();

/// Returns the number of records that were freed or sent but never created, or already freed.
FAKE_API std::size_t fakeSdkBadSmsRecords();

// ---- folders ---------------------------------------------------------------------------------

/// Sets what TKSV_GetUserDataDirectory returns, unchanged. Until a test has set it, the function
/// fails.
FAKE_API void fakeSdkSetUserDataDirectory(const std::u16string &directory);

#endif
