/* The C functions. Only this file validates arguments and converts them to C++ value types. */

#include <memory>

#include "base/Records.h"
#include "base/Text.h"
#include "DeviceSdk.h"
#include "UserDataFolder.h"

using namespace Tksv;

namespace
{

const long SUCCESS = 0;
const long FAILURE = 1;

/// Calls the function and converts an exception to a failure. Exceptions, which can occur when
/// memory or threads are exhausted, must not cross the C interface.
template <typename Function>
long guarded(Function function)
{
    try {
        return function();
    } catch (...) {
        return FAILURE;
    }
}

long resultOf(bool ok)
{
    return ok ? SUCCESS : FAILURE;
}

void setStatus(int *status, int value)
{
    if (status)
        *status = value;
}

/// Calls the function with the DeviceSdk, or fails if the call-back is null.
template <typename Function>
long withCallback(TKSV_EventCallback callback, Function function)
{
    return callback ? guarded([&] { return function(DeviceSdk::instance()); }) : FAILURE;
}

} // namespace

long TKSV_USSDSrv_Request(TKSV_USSDRequest *request, int *status)
{
    return guarded([&] {
        setStatus(status, RequestMalformed);
        DeviceSdk &sdk = DeviceSdk::instance();
        const auto text = decodeRequest(request);
        if (!text) {
            sdk.session().recordRefusal(TKSV_FAILURE_NOT_ENCODABLE);
            return FAILURE;
        }
        const int result = sdk.request(*text);
        setStatus(status, result);
        return resultOf(result == RequestAccepted);
    });
}

long TKSV_USSDSrv_Release(int *status)
{
    setStatus(status, 0);
    return guarded([] {
        DeviceSdk::instance().release();
        return SUCCESS;
    });
}

long TKSV_USSDSrv_RegisterUSSDCallback(TKSV_EventCallback callback)
{
    return withCallback(callback, [callback](DeviceSdk &sdk) {
        sdk.addUssdCallback(callback);
        return SUCCESS;
    });
}

long TKSV_USSDSrv_UnRegisterUSSDCallback(TKSV_EventCallback callback)
{
    return withCallback(callback, [callback](DeviceSdk &sdk) {
        return resultOf(sdk.removeUssdCallback(callback));
    });
}

long TKSV_DevSrv_RegisterDevInitEventCallback(TKSV_EventCallback callback)
{
    return withCallback(callback, [callback](DeviceSdk &sdk) {
        sdk.addDeviceCallback(callback);
        return SUCCESS;
    });
}

long TKSV_DevSrv_UnRegisterDevInitEventCallback(TKSV_EventCallback callback)
{
    return withCallback(callback, [callback](DeviceSdk &sdk) {
        return resultOf(sdk.removeDeviceCallback(callback));
    });
}

long TKSV_SMSSrv_RegCallBack(TKSV_EventCallback callback)
{
    return withCallback(callback, [callback](DeviceSdk &sdk) {
        sdk.addSmsCallback(callback);
        return SUCCESS;
    });
}

long TKSV_SMSSrv_UnRegCallBack(TKSV_EventCallback callback)
{
    return withCallback(
        callback, [callback](DeviceSdk &sdk) { return resultOf(sdk.removeSmsCallback(callback)); });
}

long TKSV_SMSSrv_CreateSMSRecord(TKSV_SMSRecord *record, const unsigned short *number,
                                 const unsigned short *text)
{
    if (!record)
        return FAILURE;
    *record = nullptr;
    if (!number || !*number || !text)
        return FAILURE;
    return guarded([&] {
        SmsMessage message{decodeText(number), decodeText(text)};
        *record = DeviceSdk::instance().smsRecords().create(std::move(message));
        return SUCCESS;
    });
}

long TKSV_SMSSrv_SendMsg(TKSV_SMSRecord record)
{
    return guarded([&] {
        DeviceSdk &sdk = DeviceSdk::instance();
        const auto message = sdk.smsRecords().find(record);
        return resultOf(message && sdk.sendSms(*message));
    });
}

long TKSV_SMSSrv_ReleaseSMSRecord(TKSV_SMSRecord record)
{
    return guarded([&] { return resultOf(DeviceSdk::instance().smsRecords().release(record)); });
}

long TKSV_GetUserDataDirectory(unsigned short **directory)
{
    if (!directory)
        return FAILURE;
    *directory = nullptr;
    return guarded([&] {
        const std::string folder = userDataFolder();
        const auto units = toUtf16(folder);
        if (folder.empty() || !units || !createFolder(folder))
            return FAILURE;
        auto copy = std::make_unique<unsigned short[]>(units->size() + 1);
        std::copy(units->begin(), units->end(), copy.get());
        *directory = copy.release();
        return SUCCESS;
    });
}

long TKSV_Device_GetInfo(TKSV_DeviceInfo *info)
{
    if (!info)
        return FAILURE;
    return guarded([&] {
        const DeviceInfo source = DeviceSdk::instance().info();
        *info = TKSV_DeviceInfo();
        info->backend = source.backend;
        info->state = source.state;
        info->problem = source.problem;
        info->signalPercent = source.signalPercent;
        info->canSendSMS = source.canSendSms ? 1 : 0;
        info->pinRetries = source.pinRetries;
        copyText(source.operatorName, info->operatorName, sizeof info->operatorName);
        copyText(source.imsi, info->imsi, sizeof info->imsi);
        copyText(source.simOperatorCode, info->simOperatorCode, sizeof info->simOperatorCode);
        copyText(source.simOperatorName, info->simOperatorName, sizeof info->simOperatorName);
        copyText(source.equipmentId, info->equipmentId, sizeof info->equipmentId);
        copyText(source.source, info->source, sizeof info->source);
        info->isLooking = source.isLooking ? 1 : 0;
        info->hasForeignSession = source.hasForeignSession ? 1 : 0;
        info->waitsForTurn = source.waitsForTurn ? 1 : 0;
        info->isRoaming = source.isRoaming ? 1 : 0;
        return SUCCESS;
    });
}

long TKSV_Device_SetInfoCallback(TKSV_DeviceInfoCallback callback, void *context)
{
    return guarded([&] {
        DeviceSdk::instance().setInfoCallback(callback, context);
        return SUCCESS;
    });
}

long TKSV_Device_UseScenario(const char *path, char *message, unsigned long messageSize)
{
    return guarded([&] {
        const std::string complaints = DeviceSdk::instance().choice().useScenario(path ? path : "");
        if (message)
            copyText(complaints, message, messageSize);
        return resultOf(complaints.empty());
    });
}

long TKSV_Device_GetModems(TKSV_Modem *modems, unsigned long capacity, unsigned long *count)
{
    if (!count || (!modems && capacity > 0))
        return FAILURE;
    return guarded([&] {
        const std::vector<ModemSummary> found = DeviceSdk::instance().choice().modems();
        const std::string inUse = DeviceSdk::instance().info().equipmentId;
        *count = found.size();
        for (std::size_t i = 0; i < found.size() && i < capacity; ++i) {
            modems[i] = TKSV_Modem();
            copyText(found[i].equipmentId, modems[i].equipmentId, sizeof modems[i].equipmentId);
            copyText(found[i].name, modems[i].name, sizeof modems[i].name);
            modems[i].isInUse = found[i].equipmentId == inUse ? 1 : 0;
            modems[i].state = found[i].state;
        }
        return SUCCESS;
    });
}

long TKSV_Device_UseModem(const char *equipmentId)
{
    return guarded([&] {
        DeviceSdk::instance().choice().useModem(equipmentId ? equipmentId : "");
        return SUCCESS;
    });
}

long TKSV_Device_UseAutomatic(void)
{
    return guarded([] {
        DeviceSdk::instance().choice().useAutomatic();
        return SUCCESS;
    });
}

long TKSV_Device_SendPin(const char *pin)
{
    return guarded([&] {
        const std::string digits = pin ? pin : "";
        const bool isPin = isDigits(digits) && digits.size() >= 4 && digits.size() <= 8;
        return resultOf(isPin && DeviceSdk::instance().sendPin(digits));
    });
}

long TKSV_Device_Enable(void)
{
    return guarded([] { return resultOf(DeviceSdk::instance().enable()); });
}

long TKSV_Device_GetModes(TKSV_ModesInfo *info)
{
    if (!info)
        return FAILURE;
    return guarded([&] {
        *info = DeviceSdk::instance().info().modes;
        return SUCCESS;
    });
}

long TKSV_Device_SetModes(const TKSV_Modes *modes)
{
    if (!modes || modes->allowed == 0)
        return FAILURE;
    return guarded([&] { return resultOf(DeviceSdk::instance().setModes(*modes)); });
}

long TKSV_Device_LookAgain(void)
{
    return guarded([] {
        DeviceSdk::instance().choice().lookAgain();
        return SUCCESS;
    });
}

long TKSV_Device_GetSession(TKSV_SessionInfo *session)
{
    if (!session)
        return FAILURE;
    return guarded([&] {
        const SessionInfo source = DeviceSdk::instance().session().info();
        *session = TKSV_SessionInfo();
        session->state = source.state;
        session->requestCount = source.requestCount;
        copyText(source.request, session->request, sizeof session->request);
        return SUCCESS;
    });
}

long TKSV_Device_GetLastFailure(TKSV_FailureInfo *failure)
{
    if (!failure)
        return FAILURE;
    return guarded([&] {
        const Failure last = DeviceSdk::instance().session().lastFailure();
        *failure = TKSV_FailureInfo();
        failure->reason = last.reason;
        failure->wasNotSent = last.wasNotSent ? 1 : 0;
        copyText(last.text, failure->text, sizeof failure->text);
        return SUCCESS;
    });
}

long TKSV_Device_CancelRequest(void)
{
    return guarded([] { return resultOf(DeviceSdk::instance().cancel()); });
}

long TKSV_Device_SetTurnLimit(unsigned int milliseconds)
{
    return guarded([&] {
        DeviceSdk::instance().choice().setTurnLimit(std::chrono::milliseconds(milliseconds));
        return SUCCESS;
    });
}

long TKSV_Device_EndForeignSession(void)
{
    return guarded([] { return resultOf(DeviceSdk::instance().endForeignSession()); });
}

long TKSV_Device_SetTextCallback(TKSV_NetworkTextCallback callback, void *context)
{
    return guarded([&] {
        DeviceSdk::instance().setTextCallback(callback, context);
        return SUCCESS;
    });
}
