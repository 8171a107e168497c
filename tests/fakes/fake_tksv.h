/*
 * Controls of the device SDK that the tests put in the real one's place.
 *
 * It speaks the whole of tksv.h and tksv_device.h, calls back on threads of its own (one for each
 * service), does what a test tells it, and records what it was asked. Without being told anything
 * it is a good SDK with a silent network: requests are accepted and never answered.
 *
 * Every function may be called from any thread, except that fakeSdkReset() and the waiting ones
 * must not be called from inside a call-back.
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

/// How long the waiting functions wait when no limit is given.
const std::chrono::milliseconds FAKE_SDK_PATIENCE(10000);

// ---- life cycle ------------------------------------------------------------------------------

/// Ends all threads, forgets call-backs, records and settings. Waits for call-backs that run.
FAKE_API void fakeSdkReset();

/// True as soon as nothing waits to be delivered and no call-back runs; false after `limit`.
FAKE_API bool fakeSdkWaitIdle(std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

// ---- what was asked --------------------------------------------------------------------------

/// One call of a function of the SDK.
struct FakeCall {
    std::string function; ///< its name, such as "TKSV_USSDSrv_Request"
    std::thread::id thread;
    std::vector<unsigned char> bytes; ///< the 372 bytes of a request record
    std::u16string text;              ///< of a request or a short message
    std::u16string number;            ///< of a short message
    std::string path;                 ///< of a scenario; a modem's identifier; a PIN
    const void *handle = nullptr;     ///< the SMS record
    TKSV_EventCallback callback = nullptr;
    bool returned = false; ///< false while the call is under way
    long result = 0;       ///< meaningful once it has returned
    int status = 0;        ///< what was written to `*status`
};

/// All calls in the order in which they came; with a name, those of that function only.
FAKE_API std::vector<FakeCall> fakeSdkCalls();
FAKE_API std::vector<FakeCall> fakeSdkCalls(const std::string &function);

/// The texts of all requests, refused ones included.
FAKE_API std::vector<std::u16string> fakeSdkCommands();

/// Forgets the calls and deliveries so far, so that a long test stays small. Call it while nothing
/// is under way.
FAKE_API void fakeSdkForgetRecords();

/// True as soon as `function` has been called `count` times.
FAKE_API bool fakeSdkWaitForCalls(const std::string &function, std::size_t count,
                                  std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

/// True as soon as `count` requests have been made.
FAKE_API bool fakeSdkWaitForRequests(std::size_t count,
                                     std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

/// The services; each has call-backs and a thread of its own.
enum class FakeService { Ussd, Device, Sms };

/// One run of a call-back.
struct FakeDelivery {
    FakeService service = FakeService::Ussd;
    int event = 0;
    unsigned char result = 0; ///< what the call-back returned
    std::thread::id thread;
};

/// All call-backs that have returned, in the order in which they did.
FAKE_API std::vector<FakeDelivery> fakeSdkDeliveries();
FAKE_API std::vector<FakeDelivery> fakeSdkDeliveries(FakeService service);

/// True as soon as call-backs of `service` have returned `count` times.
FAKE_API bool fakeSdkWaitForDeliveries(FakeService service, std::size_t count,
                                       std::chrono::milliseconds limit = FAKE_SDK_PATIENCE);

/// How many call-backs are registered with `service`.
FAKE_API std::size_t fakeSdkRegistered(FakeService service);

// ---- what a function returns -----------------------------------------------------------------

/// From now on `function` does nothing and returns `result`; 0 makes it work again. Requests are
/// refused by a FakeAnswer instead, since they also have a status.
FAKE_API void fakeSdkSetResult(const std::string &function, long result);

/// False: the unregister functions return at once, also while the call-back runs (a bad SDK).
FAKE_API void fakeSdkSetUnregisterWaits(bool waits);

// ---- USSD ------------------------------------------------------------------------------------

/// What becomes of one request.
struct FakeAnswer {
    // the call itself
    long result = 0;                    ///< other than 0: refused, and nothing else happens
    int status = 0;                     ///< written to `*status`
    std::chrono::milliseconds block{0}; ///< the call lasts that long, or until fakeSdkUnblock()

    // the response
    int times = 0; ///< how often it comes; 0 is never
    std::u16string text;
    int type = 0;
    std::chrono::milliseconds delay{0};
    bool nullData = false;         ///< the call-back gets a null pointer
    bool beforeReturn = false;     ///< the call returns after the call-back, or half a second later
    bool afterNextRequest = false; ///< held back until another request has been accepted
    bool stubborn = false; ///< comes although a later request or a release has ended this one
    int threads = 1;       ///< more: each sends `times` responses, all at the same moment
};

FAKE_API FakeAnswer fakeReply(const std::u16string &text, int type = 0);
FAKE_API FakeAnswer fakeReplyAfter(std::chrono::milliseconds delay, const std::u16string &text);
FAKE_API FakeAnswer fakeNetworkRefusal(); ///< an empty text with a type other than 0
FAKE_API FakeAnswer fakeSilence();
FAKE_API FakeAnswer fakeRefused(long result, int status);

/// What becomes of every request that the script does not reach.
FAKE_API void fakeSdkSetAnswer(const FakeAnswer &answer);

/// What becomes of the coming requests, one after another.
FAKE_API void fakeSdkScript(const std::vector<FakeAnswer> &answers);

/// Ends the `block` of the requests under way.
FAKE_API void fakeSdkUnblock();

/// A response at any time, asked for or not, on the USSD thread.
FAKE_API void fakeSdkRespond(const std::u16string &text, int type = 0);
FAKE_API void fakeSdkRespondNull();

// ---- device ----------------------------------------------------------------------------------

FAKE_API void fakeSdkRaiseDeviceEvent(int event);

/// What TKSV_Device_GetInfo tells from now on; the info call-back hears of it.
FAKE_API void fakeSdkSetDeviceInfo(const TKSV_DeviceInfo &info);

/// What TKSV_Device_GetModems tells from now on; the info call-back hears of it.
FAKE_API void fakeSdkSetModems(const std::vector<TKSV_Modem> &modems);

/// A text of the network's own, on the device's thread; dropped without a call-back.
FAKE_API void fakeSdkTellNetworkText(const std::string &text, bool waitsForAnswer,
                                     long long receivedAt);

/// What TKSV_Device_UseScenario returns and says.
FAKE_API void fakeSdkSetScenarioOutcome(long result, const std::string &message);

// ---- short messages --------------------------------------------------------------------------

/// Readiness, which a call-back that is registered while it is true hears soon after. Changing it
/// raises no event.
FAKE_API void fakeSdkSetCanSendSms(bool can);

FAKE_API void fakeSdkRaiseSmsStatus(int status);
FAKE_API void fakeSdkRaiseSmsResult(int result, const std::u16string &number,
                                    const std::u16string &text);

/// An event with null data, known or not.
FAKE_API void fakeSdkRaiseSmsEvent(int event);

/// True: a record is made and handed out although its function fails (a bad SDK).
FAKE_API void fakeSdkSetFailedCreateLeavesRecord(bool leaves);

/// Records that were made and not yet given back.
FAKE_API std::size_t fakeSdkLiveSmsRecords();

/// Records given back or sent that were never made, or had been given back before.
FAKE_API std::size_t fakeSdkBadSmsRecords();

// ---- folders ---------------------------------------------------------------------------------

/// What TKSV_GetUserDataDirectory hands out from now on, as it is. Until a test has set it, the
/// function fails and hands out nothing.
FAKE_API void fakeSdkSetUserDataDirectory(const std::u16string &directory);

#endif
