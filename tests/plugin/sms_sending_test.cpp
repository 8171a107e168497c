#include "SmsDialogTest.h"

/** Tests when the USSD-SMS dialog sends a command or a message, and what it sends. */
class SmsSendingTest : public SmsDialogTest
{
    Q_OBJECT

private slots:
    // ---- when the button is enabled
    void ussdWithoutInputIsReadyAtOnce();
    void ussdWithInputWaitsForIt();
    void ussdWithoutCommandIsNotReady();
    void smsWithoutInputNeedsReadiness();
    void smsWithoutNumberIsNotReady();
    void smsWithInputNeedsReadinessWhileTyping();
    void emptyNumberIsSentWhenTyped();
    void emptyNumberIsEnabledByReadiness();
    void emptyCommandIsEnabledByReadinessButNotSent();
    void typingDoesNotEnableAnEmptyCommand();
    void typedTextOfMinimumLengthIsEnoughButNotForReadiness();
    void tooShortTextIsNeverSent();
    void readinessIsIgnoredForUssd();
    void lostReadinessDisables();
    void readinessDoesNotEnableWhileBusy();

    // ---- USSD
    void commandIsSentAndAnswered();
    void placeholderIsReplacedWithTheInput();
    void commandWithoutPlaceholderIsSentUnchanged();
    void bothPlaceholdersAreReplaced();
    void capitalPlaceholderIsLeft();
    void placeholderIsGoneUntilSelectedAnew();
    void commandsGoOutForThisComponent();
    void answersForOthersAreIgnored();
    void answerEqualToTheWaitingTextKeepsBusy();
    void emptyAnswerLeavesTheLabelEmpty();
    void timeOutIsShown();
    void refusedCommandIsShownAsFailed();
    void deviceTimeOutIsShownAsTimeOut();
    void tooLongCommandIsShownAsFailed();
    void deviceThatGoesAwayEndsIt();
    void oldAnswerStaysUntilTheNextOne();
    void queuedCommandWaitsBehindAnother();

    // ---- SMS
    void smsIsSentToItsNumber();
    void smsResultForAnotherNumberIsIgnored();
    void smsResultForAnotherTextIsIgnored();
    void failedSmsIsShownAsFailed();
    void smsResultWhileNotBusyIsShown_data();
    void smsResultWhileNotBusyIsShown();
    void smsThatCannotBeMadeIsShownAsFailed();
    void smsThatIsRefusedIsShownAsFailed();
    void smsRecordsAreGivenBack();
    void recordOfAFailedCreateIsGivenBack();
    void releaseErrorIsLoggedOnly();
    void lostReadinessAtTheLastMomentFails();
    void smsLogLines();

    // ---- neither USSD nor SMS
    void controlOfNoKindSendsNothing();
    void withoutLogicShortMessagesAreSent();
    void withoutLogicNoCommandIsSent();

    // ---- busy
    void whileBusyEverythingIsDisabled();
    void whileBusySelectionIsIgnored();
    void clickWhileBusySendsNothing();
    void focusGoesBackToTheTree();
    void returnSendsFromTheInput();
    void returnInTheTreeSendsNothing();
    void heldReturnDoesNotSendAgain();
    void escapeClosesTheFrame();
};

// ---- when the button is enabled -----------------------------------------------------------------

void SmsSendingTest::ussdWithoutInputIsReadyAtOnce()
{
    select(PREPAID);
    QVERIFY(button()->isEnabled());
}

void SmsSendingTest::ussdWithInputWaitsForIt()
{
    select(CALL);
    QVERIFY(!button()->isEnabled());
    type(latin1("12"));
    QVERIFY(!button()->isEnabled());
    type(latin1("3"));
    QVERIFY(button()->isEnabled());
    QTest::keyClick(input(), Qt::Key_Backspace);
    QVERIFY(!button()->isEnabled());
}

void SmsSendingTest::ussdWithoutCommandIsNotReady()
{
    select(NOTHING);
    QVERIFY(!button()->isEnabled());
}

void SmsSendingTest::smsWithoutInputNeedsReadiness()
{
    select(TARIFF);
    QVERIFY(!button()->isEnabled());
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    QVERIFY(button()->isEnabled());
    select(BALANCE);
    select(TARIFF);
    QVERIFY(button()->isEnabled());
}

void SmsSendingTest::smsWithoutNumberIsNotReady()
{
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    select(NOWHERE);
    QVERIFY(!button()->isEnabled());
}

void SmsSendingTest::smsWithInputNeedsReadinessWhileTyping()
{
    select(WEATHER);
    type(latin1("Oslo"));
    QVERIFY(!button()->isEnabled());
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    QVERIFY(button()->isEnabled());
    type(latin1("x"));
    QVERIFY(button()->isEnabled());
}

/// Tests that the typed text determines whether the message is sent, even if the number is empty.
/// This unusual rule is deliberate. The next two tests depend on it as well.
void SmsSendingTest::emptyNumberIsSentWhenTyped()
{
    openWith(config().replace("<number>1200</number>", "<number></number>"));
    select(WEATHER);
    type(latin1("Oslo"));
    QVERIFY(button()->isEnabled()); // although the device is not ready
    press();
    QCOMPARE(smsSent(), 1);
    QCOMPARE(fakeSdkCalls("TKSV_SMSSrv_CreateSMSRecord").front().number, std::u16string());
    QVERIFY(isBusy());
}

void SmsSendingTest::emptyNumberIsEnabledByReadiness()
{
    select(NOWHERE);
    QVERIFY(!button()->isEnabled());
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    QVERIFY(button()->isEnabled());
}

/// Tests that the device's readiness enables the button for an empty message, but that pressing the
/// button does not send the message. The field then stays disabled until a service is selected.
void SmsSendingTest::emptyCommandIsEnabledByReadinessButNotSent()
{
    openWith(config().replace("WEATHER %s", ""));
    select(WEATHER);
    type(latin1("Oslo"));
    QVERIFY(!button()->isEnabled());
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    QVERIFY(button()->isEnabled());
    press();
    QCOMPARE(smsSent(), 0);
    QVERIFY(!input()->isEnabled());
    QVERIFY(button()->isEnabled());
    QVERIFY(tree()->isEnabled());
    QCOMPARE(result(), QString());
}

void SmsSendingTest::typingDoesNotEnableAnEmptyCommand()
{
    openWith(config().replace("WEATHER %s", ""));
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    select(WEATHER);
    type(latin1("Oslo"));
    QVERIFY(!button()->isEnabled());
}

/// Tests that a text of the minimum length enables the button when it is typed, but not when the
/// device becomes ready. This difference is deliberate.
void SmsSendingTest::typedTextOfMinimumLengthIsEnoughButNotForReadiness()
{
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    select(WEATHER);
    type(latin1("abc"));
    QVERIFY(button()->isEnabled());
    deviceSays(TKSV_SMS_STATUS_CANNOT_SEND);
    QVERIFY(!button()->isEnabled());
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    QVERIFY(!button()->isEnabled());
    type(latin1("d"));
    QVERIFY(button()->isEnabled());
    deviceSays(TKSV_SMS_STATUS_CANNOT_SEND);
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    QVERIFY(button()->isEnabled());
}

void SmsSendingTest::tooShortTextIsNeverSent()
{
    select(CALL);
    type(latin1("12"));
    QTest::keyClick(input(), Qt::Key_Return);
    press();
    QCOMPARE(requests(), QStringList());
}

void SmsSendingTest::readinessIsIgnoredForUssd()
{
    select(CALL);
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    QVERIFY(!button()->isEnabled());
    type(latin1("1234"));
    deviceSays(TKSV_SMS_STATUS_CANNOT_SEND);
    QVERIFY(button()->isEnabled());
}

void SmsSendingTest::lostReadinessDisables()
{
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    select(TARIFF);
    QVERIFY(button()->isEnabled());
    deviceSays(TKSV_SMS_STATUS_CANNOT_SEND);
    QVERIFY(!button()->isEnabled());
}

void SmsSendingTest::readinessDoesNotEnableWhileBusy()
{
    sendTariff();
    deviceSays(TKSV_SMS_STATUS_CANNOT_SEND);
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    QVERIFY(isBusy());
}

// ---- USSD ---------------------------------------------------------------------------------------

void SmsSendingTest::commandIsSentAndAnswered()
{
    press();
    QCOMPARE(requests(), QStringList() << latin1("*100#"));
    QVERIFY(isBusy());
    QCOMPARE(result(), QString());
    networkSays(latin1("Balance: 5.00"));
    QCOMPARE(result(), latin1("Balance: 5.00"));
    QVERIFY(isIdle());
}

void SmsSendingTest::placeholderIsReplacedWithTheInput()
{
    select(CALL);
    type(latin1("5551234"));
    press();
    QCOMPARE(requests(), QStringList() << latin1("*140*5551234#"));
}

void SmsSendingTest::commandWithoutPlaceholderIsSentUnchanged()
{
    select(FIXED);
    type(latin1("5551234"));
    press();
    QCOMPARE(requests(), QStringList() << latin1("*5#"));
}

void SmsSendingTest::bothPlaceholdersAreReplaced()
{
    select(TWICE);
    type(latin1("555"));
    press();
    QCOMPARE(requests().value(0).left(11), latin1("*1*555*555*"));
}

void SmsSendingTest::capitalPlaceholderIsLeft()
{
    select(TWICE);
    type(latin1("555"));
    press();
    QCOMPARE(requests(), QStringList() << latin1("*1*555*555*%S#"));
}

void SmsSendingTest::placeholderIsGoneUntilSelectedAnew()
{
    select(CALL);
    type(latin1("555"));
    press();
    networkSays(latin1("done"));
    input()->clear();
    type(latin1("777"));
    press();
    networkSays(latin1("done"));
    QCOMPARE(requests().last(), latin1("*140*555#"));
    select(BALANCE);
    select(CALL);
    type(latin1("777"));
    press();
    QCOMPARE(requests().last(), latin1("*140*777#"));
}

void SmsSendingTest::commandsGoOutForThisComponent()
{
    LogicListener listener(USSDLogic::GetUSSDLogicInstance());
    press();
    networkSays(latin1("answer"));
    QCOMPARE(listener.answers.count(), 1);
    QCOMPARE(listener.answers.first().first, int(COMPONENT_USSD_SMS));
}

void SmsSendingTest::answersForOthersAreIgnored()
{
    press();
    m_dialog->OnResponseUSSDSMSReceived(COMPONENT_GENERAL, latin1("not mine"));
    QVERIFY(isBusy());
    QCOMPARE(result(), QString());
}

void SmsSendingTest::answerEqualToTheWaitingTextKeepsBusy()
{
    press();
    m_dialog->OnResponseUSSDSMSReceived(COMPONENT_USSD_SMS, text("USSD_CODE_WAITTING"));
    QVERIFY(isBusy());
    QCOMPARE(result(), text("USSD_CODE_WAITTING"));
    m_dialog->OnResponseUSSDSMSReceived(COMPONENT_USSD_SMS, latin1("5.00"));
    QVERIFY(isIdle());
}

void SmsSendingTest::emptyAnswerLeavesTheLabelEmpty()
{
    press();
    networkSays(latin1("5 EUR"));
    press();
    networkSays(QString());
    QCOMPARE(result(), QString());
    QVERIFY(isIdle());
}

void SmsSendingTest::timeOutIsShown()
{
    const ReplyTimes quick = {50, 3000};
    USSDLogic::setReplyTimes(quick);
    press();
    QTRY_COMPARE(result(), text("USSD_CODE_TIME_OUT"));
    QVERIFY(isIdle());
}

void SmsSendingTest::refusedCommandIsShownAsFailed()
{
    fakeSdkSetAnswer(fakeRefused(1, 3));
    press();
    QCOMPARE(result(), text("IDS_SMS_SEND_FAILED"));
    QVERIFY(isIdle());
}

void SmsSendingTest::deviceTimeOutIsShownAsTimeOut()
{
    fakeSdkSetAnswer(fakeRefused(1, TKSV_STATUS_DEVICE_TIMEOUT));
    press();
    QCOMPARE(result(), text("USSD_CODE_TIME_OUT"));
    QVERIFY(isIdle());
}

void SmsSendingTest::tooLongCommandIsShownAsFailed()
{
    select(TOO_LONG);
    press();
    QCOMPARE(requests(), QStringList());
    QCOMPARE(result(), text("IDS_SMS_SEND_FAILED"));
    QVERIFY(isIdle());
}

void SmsSendingTest::deviceThatGoesAwayEndsIt()
{
    press();
    fakeSdkRaiseDeviceEvent(TKSV_DEV_EVENT_GONE);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
    QCOMPARE(result(), text("USSD_CODE_FAILED"));
    QVERIFY(isIdle());
}

void SmsSendingTest::oldAnswerStaysUntilTheNextOne()
{
    press();
    networkSays(latin1("Balance: 5.00"));
    press();
    QVERIFY(isBusy());
    QCOMPARE(result(), latin1("Balance: 5.00"));
    networkSays(latin1("Balance: 4.00"));
    QCOMPARE(result(), latin1("Balance: 4.00"));
}

void SmsSendingTest::queuedCommandWaitsBehindAnother()
{
    int status = 0;
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, latin1("*1#")), &status);
    press();
    QVERIFY(isBusy());
    QCOMPARE(requests(), QStringList() << latin1("*1#"));
    networkSays(latin1("first"));
    QVERIFY(isBusy());
    networkSays(latin1("second"));
    QCOMPARE(result(), latin1("second"));
}

// ---- SMS ----------------------------------------------------------------------------------------

void SmsSendingTest::smsIsSentToItsNumber()
{
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    select(WEATHER);
    type(latin1("Oslo"));
    press();
    QVERIFY(isBusy());
    QCOMPARE(result(), text("USSD_CODE_WAITTING"));
    const std::vector<FakeCall> made = fakeSdkCalls("TKSV_SMSSrv_CreateSMSRecord");
    QCOMPARE(made.size(), size_t(1));
    QCOMPARE(QString::fromStdU16String(made[0].number), latin1("1200"));
    QCOMPARE(QString::fromStdU16String(made[0].text), latin1("WEATHER Oslo"));
    QCOMPARE(smsSent(), 1);
    smsFared(0, latin1("1200"), latin1("WEATHER Oslo"));
    QCOMPARE(result(), QString());
    QVERIFY(isIdle());
}

void SmsSendingTest::smsResultForAnotherNumberIsIgnored()
{
    sendTariff();
    smsFared(0, latin1("1201"), latin1("TARIFF"));
    QVERIFY(isBusy());
    QCOMPARE(result(), text("USSD_CODE_WAITTING"));
}

void SmsSendingTest::smsResultForAnotherTextIsIgnored()
{
    sendTariff();
    smsFared(1, latin1("1200"), latin1("tariff"));
    QVERIFY(isBusy());
    QCOMPARE(result(), text("USSD_CODE_WAITTING"));
}

void SmsSendingTest::failedSmsIsShownAsFailed()
{
    sendTariff();
    smsFared(7, latin1("1200"), latin1("TARIFF"));
    QCOMPARE(result(), text("IDS_SMS_SEND_FAILED"));
    QVERIFY(isIdle());
}

void SmsSendingTest::smsResultWhileNotBusyIsShown_data()
{
    QTest::addColumn<int>("fared");
    QTest::addColumn<QString>("shown");
    QTest::newRow("sent") << 0 << QString();
    QTest::newRow("failed") << 7 << text("IDS_SMS_SEND_FAILED");
}

/// Tests that a result is shown even if the dialog is not busy. Such a result may belong to another
/// program that has sent the same text to the same number.
void SmsSendingTest::smsResultWhileNotBusyIsShown()
{
    QFETCH(int, fared);
    select(TARIFF);
    QVERIFY(!button()->isEnabled());
    m_dialog->OnResponseUSSDSMSReceived(COMPONENT_USSD_SMS, latin1("an answer"));
    deviceSays(TKSV_SMS_STATUS_CANNOT_SEND);
    QVERIFY(!button()->isEnabled());
    smsFared(fared, latin1("1200"), latin1("TARIFF"));
    QTEST(result(), "shown");
    QVERIFY(isIdle());
}

void SmsSendingTest::smsThatCannotBeMadeIsShownAsFailed()
{
    fakeSdkSetResult("TKSV_SMSSrv_CreateSMSRecord", 9);
    sendTariff();
    QCOMPARE(smsSent(), 0);
    QCOMPARE(result(), text("IDS_SMS_SEND_FAILED"));
    QVERIFY(isIdle());
}

void SmsSendingTest::smsThatIsRefusedIsShownAsFailed()
{
    fakeSdkSetResult("TKSV_SMSSrv_SendMsg", 9);
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    select(WEATHER);
    type(latin1("Oslo"));
    press();
    QCOMPARE(result(), text("IDS_SMS_SEND_FAILED"));
    QVERIFY(isIdle());
}

void SmsSendingTest::smsRecordsAreGivenBack()
{
    sendTariff();
    QCOMPARE(fakeSdkLiveSmsRecords(), size_t(0));
    QCOMPARE(fakeSdkBadSmsRecords(), size_t(0));
    fakeSdkSetResult("TKSV_SMSSrv_SendMsg", 9);
    QString number = latin1("1");
    QCOMPARE(m_dialog->SendSMS(&number, &number), 1);
    QCOMPARE(fakeSdkLiveSmsRecords(), size_t(0));
    QCOMPARE(int(fakeSdkCalls("TKSV_SMSSrv_ReleaseSMSRecord").size()), 2);
}

void SmsSendingTest::recordOfAFailedCreateIsGivenBack()
{
    fakeSdkSetResult("TKSV_SMSSrv_CreateSMSRecord", 9);
    fakeSdkSetFailedCreateLeavesRecord(true);
    QString number = latin1("1");
    QCOMPARE(m_dialog->SendSMS(&number, &number), 1);
    QCOMPARE(smsSent(), 0);
    QCOMPARE(int(fakeSdkCalls("TKSV_SMSSrv_ReleaseSMSRecord").size()), 1);
    QCOMPARE(fakeSdkLiveSmsRecords(), size_t(0));
}

void SmsSendingTest::releaseErrorIsLoggedOnly()
{
    fakeSdkSetResult("TKSV_SMSSrv_ReleaseSMSRecord", 9);
    QString number = latin1("1");
    QCOMPARE(m_dialog->SendSMS(&number, &number), 0);
    QCOMPARE(timesLogged("SendSMS: TKSV_SMSSrv_ReleaseSMSRecord returned error"), 1);
}

/// Tests that a message is not sent if the button is clicked after the device has become unable to
/// send, but before the queued signal is processed. The field deliberately stays disabled until a
/// service is selected.
void SmsSendingTest::lostReadinessAtTheLastMomentFails()
{
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    select(WEATHER);
    type(latin1("Oslo"));
    fakeSdkRaiseSmsStatus(TKSV_SMS_STATUS_CANNOT_SEND);
    QVERIFY(fakeSdkWaitIdle()); // does not process the queued signal
    press();
    QCOMPARE(result(), text("IDS_SMS_SEND_FAILED"));
    QCOMPARE(smsSent(), 0);
    QVERIFY(tree()->isEnabled());
    QVERIFY(!input()->isEnabled());
    select(TARIFF);
    select(WEATHER);
    QVERIFY(input()->isEnabled());
}

void SmsSendingTest::smsLogLines()
{
    expectWarning("The Error code returned by the TKSV_SMSSrv_CreateSMSRecord = 0");
    sendTariff();
    QCOMPARE(timesLogged("USSDSMSDlg.cpp: SendSMS:Entered "), 1);
    QCOMPARE(timesLogged("SendSMS: Calling TKSV_SMSSrv_SendMsg ()"), 1);
    QCOMPARE(timesLogged("SendSMS: TKSV_SMSSrv_SendMsg () returned 0"), 1);
}

// ---- neither USSD nor SMS -----------------------------------------------------------------------

void SmsSendingTest::controlOfNoKindSendsNothing()
{
    select(NO_KIND);
    type(latin1("555"));
    QVERIFY(button()->isEnabled());
    press();
    QCOMPARE(requests(), QStringList());
    QCOMPARE(smsSent(), 0);
    QVERIFY(tree()->isEnabled());
}

void SmsSendingTest::withoutLogicShortMessagesAreSent()
{
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    select(TARIFF);
    USSDLogic::Destroy();
    press();
    QCOMPARE(smsSent(), 1);
    QCOMPARE(result(), text("USSD_CODE_WAITTING"));
    QVERIFY(isBusy());
}

void SmsSendingTest::withoutLogicNoCommandIsSent()
{
    select(CALL);
    type(latin1("555"));
    USSDLogic::Destroy();
    press();
    QCOMPARE(requests(), QStringList());
    QCOMPARE(result(), text("IDS_SMS_SEND_FAILED"));
    QVERIFY(isIdle());
}

// ---- busy ---------------------------------------------------------------------------------------

void SmsSendingTest::whileBusyEverythingIsDisabled()
{
    select(CALL);
    type(latin1("555"));
    press();
    QVERIFY(!button()->isEnabled());
    QVERIFY(!input()->isEnabled());
    QVERIFY(!tree()->isEnabled());
    networkSays(latin1("done"));
    QVERIFY(button()->isEnabled());
    QVERIFY(input()->isEnabled());
    QVERIFY(tree()->isEnabled());
}

void SmsSendingTest::whileBusySelectionIsIgnored()
{
    press();
    select(PREPAID);
    QTest::keyClick(tree(), Qt::Key_Down);
    tree()->setCurrentItem(row(CALL)); // as a host might do
    QVERIFY(input()->isHidden());
    networkSays(latin1("5.00"));
    press();
    QCOMPARE(requests().last(), latin1("*100#"));
}

void SmsSendingTest::clickWhileBusySendsNothing()
{
    press();
    press();
    m_dialog->OnClickedUSSDSMSButton();
    QTest::keyClick(m_frame.data(), Qt::Key_Return);
    QCOMPARE(requests().count(), 1);
    networkSays(latin1("5.00"));
    QCOMPARE(requests().count(), 1);
}

void SmsSendingTest::focusGoesBackToTheTree()
{
    select(CALL);
    input()->setFocus();
    type(latin1("555"));
    QTest::keyClick(input(), Qt::Key_Return);
    QVERIFY(isBusy());
    QCOMPARE(focused(), static_cast<QWidget *>(m_dialog.data()));
    networkSays(latin1("done"));
    QCOMPARE(focused(), static_cast<QWidget *>(tree()));
    QTest::keyClick(focused(), Qt::Key_Up);
    QCOMPARE(tree()->currentItem(), row(BALANCE));
}

void SmsSendingTest::returnSendsFromTheInput()
{
    select(CALL);
    type(latin1("555"));
    QTest::keyClick(input(), Qt::Key_Return);
    QCOMPARE(requests(), QStringList() << latin1("*140*555#"));
}

void SmsSendingTest::returnInTheTreeSendsNothing()
{
    tree()->setFocus();
    QTest::keyClick(tree(), Qt::Key_Return);
    QTest::keyClick(tree(), Qt::Key_Enter);
    QCOMPARE(requests(), QStringList());
}

void SmsSendingTest::heldReturnDoesNotSendAgain()
{
    button()->setFocus();
    QTest::keyClick(focused(), Qt::Key_Return);
    QCOMPARE(requests().count(), 1);
    QTest::keyClick(focused(), Qt::Key_Return);
    networkSays(latin1("bought"));
    QTest::keyClick(focused(), Qt::Key_Return);
    QTest::keyClick(focused(), Qt::Key_Space);
    QCOMPARE(requests().count(), 1);
}

void SmsSendingTest::escapeClosesTheFrame()
{
    QSignalSpy closed(m_frame.data(), SIGNAL(dlgCloseEvent()));
    tree()->setFocus();
    QTest::keyClick(tree(), Qt::Key_Escape);
    QCOMPARE(closed.count(), 1);
}

USSD_TEST_MAIN(SmsSendingTest)
#include "sms_sending_test.moc"
