// Implements the functions of tksv.h and tksv_device.h. Each function records its call and behaves
// as configured by the test.
#include "FakeSdk.h"

#include <algorithm>

namespace
{
FakeSdk &sdk()
{
    return FakeSdk::instance();
}

FakeCall callOf(const char *function)
{
    FakeCall call;
    call.function = function;
    return call;
}
} // namespace

// ---- USSD --------------------------------------------------------------------------------------

long TKSV_USSDSrv_Request(TKSV_USSDRequest *request, int *status)
{
    FakeCall call = callOf(__func__);
    call.bytes = bytesOf(*request);
    call.text = textOf(*request);
    const std::size_t ticket = sdk().enter(call);
    const FakeAnswer answer = sdk().takeAnswer();
    sdk().block(ticket, answer.block);
    *status = answer.status;
    if (answer.result == 0) {
        sdk().startSession(call.text);
        sdk().answer(answer);
    }
    return sdk().leave(ticket, answer.result, answer.status);
}

long TKSV_USSDSrv_Release(int *status)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    const long result = sdk().resultOf(__func__);
    if (status)
        *status = 0;
    if (result == 0) {
        sdk().setSessionState(TKSV_SESSION_IDLE);
        sdk().dispatcher(FakeService::Ussd).eraseWaiting();
    }
    return sdk().leave(ticket, result);
}

long TKSV_USSDSrv_RegisterUSSDCallback(TKSV_EventCallback callback)
{
    return sdk().add(__func__, FakeService::Ussd, callback);
}

long TKSV_USSDSrv_UnRegisterUSSDCallback(TKSV_EventCallback callback)
{
    return sdk().remove(__func__, FakeService::Ussd, callback);
}

// ---- device ------------------------------------------------------------------------------------

long TKSV_DevSrv_RegisterDevInitEventCallback(TKSV_EventCallback callback)
{
    return sdk().add(__func__, FakeService::Device, callback);
}

long TKSV_DevSrv_UnRegisterDevInitEventCallback(TKSV_EventCallback callback)
{
    return sdk().remove(__func__, FakeService::Device, callback);
}

long TKSV_Device_GetInfo(TKSV_DeviceInfo *info)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    if (!info)
        return sdk().leave(ticket, 1);
    *info = sdk().deviceInfo();
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_SetInfoCallback(TKSV_DeviceInfoCallback callback, void *context)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    sdk().setInfoCallback(callback, context);
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_UseScenario(const char *path, char *message, unsigned long messageSize)
{
    FakeCall call = callOf(__func__);
    call.path = path ? path : "";
    const std::size_t ticket = sdk().enter(call);
    return sdk().leave(ticket, sdk().useScenario(message, messageSize));
}

long TKSV_Device_GetModems(TKSV_Modem *modems, unsigned long capacity, unsigned long *count)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    const std::vector<TKSV_Modem> all = sdk().modems();
    *count = all.size();
    std::copy_n(all.begin(), std::min<std::size_t>(all.size(), capacity), modems);
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_UseModem(const char *equipmentId)
{
    FakeCall call = callOf(__func__);
    call.path = equipmentId ? equipmentId : "";
    const std::size_t ticket = sdk().enter(call);
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_UseAutomatic(void)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_SendPin(const char *pin)
{
    FakeCall call = callOf(__func__);
    call.path = pin ? pin : "";
    const std::size_t ticket = sdk().enter(call);
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_Enable(void)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_LookAgain(void)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_GetModes(TKSV_ModesInfo *info)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    *info = sdk().modes();
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_SetModes(const TKSV_Modes *modes)
{
    FakeCall call = callOf(__func__);
    call.path = std::to_string(modes->allowed) + "," + std::to_string(modes->preferred);
    const std::size_t ticket = sdk().enter(call);
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_GetLastFailure(TKSV_FailureInfo *failure)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    if (!failure)
        return sdk().leave(ticket, 1);
    *failure = sdk().lastFailure();
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_GetSession(TKSV_SessionInfo *session)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    if (!session)
        return sdk().leave(ticket, 1);
    *session = sdk().session();
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_CancelRequest(void)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    const long result = sdk().resultOf(__func__);
    if (result == 0) {
        TKSV_FailureInfo cancelled = {};
        cancelled.reason = TKSV_FAILURE_CANCELLED;
        sdk().setLastFailure(cancelled);
        sdk().dispatcher(FakeService::Ussd).eraseWaiting();
        fakeSdkRespond(u"", TKSV_FAILURE_CANCELLED);
    }
    return sdk().leave(ticket, result);
}

long TKSV_Device_EndForeignSession(void)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

long TKSV_Device_SetTextCallback(TKSV_NetworkTextCallback callback, void *context)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    sdk().setTextCallback(callback, context);
    return sdk().leave(ticket, sdk().resultOf(__func__));
}

// ---- short messages ----------------------------------------------------------------------------

long TKSV_SMSSrv_RegCallBack(TKSV_EventCallback callback)
{
    const long result = sdk().add(__func__, FakeService::Sms, callback);
    if (result == 0 && sdk().canSendSms())
        fakeSdkRaiseSmsStatus(TKSV_SMS_STATUS_CAN_SEND);
    return result;
}

long TKSV_SMSSrv_UnRegCallBack(TKSV_EventCallback callback)
{
    return sdk().remove(__func__, FakeService::Sms, callback);
}

long TKSV_SMSSrv_CreateSMSRecord(TKSV_SMSRecord *record, const unsigned short *number,
                                 const unsigned short *text)
{
    FakeCall call = callOf(__func__);
    call.number = textOf(number);
    call.text = textOf(text);
    const long result = sdk().resultOf(__func__);
    *record = sdk().createRecord(result);
    call.handle = *record;
    return sdk().leave(sdk().enter(call), result);
}

long TKSV_SMSSrv_SendMsg(TKSV_SMSRecord record)
{
    FakeCall call = callOf(__func__);
    call.handle = record;
    const std::size_t ticket = sdk().enter(call);
    const bool live = sdk().isLive(record);
    const long result = sdk().resultOf(__func__);
    return sdk().leave(ticket, live ? result : 1);
}

long TKSV_SMSSrv_ReleaseSMSRecord(TKSV_SMSRecord record)
{
    FakeCall call = callOf(__func__);
    call.handle = record;
    const std::size_t ticket = sdk().enter(call);
    const bool released = sdk().releaseRecord(record);
    const long result = sdk().resultOf(__func__);
    return sdk().leave(ticket, released ? result : 1);
}

// ---- folders -----------------------------------------------------------------------------------

long TKSV_GetUserDataDirectory(unsigned short **directory)
{
    const std::size_t ticket = sdk().enter(callOf(__func__));
    const long result = sdk().resultOf(__func__);
    std::u16string text;
    *directory = nullptr;
    if (result != 0 || !sdk().userDataDirectory(text))
        return sdk().leave(ticket, result != 0 ? result : 1);
    *directory = new unsigned short[text.size() + 1]; // the caller frees it
    std::copy(text.begin(), text.end(), *directory);
    (*directory)[text.size()] = 0;
    return sdk().leave(ticket, 0);
}
