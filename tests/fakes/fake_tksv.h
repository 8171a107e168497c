/*
 * Controls of the fake device SDK, which tests use in place of the real SDK.
 *
 * The fake SDK implements all functions of tksv.h and tksv_device.h. It calls back from its own
 * threads, one for each service. It behaves as a test has specified, and records all calls. By
 * default it is a correct SDK with a silent network: requests are accepted but never answered.
 *
 * Every function may be called from any thread. fakeSdkReset() and the functions that wait must not
 * be called from a call-back.
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

/// The default time limit of functions that wait.
const std::chrono::milliseconds FAKE_SDK_PATIENCE(10000);

// ---- life cycle ------------------------------------------------------------------------------

/// Ends all threads and discards call-backs, records and settings. Waits for call-backs that are
/// running.
FAKE_API void fakeSdkReset();

/// Returns true as soon as no delivery is pending and no call-back is running, or false after
/// `limit`.
FAKE_API bool fakeSdkWaitIdle(std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

// ---- recorded calls --------------------------------------------------------------------------

/// A call of an SDK function.
struct FakeCall {
    std::string function; ///< the name of the function, such as "TKSV_USSDSrv_Request"
    std::thread::id thread;
    std::vector<unsigned char> bytes; ///< the 372 bytes of the request record
    std::u16string text;              ///< the text of a request or a short message
    std::u16string number;            ///< the number of a short message
    std::string path;                 ///< a scenario path, a modem identifier, or a PIN
    const void *handle = nullptr;     ///< the SMS record
    TKSV_EventCallback callback = nullptr;
    bool returned = false; ///< false while the call is running
    long result = 0;       ///< valid after the call has returned
    int status = 0;        ///< the value written to `*status`
};

/// Returns all calls, or only those of the named function, in call order.
FAKE_API std::vector<FakeCall> fakeSdkCalls();
FAKE_API std::vector<FakeCall> fakeSdkCalls(const std::string &function);

/// Returns the texts of all requests, including rejected ones.
FAKE_API std::vector<std::u16string> fakeSdkCommands();

/// Discards the recorded calls and deliveries, so that a long test does not use much memory. Must
/// not be called while another call is running.
FAKE_API void fakeSdkForgetRecords();

/// Waits until `function` has been called `count` times. Returns false if `limit` passes first.
FAKE_API bool fakeSdkWaitForCalls(const std::string &function, std::size_t count,
                                  std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

/// Waits until `count` requests have been made. Returns false if `limit` passes first.
FAKE_API bool fakeSdkWaitForRequests(std::size_t count,
                                     std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

/// The services of the SDK. Each service has its own call-backs and its own thread.
enum class FakeService { Ussd, Device, Sms };

/// A call-back that has returned.
struct FakeDelivery {
    FakeService service = FakeService::Ussd;
    int event = 0;
    unsigned char result = 0; ///< the return value of the call-back
    std::thread::id thread;
};

/// Returns the calls of all call-backs that have returned, in the order in which they returned.
FAKE_API std::vector<FakeDelivery> fakeSdkDeliveries();
FAKE_API std::vector<FakeDelivery> fakeSdkDeliveries(FakeService service);

/// Waits until call-backs of `service` have returned `count` times. Returns false if `limit` passes
/// first.
FAKE_API bool fakeSdkWaitForDeliveries(FakeService service, std::size_t count,
                                       std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

/// Returns the number of call-backs that are registered with `service`.
FAKE_API std::size_t fakeSdkRegistered(FakeService service);

// ---- results of functions --------------------------------------------------------------------

/// Makes `function` do nothing and return `result`; the value 0 restores its normal behaviour. To
/// reject a request, use FakeAnswer instead, because a request also returns a status.
FAKE_API void fakeSdkSetResult(const std::string &function, long result);

/// Sets whether the unregister functions wait for a call-back that is running. An SDK that does not
/// wait is faulty.
FAKE_API void fakeSdkSetUnregisterWaits(bool waits);

// ---- USSD ------------------------------------------------------------------------------------

/// Describes how the SDK handles a request.
struct FakeAnswer {
    // the call itself
    long result = 0; ///< any non-zero value rejects the request
    int status = 0;  ///< written to `*status`
    /// How long the call blocks unless fakeSdkUnblock() ends it.
    std::chrono::milliseconds block{0};

    // the response
    int times = 0; ///< number of responses
    std::u16string text;
    int type = 0;
    std::chrono::milliseconds delay{0};
    bool nullData = false; ///< the call-back receives a null pointer
    /// The request returns after the call-back has returned, or after half a second.
    bool beforeReturn = false;
    bool afterNextRequest = false; ///< delayed until another request has been accepted
    bool stubborn = false; ///< sent even if a later request or a release has ended the session
    int threads = 1;       ///< number of threads that each send `times` responses at the same time
};

FAKE_API FakeAnswer fakeReply(const std::u16string &text, int type = 0);
FAKE_API FakeAnswer fakeReplyAfter(std::chrono::milliseconds delay, const std::u16string &text);
FAKE_API FakeAnswer fakeNetworkRefusal(); ///< an empty response with a type other than 0
FAKE_API FakeAnswer fakeSilence();
FAKE_API FakeAnswer fakeRefused(long result, int status);

/// Sets how requests are handled after the end of the script.
FAKE_API void fakeSdkSetAnswer(const FakeAnswer &answer);

/// Sets how the next requests are handled, one answer for each request.
FAKE_API void fakeSdkScript(const std::vector<FakeAnswer> &answers);

/// Makes all blocked requests return.
FAKE_API void fakeSdkUnblock();

/// Sends a response from the USSD thread, whether a request is pending or not.
FAKE_API void fakeSdkRespond(const std::u16string &text, int type = 0);
FAKE_API void fakeSdkRespondNull();

// ---- device ----------------------------------------------------------------------------------

FAKE_API void fakeSdkRaiseDeviceEvent(int event);

/// Sets the result of TKSV_Device_GetInfo and calls the info call-back.
FAKE_API void fakeSdkSetDeviceInfo(const TKSV_DeviceInfo &info);

/// Sets the result of TKSV_Device_GetModems and calls the info call-back.
FAKE_API void fakeSdkSetModems(const std::vector<TKSV_Modem> &modems);

/// Sets what TKSV_Device_GetLastFailure returns. The fake SDK itself sets it only in
/// TKSV_Device_CancelRequest.
FAKE_API void fakeSdkSetLastFailure(const TKSV_FailureInfo &failure);

/// Sets what TKSV_Device_GetModes returns. The `path` of a recorded call of TKSV_Device_SetModes is
/// the setting, such as "7,0".
FAKE_API void fakeSdkSetModes(const TKSV_ModesInfo &modes);

/// Sends a message that the network initiates, from the device's thread. The message is lost if no
/// call-back is registered.
FAKE_API void fakeSdkTellNetworkText(const std::string &text, bool waitsForAnswer,
                                     long long receivedAt);

/// Sets the result and the error message of TKSV_Device_UseScenario.
FAKE_API void fakeSdkSetScenarioOutcome(long result, const std::string &message);

// ---- short messages --------------------------------------------------------------------------

/// Sets whether short messages can be sent. A call-back that is registered while they can be sent
/// receives this status soon afterwards. Changing the setting does not raise an event.
FAKE_API void fakeSdkSetCanSendSms(bool can);

FAKE_API void fakeSdkRaiseSmsStatus(int status);
FAKE_API void fakeSdkRaiseSmsResult(int result, const std::u16string &number,
                                    const std::u16string &text);

/// Raises an event with null data. The event may be unknown.
FAKE_API void fakeSdkRaiseSmsEvent(int event);

/// Sets whether a failing call that creates a record still returns the record. A faulty SDK may do
/// this.
FAKE_API void fakeSdkSetFailedCreateLeavesRecord(bool leaves);

/// Returns the number of records that have been created but not freed.
FAKE_API std::size_t fakeSdkLiveSmsRecords();

/// Returns the number of records that were freed or sent although they had never been created or
/// were already freed.
FAKE_API std::size_t fakeSdkBadSmsRecords();

// ---- folders ---------------------------------------------------------------------------------

/// Sets the exact string that TKSV_GetUserDataDirectory returns. The function fails until a test
/// has set the string.
FAKE_API void fakeSdkSetUserDataDirectory(const std::u16string &directory);

#endif
