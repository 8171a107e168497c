#include "USSDLogic.h"

#include <QPointer>

#include "base/PluginLog.h"
#include "base/PluginText.h"
#include "CommonUtils.h"
#include "QtCompat.h"
#include "ReplyTimeout.h"
#include "ReplyTimer.h"
#include "SdkRecords.h"
#include "tksv.h"

using namespace Formats;

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDLogic.cpp");

namespace
{

const int SENT = 0;
const int FAILED = 1;
const int NOT_THE_HEAD = 2; // internal result: the command is no longer the head of the queue

const int PREVIOUS_TIMEOUT = 3000; // ms to wait until the previous time-out is disarmed

ReplyTimes shippedReplyTimes()
{
    const ReplyTimes times = {replyTimeout(), PREVIOUS_TIMEOUT};
    return times;
}

bool isPrePostQuery(const USSDCmdOrResp &command)
{
    return command.component == COMPONENT_PREPOST_QUERY;
}

bool isNotUSSDSMS(const USSDCmdOrResp &command)
{
    return command.component != COMPONENT_USSD_SMS;
}

} // namespace

USSDLogic *USSDLogic::m_pUSSDLogicInstance = nullptr;
CommandQueue USSDLogic::m_listOfCommandsToSend;
QMutex USSDLogic::m_mutex;
QMutex USSDLogic::m_mutexSendCmd;
QMutex USSDLogic::m_mutexTimeout;
QWaitCondition USSDLogic::m_waitCondition;
ReplyTimer *USSDLogic::m_pTimer = nullptr;
std::atomic<bool> USSDLogic::m_bCanSendSMS(false);
quint64 USSDLogic::m_timedHead = 0;
CallbackGate USSDLogic::m_gate;
ReplyTimes USSDLogic::m_replyTimes = shippedReplyTimes();

/**
 * Provides the only access to the pending commands. LockedQueue()->function() locks m_mutex until
 * the end of the full expression. The expression must not lock another mutex or call any other
 * code.
 */
class USSDLogic::LockedQueue
{
public:
    LockedQueue() : m_locker(&m_mutex) {}
    CommandQueue *operator->() { return &m_listOfCommandsToSend; }

private:
    QtCompat::MutexLocker m_locker;
};

// ---- life cycle ----------------------------------------------------------------------------

USSDLogic *USSDLogic::GetUSSDLogicInstance()
{
    USSD_LOG_SCOPE();
    if (!m_pUSSDLogicInstance) {
        m_gate.startOpening();
        m_pUSSDLogicInstance = new USSDLogic;
        m_gate.open();
    }
    return m_pUSSDLogicInstance;
}

USSDLogic::USSDLogic()
{
    USSD_LOG_SCOPE();
    load();
    registerDeviceCallback();
    if (registerUSSDCallback(CallBackReceivedResponse) != 0)
        USSD_LOG(" register callback failed");
    m_bCanSendSMS = false;
    registerSmsCallback();
    if (!m_pTimer) {
        m_pTimer = new ReplyTimer(this);
        connect(m_pTimer, SIGNAL(timeout()), this, SLOT(OnTimeOut()));
    }
}

USSDLogic::~USSDLogic() {}

void USSDLogic::Destroy()
{
    USSD_LOG_SCOPE();
    stopReplyTimer(); // wakes a sender that is waiting for the previous time-out
    m_gate.close();
    delete m_pTimer;
    m_pTimer = nullptr;
    delete m_pUSSDLogicInstance;
    m_pUSSDLogicInstance = nullptr;
    LockedQueue()->clear(); // otherwise, the next object would wait for these commands
}

// The two functions below are parts of the constructor and log under its name.
static const char CONSTRUCTOR[] = "USSDLogic";

void USSDLogic::registerDeviceCallback()
{
    USSD_LOG_AS(CONSTRUCTOR, ": Calling TKSV_DevSrv_RegisterDevInitEventCallback ()");
    const long result = TKSV_DevSrv_RegisterDevInitEventCallback(OnDeviceMgrInitEvent);
    USSD_LOG_AS(CONSTRUCTOR, ": TKSV_DevSrv_RegisterDevInitEventCallback () returned %li", result);
}

void USSDLogic::registerSmsCallback()
{
    USSD_LOG_AS(CONSTRUCTOR, ": Calling TKSV_SMSSrv_RegCallBack ()");
    const long result = TKSV_SMSSrv_RegCallBack(SmsCallBackMethod);
    USSD_LOG_AS(CONSTRUCTOR, ": TKSV_SMSSrv_RegCallBack () returned %li", result);
    if (result != 0)
        USSD_LOG_WARNING_AS(CONSTRUCTOR, ": TKSV_SMSSrv_RegCallBack returned %li", result);
}

int USSDLogic::registerUSSDCallback(EventCallback fn)
{
    USSD_LOG(" Enter");
    USSD_LOG_IMPORTANT(" before calling TKSV_USSDSrv_RegisterUSSDCallback()");
    const long result = TKSV_USSDSrv_RegisterUSSDCallback(fn);
    USSD_LOG(" after calling TKSV_USSDSrv_RegisterUSSDCallback(): retVal=%ld", result);
    USSD_LOG(" Exit: retVal=%ld", result);
    return static_cast<int>(result);
}

int USSDLogic::unregisterUSSDCallback(EventCallback fn)
{
    USSD_LOG(" Enter");
    USSD_LOG_IMPORTANT(" before calling TKSV_USSDSrv_UnRegisterUSSDCallback()");
    const long result = TKSV_USSDSrv_UnRegisterUSSDCallback(fn);
    USSD_LOG(" before calling TKSV_USSDSrv_UnRegisterUSSDCallback(): retVal=%ld", result);
    USSD_LOG(" Exit: retVal=%ld", result);
    return static_cast<int>(result);
}

void USSDLogic::unSDKRegisterEvent()
{
    USSD_LOG_SCOPE();
    TKSV_DevSrv_UnRegisterDevInitEventCallback(OnDeviceMgrInitEvent);
    unregisterUSSDCallback(CallBackReceivedResponse);
    TKSV_SMSSrv_UnRegCallBack(SmsCallBackMethod);
}

QString USSDLogic::tr(const QString &key)
{
    return pluginText(key);
}

void USSDLogic::setReplyTimes(const ReplyTimes &times)
{
    m_replyTimes = times;
}

ReplyTimes USSDLogic::replyTimes()
{
    return m_replyTimes;
}

// ---- the pending list ----------------------------------------------------------------------

void USSDLogic::copyCmdToList(USSDCmdOrResp cmd)
{
    LockedQueue()->append(cmd);
}

void USSDLogic::ClearQueuedCmds()
{
    USSD_LOG_SCOPE();
    LockedQueue()->keepOnly(isPrePostQuery);
}

void USSDLogic::ClearUSSDSMSQueuedCmds()
{
    USSD_LOG_SCOPE();
    LockedQueue()->keepOnly(isNotUSSDSMS);
}

// ---- sending -------------------------------------------------------------------------------

int USSDLogic::SendUSSDCommand(USSDCmdOrResp cmd, int *status)
{
    USSD_LOG(" Enter");
    copyCmdToList(cmd);
    if (LockedQueue()->count() == 1)
        return sendHead(status);
    USSD_LOG(" Exit");
    return SENT;
}

void USSDLogic::checkPendingCmds()
{
    int status = 0;
    sendHead(&status);
}

int USSDLogic::sendHead(int *status)
{
    CommandQueue::Head head;
    while (LockedQueue()->markHeadSent(head)) {
        const int result = sendUSSDCommand(head.command.command, head.number, status);
        if (result != NOT_THE_HEAD)
            return result;
    }
    return SENT;
}

int USSDLogic::sendUSSDCommand(QString command, int *status)
{
    CommandQueue::Head head;
    if (!LockedQueue()->markHeadSent(head))
        head.number = LockedQueue()->headNumber();
    return sendUSSDCommand(command, head.number, status) == FAILED ? FAILED : SENT;
}

/// Sends the head to the device. Returns SENT, FAILED or NOT_THE_HEAD. If sending fails, no signal
/// is emitted, because the caller receives the result. The commands behind the failed command
/// intentionally remain in the queue until a late reply arrives or the queue is cleared.
int USSDLogic::sendUSSDCommand(const QString &command, quint64 number, int *status)
{
    USSD_LOG_SCOPE();
    int ignoredStatus = 0;
    if (!status)
        status = &ignoredStatus;
    QtCompat::MutexLocker sending(&m_mutexSendCmd);
    if (!LockedQueue()->startHandOver(number)) // cleared or answered during the wait for the lock
        return NOT_THE_HEAD;
    TKSV_USSDRequest request;
    if (!SdkRecords::encodeRequest(command, request)) {
        USSD_LOG_EXIT(" USSDCommand is too large");
        LockedQueue()->removeHead(number);
        return FAILED;
    }
    USSD_LOG_IMPORTANT(" Calling TKSV_USSDSrv_Request (USSDCmd= %s, USSDCmdLen = %d)",
                       command.toLocal8Bit().constData(), SdkRecords::commandBytes(command));
    const long result = TKSV_USSDSrv_Request(&request, status);
    USSD_LOG_IMPORTANT(" TKSV_USSDSrv_Request Returned(status = %d, retVal = %ld), ", *status,
                       result);
    if (result != 0) {
        USSD_LOG_EXIT_IMPORTANT(" TKSV_USSDSrv_Request failed");
        LockedQueue()->removeHead(number);
        return FAILED;
    }
    armReplyTimer(number);
    return SENT;
}

/// Arms the time-out for the head. Must be called with m_mutexSendCmd locked.
void USSDLogic::armReplyTimer(quint64 number)
{
    if (!m_pTimer)
        return;
    QtCompat::MutexLocker locker(&m_mutexTimeout);
    if (m_pTimer->isArmed()) // for an earlier request; another thread may be handling its reply
        m_waitCondition.wait(&m_mutexTimeout, static_cast<unsigned long>(m_replyTimes.previous));
    m_timedHead = number;
    const quint64 arming = m_pTimer->arm(m_replyTimes.reply);
    locker.unlock();
    // A reply that arrived before the time-out was armed could not disarm it.
    if (!LockedQueue()->awaitsReply(number))
        m_pTimer->disarm(arming);
}

/// Wakes the thread that waits in armReplyTimer() for the end of this time-out. Disarms the
/// time-out unless it belongs to a head after `lastHead`, which was sent between the claim of
/// `lastHead` and this call.
void USSDLogic::stopReplyTimer(quint64 lastHead)
{
    QtCompat::MutexLocker locker(&m_mutexTimeout);
    m_waitCondition.wakeAll();
    if (m_pTimer && m_timedHead <= lastHead)
        m_pTimer->disarm();
}

int USSDLogic::ReleaseUSSDCommand()
{
    USSD_LOG_SCOPE();
    return releaseUSSDCommand();
}

int USSDLogic::releaseUSSDCommand()
{
    USSD_LOG(" Enter");
    int status = 0;
    if (TKSV_USSDSrv_Release(&status) == 0)
        return 0;
    USSD_LOG(" TKSV_USSDSrv_Release failed");
    return 1;
}

// ---- outcomes ------------------------------------------------------------------------------

unsigned char USSDLogic::CallBackReceivedResponse(int event, void *data)
{
    Q_UNUSED(event);
    USSD_LOG_SCOPE();
    if (!data) {
        USSD_LOG_EXIT_IMPORTANT(" Fail Exit: Response data is NULL");
        return 0;
    }
    const CallbackPass pass(m_gate, CallbackGate::DoNotWait);
    if (!pass.isValid()) {
        USSD_LOG_EXIT_IMPORTANT(" Fail Exit: Logic Object is NULL");
        return 0;
    }
    CommandQueue::Head head;
    const CommandQueue::Claim claim = LockedQueue()->claimHeadInFlight(head);
    if (claim == CommandQueue::ClaimedByOther) {
        USSD_LOG_EXIT(" Exit: the command has its answer already");
        return 0;
    }
    stopReplyTimer(head.number);
    USSD_LOG(" received response type = %d", SdkRecords::responseType(data));
    if (claim == CommandQueue::WaitsForHandOver) {
        USSD_LOG_EXIT(" Exit: the next command is not on the device yet");
        return 0;
    }
    if (claim == CommandQueue::Empty) {
        USSD_LOG_EXIT(" sending USSD commond list is empty");
        return 0;
    }
    const QString text = SdkRecords::responseText(data);
    USSD_LOG(" received component = %d", head.command.component);
    USSD_LOG(" received response = %s", text.toLocal8Bit().constData());
    emit m_pUSSDLogicInstance->responseReceived(head.command.component, text);
    LockedQueue()->removeHead(head.number);
    m_pUSSDLogicInstance->checkPendingCmds();
    return 1;
}

void USSDLogic::OnTimeOut()
{
    USSD_LOG_SCOPE();
    // Read the number first. A reply that arrives from now on may make another command the head.
    // That command has not timed out.
    const quint64 number = LockedQueue()->headNumber();
    CommandQueue::Head head;
    if (!stopRunOutTimer())
        return;
    if (LockedQueue()->claimHeadInFlight(head, number) != CommandQueue::Claimed)
        return;
    const QPointer<USSDLogic> self(this); // a receiver may shut down the plug-in
    emit responseReceived(head.command.component, tr(QLatin1String("USSD_CODE_TIME_OUT")));
    if (!self)
        return;
    LockedQueue()->removeHead(head.number);
    checkPendingCmds();
}

/// Wakes the thread that waits in armReplyTimer() and disarms the expired time-out. Returns false
/// if the command of this time-out has been answered in the meantime. The head is then a different
/// command, which may not even have been sent.
bool USSDLogic::stopRunOutTimer()
{
    const quint64 runOut = m_pTimer ? m_pTimer->runOutArming() : 0;
    if (runOut == 0) { // not called from the timer
        stopReplyTimer();
        return true;
    }
    QtCompat::MutexLocker locker(&m_mutexTimeout);
    m_waitCondition.wakeAll();
    if (!m_pTimer->isArmed(runOut))
        return false;
    m_pTimer->disarm(runOut);
    const quint64 timedHead = m_timedHead;
    locker.unlock();
    return LockedQueue()->awaitsReply(timedHead);
}

unsigned char USSDLogic::OnDeviceMgrInitEvent(int event, void *data)
{
    Q_UNUSED(data);
    USSD_LOG(" Enter %d", event);
    if (event != TKSV_DEV_EVENT_GONE && event != TKSV_DEV_EVENT_RESET)
        return 0;
    const CallbackPass pass(m_gate, CallbackGate::DoNotWait);
    if (!pass.isValid())
        return 1; // there is no pending command
    CommandQueue::Head head;
    const CommandQueue::Claim claim = LockedQueue()->claimHead(head);
    if (claim == CommandQueue::Empty)
        return 1;
    if (claim == CommandQueue::Claimed)
        emit m_pUSSDLogicInstance->responseReceived(head.command.component,
                                                    tr(QLatin1String("USSD_CODE_FAILED")));
    LockedQueue()->clear();
    return 1;
}

// ---- short messages ------------------------------------------------------------------------

unsigned char USSDLogic::SmsCallBackMethod(int event, void *data)
{
    USSD_LOG_SCOPE();
    if (CommonUtils::IsShuttingDown()) {
        USSD_LOG_UNTIMED(":HA is shutting down ");
        USSD_LOG_NO_EXIT();
        return 1;
    }
    const CallbackPass pass(m_gate, CallbackGate::WaitForOpening);
    if (!pass.isValid()) {
        USSD_LOG_NO_EXIT();
        return 0;
    }
    switch (event) {
    case TKSV_SMS_EVENT_SEND_RESULT:
        m_pUSSDLogicInstance->announceSmsResult(data);
        break;
    case TKSV_SMS_EVENT_STATUS_CHANGED:
        m_pUSSDLogicInstance->announceSmsStatus(data);
        break;
    default:
        USSD_LOG_UNTIMED(":Caught in Default case ");
        break;
    }
    return 1;
}

void USSDLogic::announceSmsResult(void *data)
{
    // Log under the name of the call-back, because users search the log for this name.
    static const char function[] = "SmsCallBackMethod";
    USSD_LOG_AS(function, ": Obtained the EVENT_SMS_ONSENDRESULT");
    if (!data)
        return;
    const SdkRecords::SmsSendResult result = SdkRecords::smsSendResult(data);
    USSD_LOG_AS(function, result.sent ? ": Successfully sent the message(EVENT_SMS_ONSENDRESULT)"
                                      : ": Failed to send the message(EVENT_SMS_ONSENDRESULT)");
    emit SmsSendResult(result.sent, result.number, result.text);
}

void USSDLogic::announceSmsStatus(void *data)
{
    static const char function[] = "SmsCallBackMethod";
    USSD_LOG_AS(function, ": Sending  EVENT_SMS_ONSTATUSCHANGED");
    const int status = SdkRecords::smsStatus(data);
    if (status != TKSV_SMS_STATUS_CAN_SEND && status != TKSV_SMS_STATUS_CANNOT_SEND) {
        USSD_LOG_UNTIMED_AS(function, ": EVENT_SMS_ONSTATUSCHANGED Caught in Default case ");
        return;
    }
    const bool can = status == TKSV_SMS_STATUS_CAN_SEND;
    USSD_LOG_AS(function, can ? ":: Reciceved  CAN_SEND_SMS" : ":: Reciceved  CANNOT_SEND_SMS");
    m_bCanSendSMS = can;
    emit CanSendSMS(can);
}

bool USSDLogic::CanSendSMS()
{
    return m_bCanSendSMS;
}
