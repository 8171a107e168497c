#include "DialogTest.h"

#include <thread>
#include <vector>

#include "fake_tksv.h"
#include "requests/SdkRecords.h"
#include "requests/USSDLogic.h"
#include "windows/USSDService.h"

namespace
{

TKSV_EventCallback registered(const char *function)
{
    const std::vector<FakeCall> calls = fakeSdkCalls(function);
    return calls.empty() ? nullptr : calls.back().callback;
}

/// Returns a string without the terminating zero that the device SDK guarantees.
std::vector<unsigned short> unitsWithoutEnd(int count)
{
    return std::vector<unsigned short>(static_cast<size_t>(count), 'x');
}

} // namespace

/** Tests the general window with a device SDK that violates its guarantees. */
class FaultySdkTest : public DialogTest
{
    Q_OBJECT

private slots:
    void responseWithoutARequestIsNotShown();
    void secondResponseIsNotShown();
    void manyResponsesAtOnceAreOne();
    void nullRecordIsNoAnswer();
    void nullSmsRecordsAreSurvived();
    void unknownEventsAreSurvived();
    void callBackAfterUnregisterIsTurnedAway();
    void callBackAfterTheEndIsTurnedAway();
    void callBackDuringTheEndIsSurvived();
    void textWithoutItsZeroUnitEndsSomewhere();
    void blockingRequestIsWaitedFor();
    void responseDuringABlockingRequestIsShown();
    void blockingRequestThatFailsIsSaid();
    void endWaitsForABlockingRequest();
};

void FaultySdkTest::responseWithoutARequestIsNotShown()
{
    open();
    fakeSdkRespond(u"Pay 5 EUR?");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    drainEvents();
    QCOMPARE(history()->toPlainText(), QString());
    send(latin1("*100#"));
    networkSays(latin1("5 EUR"));
    QCOMPARE(shownLines().mid(0, 2),
             (QStringList{sentLine(latin1("*100#")), receivedLine(latin1("5 EUR"))}));
}

void FaultySdkTest::secondResponseIsNotShown()
{
    FakeAnswer twice = fakeReply(u"5 EUR");
    twice.times = 2;
    fakeSdkSetAnswer(twice);
    open();
    send(latin1("*100#"));
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 2));
    drainEvents();
    QCOMPARE(history()->toPlainText().count(latin1("5 EUR")), 1);
    QVERIFY(isIdle());
}

void FaultySdkTest::manyResponsesAtOnceAreOne()
{
    FakeAnswer many = fakeReply(u"5 EUR");
    many.times = 10;
    many.threads = 4;
    fakeSdkSetAnswer(many);
    open();
    send(latin1("*100#"));
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 40));
    drainEvents();
    QCOMPARE(history()->toPlainText().count(latin1("5 EUR")), 1);
    QVERIFY(isIdle());
}

void FaultySdkTest::nullRecordIsNoAnswer()
{
    expectWarning("Response data is NULL");
    open();
    send(latin1("*100#"));
    fakeSdkRespondNull();
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    drainEvents();
    QVERIFY(isWaiting());
    networkSays(latin1("5 EUR"));
    QVERIFY(isIdle());
}

void FaultySdkTest::nullSmsRecordsAreSurvived()
{
    open();
    fakeSdkRaiseSmsEvent(TKSV_SMS_EVENT_SEND_RESULT);
    fakeSdkRaiseSmsEvent(TKSV_SMS_EVENT_STATUS_CHANGED);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 2));
    drainEvents();
    QVERIFY(!USSDLogic::GetUSSDLogicInstance()->CanSendSMS());
}

void FaultySdkTest::unknownEventsAreSurvived()
{
    open();
    send(latin1("*100#"));
    const int events[] = {-1, 1, 3, 6015, 6602, 2147483647, -2147483647 - 1};
    for (const int event : events) {
        fakeSdkRaiseSmsEvent(event);
        fakeSdkRaiseDeviceEvent(event);
    }
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Device, 7));
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 7));
    drainEvents();
    QVERIFY(isWaiting());
}

void FaultySdkTest::callBackAfterUnregisterIsTurnedAway()
{
    open();
    send(latin1("*100#"));
    const TKSV_EventCallback callback = registered("TKSV_USSDSrv_RegisterUSSDCallback");
    QVERIFY(callback);
    USSDLogic::GetUSSDLogicInstance()->unSDKRegisterEvent();
    TKSV_USSDResponse record = {};
    // A late response is accepted as if it had arrived in time.
    std::thread([callback, &record] { callback(0, &record); }).join();
    drainEvents();
    QVERIFY(isIdle());
}

void FaultySdkTest::callBackAfterTheEndIsTurnedAway()
{
    for (int i = 0; i < 6; ++i)
        allowWarning("NULL");
    open();
    const TKSV_EventCallback ussd = registered("TKSV_USSDSrv_RegisterUSSDCallback");
    const TKSV_EventCallback device = registered("TKSV_DevSrv_RegisterDevInitEventCallback");
    const TKSV_EventCallback sms = registered("TKSV_SMSSrv_RegCallBack");
    QVERIFY(ussd && device && sms);
    delete dialog();
    CUSSDService::Destroy();
    USSDLogic::Destroy();
    TKSV_USSDResponse response = {};
    TKSV_SMSStatus status = {TKSV_SMS_STATUS_CAN_SEND};
    std::thread([&] {
        QCOMPARE(int(ussd(0, &response)), 0);
        QCOMPARE(int(device(TKSV_DEV_EVENT_GONE, nullptr)), 1); // no command was pending
        QCOMPARE(int(sms(TKSV_SMS_EVENT_STATUS_CHANGED, &status)), 0);
    }).join();
}

void FaultySdkTest::callBackDuringTheEndIsSurvived()
{
    allowWarning("NULL");
    fakeSdkSetUnregisterWaits(false);
    for (int round = 0; round < 20; ++round) {
        open();
        send(latin1("*100#"));
        for (int i = 0; i < 20; ++i)
            fakeSdkRespond(u"5 EUR");
        if (CUSSDService *service = CUSSDService::instance())
            service->unSDKRegisterEvent();
        delete dialog();
        CUSSDService::Destroy();
        USSDLogic::Destroy();
    }
    QVERIFY(fakeSdkWaitIdle());
}

void FaultySdkTest::textWithoutItsZeroUnitEndsSomewhere()
{
    const std::vector<unsigned short> units = unitsWithoutEnd(SdkRecords::MOST_UNITS + 1000);
    QCOMPARE(SdkRecords::textFromUnits(units.data()).length(), SdkRecords::MOST_UNITS);
}

void FaultySdkTest::blockingRequestIsWaitedFor()
{
    FakeAnswer slow = fakeReply(u"5 EUR");
    slow.block = std::chrono::milliseconds(200);
    fakeSdkSetAnswer(slow);
    open();
    send(latin1("*100#"));
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    drainEvents();
    QCOMPARE(shownLines().mid(0, 2),
             (QStringList{sentLine(latin1("*100#")), receivedLine(latin1("5 EUR"))}));
    QVERIFY(isIdle());
}

void FaultySdkTest::responseDuringABlockingRequestIsShown()
{
    FakeAnswer early = fakeReply(u"5 EUR");
    early.beforeReturn = true;
    fakeSdkSetAnswer(early);
    open();
    send(latin1("*100#"));
    drainEvents();
    QCOMPARE(history()->toPlainText().count(latin1("5 EUR")), 1);
    QVERIFY(isIdle());
}

void FaultySdkTest::blockingRequestThatFailsIsSaid()
{
    allowWarning("TKSV_USSDSrv_Request failed");
    FakeAnswer refused = fakeRefused(1, TKSV_STATUS_DEVICE_TIMEOUT);
    refused.block = std::chrono::milliseconds(200);
    fakeSdkSetAnswer(refused);
    open();
    send(latin1("*100#"));
    drainEvents();
    QVERIFY(history()->toPlainText().contains(text("USSD_CODE_TIME_OUT")));
    QVERIFY(isIdle());
}

/// Tests that shutting down the plug-in waits for a thread of the SDK that is blocked in a request
/// for the next command.
void FaultySdkTest::endWaitsForABlockingRequest()
{
    FakeAnswer slow = fakeSilence();
    slow.block = std::chrono::milliseconds(300);
    fakeSdkScript({fakeSilence(), slow});
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    int status = 0;
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, latin1("*1#")), &status);
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, latin1("*2#")), &status);
    fakeSdkRespond(u"5 EUR");
    QVERIFY(fakeSdkWaitForRequests(2)); // the second request is blocked
    logic->unSDKRegisterEvent();
    USSDLogic::Destroy();
    QVERIFY(fakeSdkCalls("TKSV_USSDSrv_Request").back().returned);
}

USSD_TEST_MAIN(FaultySdkTest)
#include "faulty_sdk_test.moc"
