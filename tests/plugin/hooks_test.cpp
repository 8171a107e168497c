#include "LogicListener.h"
#include "PluginTest.h"

#include <climits>

#include "fake_tksv.h"
#include "HostState.h"
#include "requests/USSDLogic.h"

/** Tests how the plug-in handles device events and events about short messages. */
class HooksTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    void raise(int deviceEvent);
    void start();

    USSDLogic *m_logic = nullptr;
    QScopedPointer<LogicListener> m_listener;

private slots:
    void deviceEventAnswersTheHeadAndEmptiesTheList_data();
    void deviceEventAnswersTheHeadAndEmptiesTheList();
    void deviceEventWithEmptyListIsTakenInSilence();
    void otherDeviceEventIsNotTaken();
    void deviceEventWithoutSingletonIsTaken();
    void deviceEventLeavesTheTimerRunning();
    void statusSevenThenEightIsFollowed();
    void sameStatusAgainIsToldAgain();
    void otherStatusChangesNothing();
    void statusWithoutDataChangesNothing();
    void readinessToldDuringConstructionIsNotLost();
    void newSingletonCannotSendUntilToldSo();
    void failedSendResultCarriesBothTexts();
    void successfulSendResultCarriesBothTexts();
    void sendResultWithoutDataTellsNothing();
    void unknownSmsEventIsLogged();
    void anyResultButZeroIsAFailure_data();
    void anyResultButZeroIsAFailure();
    void smsEventDuringShutDownIsIgnored();
    void sendResultDuringShutDownIsIgnored();
    void smsEventWithoutSingletonIsNotTaken();
    void unregisteringTakesAllThreeCallbacksOff();
};

void HooksTest::setUp()
{
    PluginTest::setUp();
    start();
}

void HooksTest::start()
{
    m_logic = USSDLogic::GetUSSDLogicInstance();
    m_listener.reset(new LogicListener(m_logic));
}

void HooksTest::tearDown()
{
    HostCore::HostState::setShuttingDown(false);
    m_listener.reset();
    PluginTest::tearDown();
}

void HooksTest::raise(int deviceEvent)
{
    const size_t before = fakeSdkDeliveries(FakeService::Device).size();
    fakeSdkRaiseDeviceEvent(deviceEvent);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Device, before + 1));
    drainEvents();
}

// ---- device --------------------------------------------------------------------------------

void HooksTest::deviceEventAnswersTheHeadAndEmptiesTheList_data()
{
    QTest::addColumn<int>("event");
    QTest::newRow("gone") << 6016;
    QTest::newRow("reset") << 6601;
}

void HooksTest::deviceEventAnswersTheHeadAndEmptiesTheList()
{
    QFETCH(int, event);
    int status = 0;
    m_logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_MSISDN, QStringLiteral("*1#")), &status);
    m_logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_BALANCE, QStringLiteral("*2#")), &status);
    m_logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QStringLiteral("*3#")), &status);
    raise(event);
    QCOMPARE(m_listener->answers.count(), 1);
    QCOMPARE(m_listener->answers.at(0).first, int(COMPONENT_MSISDN));
    QCOMPARE(m_listener->answers.at(0).second, USSDLogic::tr(QStringLiteral("USSD_CODE_FAILED")));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Device).back().result), 1);
    fakeSdkRespond(u"late");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QCOMPARE(timesLogged("sending USSD commond list is empty"), 1);
}

void HooksTest::deviceEventWithEmptyListIsTakenInSilence()
{
    raise(6016);
    QVERIFY(m_listener->answers.isEmpty());
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Device).back().result), 1);
    QCOMPARE(timesLogged("OnDeviceMgrInitEvent Enter 6016"), 1);
}

void HooksTest::otherDeviceEventIsNotTaken()
{
    int status = 0;
    m_logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QStringLiteral("*1#")), &status);
    raise(6017);
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Device).back().result), 0);
    QVERIFY(m_listener->answers.isEmpty());
}

void HooksTest::deviceEventWithoutSingletonIsTaken()
{
    USSDLogic::Destroy();
    raise(6016);
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Device).back().result), 1);
}

void HooksTest::deviceEventLeavesTheTimerRunning()
{
    const ReplyTimes times = {60000, 25};
    USSDLogic::setReplyTimes(times);
    int status = 0;
    m_logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QStringLiteral("*1#")), &status);
    raise(6016);
    QElapsedTimer elapsed;
    elapsed.start();
    m_logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QStringLiteral("*2#")), &status);
    QVERIFY(elapsed.elapsed() >= 24); // the call has waited for the earlier time-out
}

// ---- readiness -----------------------------------------------------------------------------

void HooksTest::statusSevenThenEightIsFollowed()
{
    QVERIFY(!m_logic->CanSendSMS());
    fakeSdkRaiseSmsStatus(7);
    QTRY_COMPARE(m_listener->readiness.count(), 1);
    QVERIFY(m_logic->CanSendSMS());
    QCOMPARE(m_listener->readiness.takeFirst(), true);
    fakeSdkRaiseSmsStatus(8);
    QTRY_COMPARE(m_listener->readiness.count(), 1);
    QVERIFY(!m_logic->CanSendSMS());
    QCOMPARE(m_listener->readiness.takeFirst(), false);
    QCOMPARE(timesLogged(": Sending  EVENT_SMS_ONSTATUSCHANGED"), 2);
    QCOMPARE(timesLogged(":: Reciceved  CAN_SEND_SMS"), 1);
    QCOMPARE(timesLogged(":: Reciceved  CANNOT_SEND_SMS"), 1);
}

void HooksTest::sameStatusAgainIsToldAgain()
{
    for (int status : {7, 7, 8, 8})
        fakeSdkRaiseSmsStatus(status);
    QTRY_COMPARE(m_listener->readiness.count(), 4);
    QCOMPARE(m_listener->readiness, (QList<bool>{true, true, false, false}));
}

void HooksTest::otherStatusChangesNothing()
{
    fakeSdkRaiseSmsStatus(7);
    QTRY_VERIFY(m_logic->CanSendSMS());
    fakeSdkRaiseSmsStatus(9);
    QTRY_COMPARE(timesLogged(": EVENT_SMS_ONSTATUSCHANGED Caught in Default case "), 1);
    QVERIFY(m_logic->CanSendSMS());
}

void HooksTest::statusWithoutDataChangesNothing()
{
    fakeSdkRaiseSmsEvent(2);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Sms).at(0).result), 1);
    drainEvents();
    QVERIFY(m_listener->readiness.isEmpty());
}

/// Tests that a readiness event is not lost. The device raises this event only once, soon after the
/// call-back has been registered, when the singleton may still be under construction.
void HooksTest::readinessToldDuringConstructionIsNotLost()
{
    for (int i = 0; i < 20; ++i) {
        m_logic->unSDKRegisterEvent();
        USSDLogic::Destroy();
        fakeSdkSetCanSendSms(true);
        start();
        QTRY_VERIFY(m_logic->CanSendSMS());
    }
}

void HooksTest::newSingletonCannotSendUntilToldSo()
{
    fakeSdkRaiseSmsStatus(7);
    QTRY_VERIFY(m_logic->CanSendSMS());
    m_logic->unSDKRegisterEvent();
    USSDLogic::Destroy();
    start();
    QVERIFY(!m_logic->CanSendSMS());
}

// ---- send results ----------------------------------------------------------------------------

void HooksTest::failedSendResultCarriesBothTexts()
{
    fakeSdkRaiseSmsResult(5, u"1200", u"WEATHER");
    QTRY_COMPARE(m_listener->smsResults.count(), 1);
    const QList<QVariant> expected = {false, QStringLiteral("1200"), QStringLiteral("WEATHER")};
    QCOMPARE(m_listener->smsResults.at(0), expected);
    QCOMPARE(timesLogged(": Failed to send the message(EVENT_SMS_ONSENDRESULT)"), 1);
}

void HooksTest::successfulSendResultCarriesBothTexts()
{
    fakeSdkRaiseSmsResult(0, u"1200", u"\u20AC");
    QTRY_COMPARE(m_listener->smsResults.count(), 1);
    const QList<QVariant> expected = {true, QStringLiteral("1200"), QString(QChar(0x20AC))};
    QCOMPARE(m_listener->smsResults.at(0), expected);
    QCOMPARE(timesLogged(": Successfully sent the message(EVENT_SMS_ONSENDRESULT)"), 1);
}

void HooksTest::anyResultButZeroIsAFailure_data()
{
    QTest::addColumn<int>("result");
    for (int result : {1, 5, -1, INT_MIN, INT_MAX})
        QTest::newRow(qPrintable(QString::number(result))) << result;
}

void HooksTest::anyResultButZeroIsAFailure()
{
    QFETCH(int, result);
    fakeSdkRaiseSmsResult(result, u"1200", u"WEATHER");
    QTRY_COMPARE(m_listener->smsResults.count(), 1);
    QCOMPARE(m_listener->smsResults.at(0).at(0).toBool(), false);
}

void HooksTest::sendResultWithoutDataTellsNothing()
{
    fakeSdkRaiseSmsEvent(0);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 1));
    QCOMPARE(timesLogged(": Obtained the EVENT_SMS_ONSENDRESULT"), 1);
    drainEvents();
    QVERIFY(m_listener->smsResults.isEmpty());
}

void HooksTest::unknownSmsEventIsLogged()
{
    fakeSdkRaiseSmsEvent(77);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Sms).at(0).result), 1);
    QCOMPARE(timesLogged("SmsCallBackMethod:Caught in Default case "), 1);
}

void HooksTest::smsEventDuringShutDownIsIgnored()
{
    HostCore::HostState::setShuttingDown(true);
    fakeSdkRaiseSmsStatus(7);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Sms).at(0).result), 1);
    QCOMPARE(timesLogged("SmsCallBackMethod:HA is shutting down "), 1);
    drainEvents();
    QVERIFY(m_listener->readiness.isEmpty());
    QVERIFY(!m_logic->CanSendSMS());
}

void HooksTest::sendResultDuringShutDownIsIgnored()
{
    HostCore::HostState::setShuttingDown(true);
    fakeSdkRaiseSmsResult(0, u"1200", u"WEATHER");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Sms).at(0).result), 1);
    QCOMPARE(timesLogged("SmsCallBackMethod:HA is shutting down "), 1);
    QCOMPARE(timesLogged("SmsCallBackMethod Exit"), 0);
    QCOMPARE(timesLogged("EVENT_SMS_ONSENDRESULT"), 0);
    drainEvents();
    QVERIFY(m_listener->smsResults.isEmpty());
}

void HooksTest::smsEventWithoutSingletonIsNotTaken()
{
    USSDLogic::Destroy();
    fakeSdkRaiseSmsStatus(7);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Sms).at(0).result), 0);
}

void HooksTest::unregisteringTakesAllThreeCallbacksOff()
{
    QCOMPARE(fakeSdkRegistered(FakeService::Ussd), size_t(1));
    QCOMPARE(fakeSdkRegistered(FakeService::Device), size_t(1));
    QCOMPARE(fakeSdkRegistered(FakeService::Sms), size_t(1));
    m_logic->unSDKRegisterEvent();
    QCOMPARE(fakeSdkRegistered(FakeService::Ussd), size_t(0));
    QCOMPARE(fakeSdkRegistered(FakeService::Device), size_t(0));
    QCOMPARE(fakeSdkRegistered(FakeService::Sms), size_t(0));
    QCOMPARE(timesLogged(" before calling TKSV_USSDSrv_UnRegisterUSSDCallback(): retVal=0"), 1);
}

USSD_TEST_MAIN(HooksTest)

#include "hooks_test.moc"
