/*
 * Controls the fake device SDK, which tests use instead of the real SDK.
 *
 * The fake SDK implements all functions of tksv.h and tksv_device.h. It calls back from its own
 * threads, one per service. It records all calls. Tests can configure its behaviour. By default, it
 * behaves like a correct SDK with a silent network, which accepts requests but never replies.
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

/// Stops all threads and discards call-backs, records and settings. Waits for running call-backs.
FAKE_API void fakeSdkReset();

/// Waits until no delivery is pending and no call-back is running. Returns false if `limit` passes
/// first.
FAKE_API bool fakeSdkWaitIdle(std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

// ---- recorded calls --------------------------------------------------------------------------

/// A call to an SDK function.
struct FakeCall {
    std::string function; ///< the name of the function, such as "TKSV_USSDSrv_Request"
    std::thread::id thread;
    std::vector<unsigned char> bytes; ///< the 372 bytes of the request record
    std::u16string text;              ///< the string in a request or a short message
    std::u16string number;            ///< the number of a short message
    std::string path;                 ///< a scenario path, a modem identifier, or a PIN
    const void *handle = nullptr;     ///< the SMS record
    TKSV_EventCallback callback = nullptr;
    bool returned = false; ///< false while the call is running
    long result = 0;       ///< valid after the call has returned
    int status = 0;        ///< the value written to `*status`
};

/// Returns the calls to all functions or to one function, in the order in which they were made.
FAKE_API std::vector<FakeCall> fakeSdkCalls();
FAKE_API std::vector<FakeCall> fakeSdkCalls(const std::string &function);

/// Returns the strings of all requests, including rejected ones.
FAKE_API std::vector<std::u16string> fakeSdkCommands();

/// Discards the recorded calls and deliveries to limit the memory use of long tests. Must not be
/// called while another call is running.
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

/// Returns all finished calls to call-backs, in the order in which they finished.
FAKE_API std::vector<FakeDelivery> fakeSdkDeliveries();
FAKE_API std::vector<FakeDelivery> fakeSdkDeliveries(FakeService service);

/// Waits until the call-backs of `service` have returned `count` times in total. Returns false if
/// `limit` passes first.
FAKE_API bool fakeSdkWaitForDeliveries(FakeService service, std::size_t count,
                                       std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

/// Returns the number of call-backs registered with `service`.
FAKE_API std::size_t fakeSdkRegistered(FakeService service);

// ---- results of functions --------------------------------------------------------------------

/// Makes `function` return `result` without doing anything. The value 0 restores the normal
/// behaviour. To reject a request, use FakeAnswer instead, because a rejected request also sets a
/// status.
FAKE_API void fakeSdkSetResult(const std::string &function, long result);

/// Sets whether the unregister functions wait for running call-backs. Passing false simulates a
/// faulty SDK.
FAKE_API void fakeSdkSetUnregisterWaits(bool waits);

// ---- USSD ------------------------------------------------------------------------------------

/// Describes how the SDK handles a request.
struct FakeAnswer {
    // How the call itself behaves.
    long result = 0; ///< any non-zero value rejects the request
    int status = 0;  ///< written to `*status`
    /// The time for which the call blocks, unless fakeSdkUnblock() ends it earlier.
    std::chrono::milliseconds block{0};

    // How the network responds.
    int times = 0; ///< number of responses
    std::u16string text;
    int type = 0;
    std::chrono::milliseconds delay{0};
    bool nullData = false; ///< a null pointer is passed to the call-back
    /// If true, the request returns only after the call-back has returned or half a second has
    /// passed.
    bool beforeReturn = false;
    bool afterNextRequest = false; ///< delayed until the next request has been accepted
    bool stubborn = false;         ///< sent even if a later request or a release ended the session
    int threads = 1; ///< number of threads; each sends `times` responses at the same time
};

FAKE_API FakeAnswer fakeReply(const std::u16string &text, int type = 0);
FAKE_API FakeAnswer fakeReplyAfter(std::chrono::milliseconds delay, const std::u16string &text);
FAKE_API FakeAnswer fakeNetworkRefusal(); ///< an empty response whose type is not 0
FAKE_API FakeAnswer fakeSilence();
FAKE_API FakeAnswer fakeRefused(long result, int status);

/// Sets the answer to all requests that the script does not cover.
FAKE_API void fakeSdkSetAnswer(const FakeAnswer &answer);

/// Sets the answers to the next requests, one for each request.
FAKE_API void fakeSdkScript(const std::vector<FakeAnswer> &answers);

/// Makes all blocked requests return.
FAKE_API void fakeSdkUnblock();

/// Sends a response from the USSD thread. A request need not be pending.
FAKE_API void fakeSdkRespond(const std::u16string &text, int type = 0);
FAKE_API void fakeSdkRespondNull();

// ---- device ----------------------------------------------------------------------------------

FAKE_API void fakeSdkRaiseDeviceEvent(int event);

/// Sets the result of TKSV_Device_GetInfo and calls the info call-back.
FAKE_API void fakeSdkSetDeviceInfo(const TKSV_DeviceInfo &info);

/// Sets the result of TKSV_Device_GetModems and calls the info call-back.
FAKE_API void fakeSdkSetModems(const std::vector<TKSV_Modem> &modems);

/// Sets the result of TKSV_Device_GetLastFailure. Apart from this function, only
/// TKSV_Device_CancelRequest changes this result.
FAKE_API void fakeSdkSetLastFailure(const TKSV_FailureInfo &failure);

/// Sets the result of TKSV_Device_GetModes. In a recorded call to TKSV_Device_SetModes, `path`
/// contains the requested setting, such as "7,0".
FAKE_API void fakeSdkSetModes(const TKSV_ModesInfo &modes);

/// Sends a network-initiated message from the device's thread. The message is lost if no call-back
/// is registered.
FAKE_API void fakeSdkTellNetworkText(const std::string &text, bool waitsForAnswer,
                                     long long receivedAt);

/// Sets the result and the error message of TKSV_Device_UseScenario.
FAKE_API void fakeSdkSetScenarioOutcome(long result, const std::string &message);

// ---- short messages --------------------------------------------------------------------------

/// Sets whether short messages can be sent, without raising an event. If they can be sent, each
/// newly registered call-back receives this status.
FAKE_API void fakeSdkSetCanSendSms(bool can);

FAKE_API void fakeSdkRaiseSmsStatus(int status);
FAKE_API void fakeSdkRaiseSmsResult(int result, const std::u16string &number,
                                    const std::u16string &text);

/// Raises an event with null data. The event may be unknown.
FAKE_API void fakeSdkRaiseSmsEvent(int event);

/// Simulates a faulty SDK in which a call that creates a record returns the record even if the call
/// fails.
FAKE_API void fakeSdkSetFailedCreateLeavesRecord(bool leaves);

/// Returns the number of records that have been created but not freed.
FAKE_API std::size_t fakeSdkLiveSmsRecords();

/// Returns the number of attempts to free or send a record that never existed or had already been
/// freed.
FAKE_API std::size_t fakeSdkBadSmsRecords();

// ---- folders ---------------------------------------------------------------------------------

/// Sets the path that TKSV_GetUserDataDirectory returns, without modifying it. If no path has been
/// set, TKSV_GetUserDataDirectory fails.
FAKE_API void fakeSdkSetUserDataDirectory(const std::u16string &directory);

#endif
