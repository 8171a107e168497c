// Implements the controls of fake_tksv.h.
#include "FakeSdk.h"

#include <algorithm>

namespace
{
using Calls = std::vector<FakeCall>;
using Deliveries = std::vector<FakeDelivery>;

FakeSdk &sdk()
{
    return FakeSdk::instance();
}

Calls select(const Calls &calls, const std::string &function)
{
    Calls chosen;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(chosen),
                 [&](const FakeCall &call) { return call.function == function; });
    return chosen;
}

Deliveries select(const Deliveries &deliveries, FakeService service)
{
    Deliveries chosen;
    std::copy_if(deliveries.begin(), deliveries.end(), std::back_inserter(chosen),
                 [&](const FakeDelivery &delivery) { return delivery.service == service; });
    return chosen;
}

FakeAnswer oneResponse(const std::u16string &text, int type)
{
    FakeAnswer answer;
    answer.times = 1;
    answer.text = text;
    answer.type = type;
    return answer;
}
} // namespace

void fakeSdkReset()
{
    sdk().reset();
}

bool fakeSdkWaitIdle(std::chrono::milliseconds limit)
{
    return sdk().waitIdle(limit);
}

// ---- recorded calls ----------------------------------------------------------------------------

Calls fakeSdkCalls()
{
    return sdk().calls();
}

Calls fakeSdkCalls(const std::string &function)
{
    return select(sdk().calls(), function);
}

void fakeSdkForgetRecords()
{
    sdk().forgetRecords();
}

std::vector<std::u16string> fakeSdkCommands()
{
    std::vector<std::u16string> commands;
    for (const FakeCall &call : fakeSdkCalls("TKSV_USSDSrv_Request"))
        commands.push_back(call.text);
    return commands;
}

bool fakeSdkWaitForCalls(const std::string &function, std::size_t count,
                         std::chrono::milliseconds limit)
{
    return sdk().waitUntil(limit, [&](const Calls &calls, const Deliveries &) {
        return select(calls, function).size() >= count;
    });
}

bool fakeSdkWaitForRequests(std::size_t count, std::chrono::milliseconds limit)
{
    return fakeSdkWaitForCalls("TKSV_USSDSrv_Request", count, limit);
}

Deliveries fakeSdkDeliveries()
{
    return sdk().deliveries();
}

Deliveries fakeSdkDeliveries(FakeService service)
{
    return select(sdk().deliveries(), service);
}

bool fakeSdkWaitForDeliveries(FakeService service, std::size_t count,
                              std::chrono::milliseconds limit)
{
    return sdk().waitUntil(limit, [&](const Calls &, const Deliveries &deliveries) {
        return select(deliveries, service).size() >= count;
    });
}

std::size_t fakeSdkRegistered(FakeService service)
{
    return sdk().dispatcher(service).size();
}

// ---- results of functions ----------------------------------------------------------------------

void fakeSdkSetResult(const std::string &function, long result)
{
    sdk().setResult(function, result);
}

void fakeSdkSetUnregisterWaits(bool waits)
{
    sdk().setUnregisterWaits(waits);
}

// ---- USSD --------------------------------------------------------------------------------------

FakeAnswer fakeReply(const std::u16string &text, int type)
{
    return oneResponse(text, type);
}

FakeAnswer fakeReplyAfter(std::chrono::milliseconds delay, const std::u16string &text)
{
    FakeAnswer answer = oneResponse(text, 0);
    answer.delay = delay;
    return answer;
}

FakeAnswer fakeNetworkRefusal()
{
    const int operationNotSupported = 4; // value of <m> in +CUSD, 3GPP TS 27.007
    return oneResponse(std::u16string(), operationNotSupported);
}

FakeAnswer fakeSilence()
{
    return FakeAnswer();
}

FakeAnswer fakeRefused(long result, int status)
{
    FakeAnswer answer;
    answer.result = result;
    answer.status = status;
    return answer;
}

void fakeSdkSetAnswer(const FakeAnswer &answer)
{
    sdk().setAnswer(answer);
}

void fakeSdkScript(const std::vector<FakeAnswer> &answers)
{
    sdk().setScript(answers);
}

void fakeSdkUnblock()
{
    sdk().unblock();
}

void fakeSdkRespond(const std::u16string &text, int type)
{
    const FakeAnswer answer = oneResponse(text, type);
    sdk().dispatcher(FakeService::Ussd).post([answer] { sdk().respond(answer); });
}

void fakeSdkRespondNull()
{
    FakeAnswer answer = oneResponse(std::u16string(), 0);
    answer.nullData = true;
    sdk().dispatcher(FakeService::Ussd).post([answer] { sdk().respond(answer); });
}

// ---- device ------------------------------------------------------------------------------------

void fakeSdkRaiseDeviceEvent(int event)
{
    FakeDispatcher &device = sdk().dispatcher(FakeService::Device);
    sdk().setSessionState(TKSV_SESSION_IDLE);
    device.post([&device, event] { device.deliver(event, nullptr); });
}

void fakeSdkSetModems(const std::vector<TKSV_Modem> &modems)
{
    sdk().setModems(modems);
}

void fakeSdkSetModes(const TKSV_ModesInfo &modes)
{
    sdk().setModes(modes);
}

void fakeSdkSetLastFailure(const TKSV_FailureInfo &failure)
{
    sdk().setLastFailure(failure);
}

void fakeSdkTellNetworkText(const std::string &text, bool waitsForAnswer, long long receivedAt)
{
    sdk().tellNetworkText(text, waitsForAnswer, receivedAt);
}

void fakeSdkSetDeviceInfo(const TKSV_DeviceInfo &info)
{
    sdk().setDeviceInfo(info);
}

void fakeSdkSetScenarioOutcome(long result, const std::string &message)
{
    sdk().setScenarioOutcome(result, message);
}

// ---- short messages ----------------------------------------------------------------------------

void fakeSdkSetCanSendSms(bool can)
{
    sdk().setCanSendSms(can);
}

void fakeSdkRaiseSmsStatus(int status)
{
    FakeDispatcher &sms = sdk().dispatcher(FakeService::Sms);
    sms.post([&sms, status] {
        TKSV_SMSStatus record = {status};
        sms.deliver(TKSV_SMS_EVENT_STATUS_CHANGED, &record);
    });
}

void fakeSdkRaiseSmsResult(int result, const std::u16string &number, const std::u16string &text)
{
    FakeDispatcher &sms = sdk().dispatcher(FakeService::Sms);
    sms.post([&sms, result, number, text] {
        FakeText numberUnits(number);
        FakeText textUnits(text);
        TKSV_SMSSendResult record{};
        record.result = result;
        record.number = numberUnits.units();
        record.text = textUnits.units();
        sms.deliver(TKSV_SMS_EVENT_SEND_RESULT, &record);
    });
}

void fakeSdkRaiseSmsEvent(int event)
{
    FakeDispatcher &sms = sdk().dispatcher(FakeService::Sms);
    sms.post([&sms, event] { sms.deliver(event, nullptr); });
}

void fakeSdkSetFailedCreateLeavesRecord(bool leaves)
{
    sdk().setFailedCreateLeavesRecord(leaves);
}

std::size_t fakeSdkLiveSmsRecords()
{
    return sdk().liveRecords();
}

std::size_t fakeSdkBadSmsRecords()
{
    return sdk().badRecords();
}

// ---- folders -----------------------------------------------------------------------------------

void fakeSdkSetUserDataDirectory(const std::u16string &directory)
{
    sdk().setUserDataDirectory(directory);
}
