#include "PrepaidDialogTest.h"

/** Tests how the account window sends commands and handles answers. */
class PrepaidSendingTest : public PrepaidDialogTest
{
    Q_OBJECT

private slots:
    // ---- sending
    void waitingDisablesItsOwnControlsOnly_data();
    void waitingDisablesItsOwnControlsOnly();
    void answerEnablesThemAgain_data();
    void answerEnablesThemAgain();
    void refusalShowsNothingWhenNotBusy();
    void refusalIsShownWhenBusy_data();
    void refusalIsShownWhenBusy();
    void everyPlaceholderBecomesThePin();
    void withoutLogicNothingIsSent();

    // ---- answers
    void emptyAnswerIsShownAsFailure();
    void answersOfOtherComponentsTouchNothing_data();
    void answersOfOtherComponentsTouchNothing();
    void answersAreShownAsPlainText();
    void longAnswerScrollsAndDoesNotGrowTheWindow();
    void timeOutIsShown();

    // ---- topping up
    void topUpIsAnsweredAndTheBalanceFetchedAtOnce();
    void topUpByMessageBoxShowsItAndThenFetchesTheBalance();
    void topUpByMessageBoxWaitsWithoutSayingSo();
    void messageBoxShowsPlainTextAndStaysSmall();
    void topUpAloneIsAnswered();
    void topUpWithoutBalanceFetchesNone();
    void queuedTopUpWaitsForItsTurn();
    void failedTopUpIsToldLikeAnAnswer();
    void returnKeySendsOnce();
    void returnKeyObeysTheMinimum();
    void returnKeyWhileWaitingDoesNothing();
    void returnKeyElsewhereSendsNothing();
    void secondTopUpSendsTheNewPin();
    void heldReturnTopsUpOnce_data();
    void heldReturnTopsUpOnce();
    void heldReturnAfterARefusalTriesOnce();
    void heldReturnWithoutItsReleasesTopsUpOnce();
    void returnWhoseReleaseWentElsewhereCountsAgainAfterTyping();
    void heldReturnBehindAWaitingBalanceTopsUpOnce();
    void returnPressedAnewTopsUpAgain();

    // ---- focus
    void focusWaitsInTheStatusBoxAndComesBack();
    void focusThatTheUserMovedStays();

    // ---- language
    void textsFollowTheLanguage();
    void ownTextsInBoxesFollowTheLanguageAndAnswersDoNot();

    // ---- closing
    void closeButtonAsksToBeClosed();
    void closingDropsWhatWaits();
    void closedDialogMayBeDeletedAtOnce();
    void escapeClosesTheFrame();
    void dialogDestroyedBehindItsMessageBoxCostsNothing();
};

// ---- sending ------------------------------------------------------------------------------------

void PrepaidSendingTest::waitingDisablesItsOwnControlsOnly_data()
{
    QTest::addColumn<int>("component");
    QTest::newRow("balance") << int(COMPONENT_BALANCE);
    QTest::newRow("charge") << int(COMPONENT_CHARGE);
    QTest::newRow("msisdn") << int(COMPONENT_MSISDN);
}

void PrepaidSendingTest::waitingDisablesItsOwnControlsOnly()
{
    QFETCH(int, component);
    configure(Account());
    make();
    sendFrom(component);
    QCOMPARE(balanceButton()->isEnabled(), component != COMPONENT_BALANCE);
    QCOMPARE(activateButton()->isEnabled(), component != COMPONENT_CHARGE);
    QCOMPARE(chargeEdit()->isEnabled(), component != COMPONENT_CHARGE);
    QCOMPARE(msisdnButton()->isEnabled(), component != COMPONENT_MSISDN);
}

void PrepaidSendingTest::answerEnablesThemAgain_data()
{
    waitingDisablesItsOwnControlsOnly_data();
}

void PrepaidSendingTest::answerEnablesThemAgain()
{
    QFETCH(int, component);
    Account account;
    if (component == COMPONENT_CHARGE)
        // Prevents the balance request that would follow the top-up.
        account.balance.clear();
    configure(account);
    make();
    sendFrom(component);
    networkSays(QStringLiteral("done"));
    QVERIFY(balanceButton()->isEnabled());
    QVERIFY(activateButton()->isEnabled());
    QVERIFY(chargeEdit()->isEnabled());
    QVERIFY(msisdnButton()->isEnabled());
}

void PrepaidSendingTest::refusalShowsNothingWhenNotBusy()
{
    refuseAll(5);
    configure(Account());
    open();
    // The box still shows its initial text, because no time-out has occurred.
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_FAILED"));
    QVERIFY(balanceButton()->isEnabled());
}

void PrepaidSendingTest::refusalIsShownWhenBusy_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("time-out") << 5 << QByteArray("USSD_CODE_TIME_OUT");
    QTest::newRow("other") << 2 << QByteArray("USSD_CODE_FAILED");
}

void PrepaidSendingTest::refusalIsShownWhenBusy()
{
    QFETCH(int, status);
    QFETCH(QByteArray, key);
    configure(Account());
    open();
    networkSays(QStringLiteral("5 EUR"));
    networkSays(QStringLiteral("0170"));
    refuseAll(status);
    click(balanceButton());
    QCOMPARE(balanceBox()->toPlainText(), text(key.constData()));
    QVERIFY(balanceButton()->isEnabled());
}

void PrepaidSendingTest::everyPlaceholderBecomesThePin()
{
    configure(only(chargeItem(0, 0, 16, 4).replace("*101*%s#", "*101*%s*%S*%s#")));
    open();
    topUp(QStringLiteral("1234"));
    QCOMPARE(requests(), QStringList() << QStringLiteral("*101*1234*%S*1234#"));
    QCOMPARE(timesLogged(" USSD command = *101*%s*%S*%s#"), 1);
    QCOMPARE(timesLogged(" USSD command: *101*1234*%S*1234#"), 1);
}

void PrepaidSendingTest::withoutLogicNothingIsSent()
{
    configure(Account());
    make();
    USSDLogic::Destroy();
    dialog()->MyDoModal(PAID_TYPE_PREPAID);
    click(balanceButton());
    QCOMPARE(timesLogged("sendUSSDCommand Fail Exit: Logic is NULL"), 1);
    QVERIFY(requests().isEmpty());
}

// ---- answers ------------------------------------------------------------------------------------

void PrepaidSendingTest::emptyAnswerIsShownAsFailure()
{
    configure(Account());
    open();
    networkSays(QString());
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_FAILED"));
}

void PrepaidSendingTest::answersOfOtherComponentsTouchNothing_data()
{
    QTest::addColumn<int>("component");
    QTest::newRow("online") << int(COMPONENT_ONLINE_CHARGE);
    QTest::newRow("general") << int(COMPONENT_GENERAL);
    QTest::newRow("ussd-sms") << int(COMPONENT_USSD_SMS);
}

void PrepaidSendingTest::answersOfOtherComponentsTouchNothing()
{
    QFETCH(int, component);
    configure(Account());
    open();
    logicSays(component, QStringLiteral("hello"));
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_WAITTING"));
    QCOMPARE(msisdnBox()->toPlainText(), text("USSD_CODE_WAITTING"));
    QVERIFY(activateBox()->toPlainText().isEmpty());
    QVERIFY(!balanceButton()->isEnabled());
}

void PrepaidSendingTest::answersAreShownAsPlainText()
{
    const QString reply = QStringLiteral("<b>5</b> &amp; <img src='/dev/zero'> <a href='x'>y</a>");
    configure(Account());
    open();
    networkSays(reply);
    networkSays(reply);
    topUp(pin());
    networkSays(reply);
    for (QTextEdit *box : {balanceBox(), msisdnBox(), activateBox()}) {
        // The balance box is already waiting for the new balance.
        if (box != balanceBox())
            QCOMPARE(box->toPlainText(), reply);
        QVERIFY(box->isReadOnly());
        QVERIFY(!box->textInteractionFlags().testFlag(Qt::LinksAccessibleByMouse));
    }
}

void PrepaidSendingTest::longAnswerScrollsAndDoesNotGrowTheWindow()
{
    configure(Account());
    open();
    const QSize wanted = dialog()->GetSize();
    const QSize before = dialog()->size();
    const QRect place = balanceBox()->geometry();
    const QString reply(10000, QLatin1Char('x'));
    networkSays(reply);
    networkSays(QString(5000, QLatin1Char('\n')));
    QCOMPARE(balanceBox()->toPlainText(), reply);
    QCOMPARE(dialog()->GetSize(), wanted);
    QCOMPARE(dialog()->size(), before);
    QCOMPARE(balanceBox()->geometry(), place);
    QVERIFY(balanceBox()->verticalScrollBar()->maximum() > 0);
    QCOMPARE(balanceBox()->horizontalScrollBar()->maximum(), 0);
    for (const QTextEdit *box : {balanceBox(), activateBox(), msisdnBox()})
        QCOMPARE(box->minimumHeight(), box->maximumHeight());
}

void PrepaidSendingTest::timeOutIsShown()
{
    const ReplyTimes impatient = {1, 1};
    USSDLogic::setReplyTimes(impatient);
    configure(Account());
    open();
    QTRY_COMPARE(balanceBox()->toPlainText(), text("USSD_CODE_TIME_OUT"));
    QTRY_COMPARE(msisdnBox()->toPlainText(), text("USSD_CODE_TIME_OUT"));
    QVERIFY(balanceButton()->isEnabled());
}

// ---- topping up ---------------------------------------------------------------------------------

void PrepaidSendingTest::topUpIsAnsweredAndTheBalanceFetchedAtOnce()
{
    configure(Account());
    open();
    networkSays(QStringLiteral("5 EUR"));
    networkSays(QStringLiteral("0170"));
    topUp(pin());
    QCOMPARE(requests().last(), QStringLiteral("*101*123456789012#"));
    QCOMPARE(activateBox()->toPlainText(), text("USSD_CODE_WAITTING"));
    networkSays(QStringLiteral("10 EUR added"));
    QCOMPARE(activateBox()->toPlainText(), QStringLiteral("10 EUR added"));
    QVERIFY(activateButton()->isEnabled());
    QCOMPARE(requests().last(), QStringLiteral("*100#"));
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_WAITTING"));
    networkSays(QStringLiteral("15 EUR"));
    QCOMPARE(balanceBox()->toPlainText(), QStringLiteral("15 EUR"));
}

void PrepaidSendingTest::topUpByMessageBoxShowsItAndThenFetchesTheBalance()
{
    configureCharge(chargeItem(1, 1));
    open();
    networkSays(QStringLiteral("5 EUR"));
    networkSays(QStringLiteral("0170"));
    topUp(pin());
    QString title;
    QString button;
    QStringList sentBefore;
    const QString shown = networkSaysIntoBox(QStringLiteral("10 EUR added"), [&](QMessageBox *box) {
        title = box->windowTitle();
        button = box->buttons().count() == 1 ? box->buttons().first()->text() : QString();
        sentBefore = requests();
    });
    QCOMPARE(shown, QStringLiteral("10 EUR added"));
    QCOMPARE(title, text("IDS_PROMPT_CAPTION"));
    QCOMPARE(button, text("IDS_BUTTON_OK"));
    QCOMPARE(sentBefore.last(), QStringLiteral("*101*123456789012#"));
    QCOMPARE(requests().last(), QStringLiteral("*100#"));
    QVERIFY(activateButton()->isEnabled());
    QVERIFY(chargeEdit()->isEnabled());
}

void PrepaidSendingTest::topUpByMessageBoxWaitsWithoutSayingSo()
{
    configureCharge(chargeItem(1, 1));
    open();
    networkSays(QStringLiteral("5 EUR"));
    networkSays(QStringLiteral("0170"));
    topUp(pin());
    QVERIFY(activateBox()->toPlainText().isEmpty());
    QVERIFY(!activateButton()->isEnabled());
    QVERIFY(!chargeEdit()->isEnabled());
}

void PrepaidSendingTest::messageBoxShowsPlainTextAndStaysSmall()
{
    configure(only(chargeItem(1, 1)));
    open();
    const QString reply = QStringLiteral("<b>5</b> <img src='/dev/zero'>");
    topUp(pin());
    QCOMPARE(networkSaysIntoBox(reply), reply);
    topUp(pin());
    const QString longReply(10000, QLatin1Char('x'));
    QSize size;
    QCOMPARE(networkSaysIntoBox(longReply, [&size](QMessageBox *box) { size = box->size(); }),
             longReply);
    QVERIFY(size.isValid());
    QVERIFY2(size.width() < 700 && size.height() < 500, qPrintable(QString::number(size.width())));
}

void PrepaidSendingTest::topUpAloneIsAnswered()
{
    configure(only(chargeItem(0, 1)));
    open();
    topUp(pin());
    QCOMPARE(networkSaysIntoBox(QStringLiteral("10 EUR added")), QStringLiteral("10 EUR added"));
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidSendingTest::topUpWithoutBalanceFetchesNone()
{
    configure(only(chargeItem(0)));
    open();
    topUp(pin());
    networkSays(QStringLiteral("10 EUR added"));
    QCOMPARE(requests(), QStringList() << QStringLiteral("*101*123456789012#"));
}

void PrepaidSendingTest::queuedTopUpWaitsForItsTurn()
{
    configure(Account());
    open();
    topUp(pin());
    networkSays(QStringLiteral("5 EUR"));
    networkSays(QStringLiteral("0170"));
    QCOMPARE(requests().last(), QStringLiteral("*101*123456789012#"));
    QCOMPARE(activateBox()->toPlainText(), text("USSD_CODE_WAITTING"));
}

void PrepaidSendingTest::failedTopUpIsToldLikeAnAnswer()
{
    configureCharge(chargeItem(1, 0));
    open();
    networkSays(QStringLiteral("5 EUR"));
    networkSays(QStringLiteral("0170"));
    refuseAll(5);
    topUp(pin());
    QCOMPARE(activateBox()->toPlainText(), text("USSD_CODE_TIME_OUT"));
    QVERIFY(activateButton()->isEnabled());
    QVERIFY(chargeEdit()->isEnabled());
}

void PrepaidSendingTest::returnKeySendsOnce()
{
    refuseAll(1); // the button stays enabled, so a second command could be sent
    configure(only(chargeItem(0)));
    open();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    QCOMPARE(requests(), QStringList() << QStringLiteral("*101*123456789012#"));
}

void PrepaidSendingTest::returnKeyObeysTheMinimum()
{
    configure(only(chargeItem(0)));
    open();
    type(pin().left(11));
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    QVERIFY(requests().isEmpty());
}

void PrepaidSendingTest::returnKeyWhileWaitingDoesNothing()
{
    configure(only(chargeItem(0)));
    open();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    QTest::keyClick(frame()->focusWidget(), Qt::Key_Return);
    networkSays(QStringLiteral("10 EUR added"));
    QCOMPARE(requests().count(), 1);
}

void PrepaidSendingTest::returnKeyElsewhereSendsNothing()
{
    configure(Account());
    make();
    type(pin());
    for (QWidget *widget : {static_cast<QWidget *>(balanceBox()), static_cast<QWidget *>(link())}) {
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Return);
    }
    QVERIFY(requests().isEmpty());
    balanceButton()->setFocus();
    QTest::keyClick(balanceButton(), Qt::Key_Return); // the button must still work
    QCOMPARE(requests(), QStringList() << QStringLiteral("*100#"));
}

void PrepaidSendingTest::secondTopUpSendsTheNewPin()
{
    configure(only(chargeItem(0, 0, 16, 4)));
    open();
    topUp(QStringLiteral("1111"));
    networkSays(QStringLiteral("no"));
    topUp(QStringLiteral("2222"));
    QCOMPARE(requests(), QStringList()
                             << QStringLiteral("*101*1111#") << QStringLiteral("*101*2222#"));
}

void PrepaidSendingTest::heldReturnTopsUpOnce_data()
{
    QTest::addColumn<bool>("onTheButton");
    QTest::newRow("in the entry") << false;
    QTest::newRow("on the button") << true;
}

void PrepaidSendingTest::heldReturnTopsUpOnce()
{
    QFETCH(bool, onTheButton);
    configure(only(chargeItem(0)));
    open();
    type(pin());
    if (onTheButton)
        activateButton()->setFocus();
    pressReturn();
    pressReturn(true);
    networkSays(QStringLiteral("10 EUR added"));
    for (int i = 0; i < 3; ++i)
        pressReturn(true);
    QCOMPARE(requests().count(), 1);
}

void PrepaidSendingTest::heldReturnAfterARefusalTriesOnce()
{
    refuseAll(1);
    configure(Account());
    open();
    type(pin());
    pressReturn();
    for (int i = 0; i < 6; ++i) {
        pressReturn(true);
        drainEvents();
    }
    QCOMPARE(requests().filter(pin()).count(), 1);
}

/// Tests that only one top-up is sent while Return is held down. Some remote desktops report only
/// presses in this case, without releases.
void PrepaidSendingTest::heldReturnWithoutItsReleasesTopsUpOnce()
{
    refuseAll(1);
    configure(only(chargeItem(0)));
    open();
    type(pin());
    for (int i = 0; i < 7; ++i)
        pressReturn(false);
    QCOMPARE(requests().count(), 1);
}

void PrepaidSendingTest::returnWhoseReleaseWentElsewhereCountsAgainAfterTyping()
{
    refuseAll(1);
    configure(only(chargeItem(0)));
    open();
    type(pin());
    pressReturn();
    QCOMPARE(requests().count(), 1);
    QTest::keyClick(chargeEdit(), Qt::Key_Backspace);
    QTest::keyClick(chargeEdit(), Qt::Key_1);
    pressReturn();
    QCOMPARE(requests().count(), 2);
}

void PrepaidSendingTest::heldReturnBehindAWaitingBalanceTopsUpOnce()
{
    Account account = only(chargeItem(0));
    account.balance = balanceItem(1);
    configure(account);
    open();
    networkSays(QStringLiteral("5 EUR"));
    type(pin());
    pressReturn();
    networkSays(QStringLiteral("10 EUR added"));
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_WAITTING"));
    for (int i = 0; i < 3; ++i)
        pressReturn(true);
    networkSays(QStringLiteral("15 EUR"));
    QCOMPARE(requests().filter(pin()).count(), 1);
}

void PrepaidSendingTest::returnPressedAnewTopsUpAgain()
{
    configure(only(chargeItem(0)));
    open();
    type(pin());
    pressReturn();
    releaseReturn();
    networkSays(QStringLiteral("try again"));
    pressReturn();
    QCOMPARE(requests().count(), 2);
}

// ---- focus --------------------------------------------------------------------------------------

void PrepaidSendingTest::focusWaitsInTheStatusBoxAndComesBack()
{
    configure(only(chargeItem(0)));
    open();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    QVERIFY(activateBox()->hasFocus());
    networkSays(QStringLiteral("10 EUR added"));
    QVERIFY(chargeEdit()->hasFocus());
}

void PrepaidSendingTest::focusThatTheUserMovedStays()
{
    configure(only(chargeItem(0)));
    open();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    closeButton()->setFocus();
    networkSays(QStringLiteral("10 EUR added"));
    QVERIFY(closeButton()->hasFocus());
}

// ---- language -----------------------------------------------------------------------------------

void PrepaidSendingTest::textsFollowTheLanguage()
{
    configure(Account());
    make();
    for (const QString &language : languages()) {
        QVERIFY(HostCore::Languages::setCurrent(language));
        dialog()->SetLanguage();
        QCOMPARE(part<QLabel>("BalanceLabel")->text(), text("IDS_STATIC_MYBALANCE"));
        QCOMPARE(balanceButton()->text(), text("IDS_BUTTON_UPDATA"));
        QCOMPARE(part<QLabel>("BalanceInfoLabel")->text(), text("IDS_STATIC_INFO"));
        QCOMPARE(part<QLabel>("ChargeLabel")->text(), text("IDS_STATIC_PIN"));
        QCOMPARE(activateButton()->text(), text("IDS_BUTTON_ACTIVATE"));
        QCOMPARE(part<QLabel>("OnlineChargeLabel")->text(), text("IDS_STATIC_ONLINEREFILL"));
        QCOMPARE(part<QLabel>("MSISDNLabel")->text(), text("IDS_STATIC_MSISSDN"));
        QCOMPARE(msisdnButton()->text(), text("IDS_BUTTON_UPDATAMSISDN"));
        QCOMPARE(closeButton()->text(), text("IDS_BUTTON_CLOSE"));
        QCOMPARE(dialog()->windowTitle(), text("IDS_WINDOW_TETLE_PREPAID"));
    }
}

void PrepaidSendingTest::ownTextsInBoxesFollowTheLanguageAndAnswersDoNot()
{
    configure(Account());
    open();
    networkSays(QStringLiteral("5 EUR"));
    QVERIFY(HostCore::Languages::setCurrent(QStringLiteral("de")));
    dialog()->SetLanguage();
    QCOMPARE(balanceBox()->toPlainText(), QStringLiteral("5 EUR"));
    QCOMPARE(msisdnBox()->toPlainText(), text("USSD_CODE_WAITTING"));
    networkSays(QString());
    QVERIFY(HostCore::Languages::setCurrent(QStringLiteral("fr")));
    dialog()->SetLanguage();
    QCOMPARE(msisdnBox()->toPlainText(), text("USSD_CODE_FAILED"));
}

// ---- closing ------------------------------------------------------------------------------------

void PrepaidSendingTest::closeButtonAsksToBeClosed()
{
    configure(Account());
    open();
    QSignalSpy asks(dialog(), SIGNAL(closeButtonClicked()));
    QSignalSpy closes(dialog(), SIGNAL(clickedcloseButton()));
    click(closeButton());
    QCOMPARE(asks.count(), 1);
    QCOMPARE(closes.count(), 0);
    dialog()->OnClickedCloseButton();
    QCOMPARE(closes.count(), 1);
}

void PrepaidSendingTest::closingDropsWhatWaits()
{
    configure(Account());
    open();
    dialog()->OnClickedCloseButton();
    networkSays(QStringLiteral("5 EUR"));
    // The subscriber's own number has not been requested.
    QCOMPARE(requests(), QStringList() << QStringLiteral("*100#"));
}

void PrepaidSendingTest::closedDialogMayBeDeletedAtOnce()
{
    configure(Account());
    open();
    QPointer<USSDDlg> closed(dialog());
    connect(dialog(), &USSDDlg::clickedcloseButton, this, [this] { delete dialog(); });
    connect(dialog(), &USSDDlg::closeButtonClicked, dialog(), &USSDDlg::OnClickedCloseButton);
    click(closeButton());
    QVERIFY(!closed);
}

void PrepaidSendingTest::escapeClosesTheFrame()
{
    configure(Account());
    open();
    QSignalSpy closes(frame(), SIGNAL(dlgCloseEvent()));
    QTest::keyClick(chargeEdit(), Qt::Key_Escape);
    QCOMPARE(closes.count(), 1);
}

void PrepaidSendingTest::dialogDestroyedBehindItsMessageBoxCostsNothing()
{
    configureCharge(chargeItem(1, 1));
    open();
    networkSays(QStringLiteral("5 EUR"));
    networkSays(QStringLiteral("0170"));
    topUp(pin());
    networkSays(QStringLiteral("10 EUR added"));
    QVERIFY(messageBox());
    delete dialog();
    USSDLogic::Destroy();
    drainEvents();
    QVERIFY(!messageBox());
    QVERIFY(!dialog());
    QCOMPARE(requests().last(), QStringLiteral("*101*123456789012#"));
}

USSD_TEST_MAIN(PrepaidSendingTest)
#include "prepaid_sending_test.moc"
