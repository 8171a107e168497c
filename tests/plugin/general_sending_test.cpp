#include "GeneralDialogTest.h"

/** Tests how the general dialog sends commands and handles answers and the keyboard focus. */
class GeneralSendingTest : public GeneralDialogTest
{
    Q_OBJECT

private slots:
    // ---- sending
    void emptyCommandIsNotSent();
    void commandIsShownBeforeItIsSent();
    void waitingDisablesAllThatSends();
    void sendingEmptiesComboAndDescription();
    void queuedCommandWaitsLikeASentOne();
    void deviceTimeOutIsAnsweredLocally();
    void otherFailureIsAnsweredLocally();
    void tooLongCommandIsAnsweredLocally();
    void refusedPresetIsAnsweredLocally_data();
    void refusedPresetIsAnsweredLocally();
    void presetDisablesTheComboButSendDoesNot();
    void menuIsAnsweredByTheNextCommand();

    // ---- answers
    void answerEndsTheWaiting();
    void emptyAnswerIsShownAsFailure();
    void networkRefusalIsShownAsFailure();
    void silenceIsShownAsTimeOut();
    void answerOfAnotherComponentIsIgnored_data();
    void answerOfAnotherComponentIsIgnored();
    void secondAnswerIsIgnored();
    void answerThatNobodyWaitsForIsIgnored();
    void answersOfManyCommandsStandInOrder();
    void lateAnswerAfterTheNextCommandIsTakenForIts();

    // ---- focus
    void keysTypedAfterAnAnswerReachTheCommandEdit_data();
    void keysTypedAfterAnAnswerReachTheCommandEdit();
    void keysTypedAfterALocalFailureReachTheCommandEdit();
    void answerLeavesTheFocusToAWidgetOfTheHost();
    void answerBehindAQuestionGivesTheFocusBack();
    void profileFocusReachesTheCommandEdit();
    void dialogShownAgainHasTheFocusInTheCommandEdit();
};

// ---- sending ------------------------------------------------------------------------------------

void GeneralSendingTest::emptyCommandIsNotSent()
{
    open();
    QTest::keyClicks(commandEdit(), latin1("x"));
    commandEdit()->clear(); // does not disable Send, because no key was pressed
    QVERIFY(sendButton()->isEnabled());
    click(sendButton());
    QTest::keyClick(combo()->lineEdit(), Qt::Key_Return);
    QVERIFY(requests().isEmpty());
    QVERIFY(shownLines().isEmpty());
    QCOMPARE(promptLabel()->text(), QString());
    QVERIFY(commandEdit()->isEnabled());
}

void GeneralSendingTest::commandIsShownBeforeItIsSent()
{
    open();
    fakeSdkSetAnswer(fakeRefused(1, 0));
    clearLog();
    send(latin1("*100#"));
    QCOMPARE(shownLines().value(0), sentLine(latin1("*100#")));
    QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_FAILED")));
    const int shown = lineOf(": appendToCmdHistory Exit");
    const int handedOver = lineOf(" Calling TKSV_USSDSrv_Request ");
    QVERIFY(shown >= 0 && handedOver >= 0);
    QVERIFY2(shown < handedOver, "the request was made before its line was shown");
}

void GeneralSendingTest::waitingDisablesAllThatSends()
{
    open();
    clearLog();
    send(latin1("*100#"));
    QVERIFY(isWaiting());
    QCOMPARE(shownLines(), QStringList{sentLine(latin1("*100#"))});
    QCOMPARE(timesLogged("showPromptForWaitingResponse Enter bShow: 1"), 1);
}

void GeneralSendingTest::sendingEmptiesComboAndDescription()
{
    open();
    QTest::keyClicks(commandEdit(), latin1("*9#"));
    combo()->setCurrentIndex(1);
    combo()->setEditText(latin1("*100#"));
    QVERIFY(!descriptionLabel()->text().isEmpty());
    click(sendButton());
    QCOMPARE(combo()->currentIndex(), -1);
    QCOMPARE(descriptionLabel()->text(), QString());
    QVERIFY(!sendButton()->isEnabled());
}

void GeneralSendingTest::queuedCommandWaitsLikeASentOne()
{
    int status = 0;
    USSDLogic::GetUSSDLogicInstance()->SendUSSDCommand(
        USSDCmdOrResp(COMPONENT_BALANCE, latin1("*1#")), &status);
    open();
    send(latin1("*100#"));
    QCOMPARE(requests(), QStringList{latin1("*1#")});
    QVERIFY(isWaiting());
    networkSays(latin1("for the other"));
    QCOMPARE(requests(), (QStringList{latin1("*1#"), latin1("*100#")}));
    QVERIFY(isWaiting());
    networkSays(latin1("mine"));
    QCOMPARE(shownLines().value(1), receivedLine(latin1("mine")));
}

void GeneralSendingTest::deviceTimeOutIsAnsweredLocally()
{
    open();
    fakeSdkSetAnswer(fakeRefused(1, 5));
    send(latin1("*100#"));
    QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_TIME_OUT")));
    QVERIFY(isIdle());
}

void GeneralSendingTest::otherFailureIsAnsweredLocally()
{
    for (int status : {0, 1, 4, 6, 12}) {
        open();
        fakeSdkSetAnswer(fakeRefused(1, status));
        send(latin1("*100#"));
        QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_FAILED")));
        QVERIFY(isIdle());
    }
}

void GeneralSendingTest::tooLongCommandIsAnsweredLocally()
{
    open();
    commandEdit()->setText(QString(92, QLatin1Char('1')));
    QTest::keyClicks(commandEdit(), latin1("#"));
    click(sendButton());
    QVERIFY(requests().isEmpty());
    QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_FAILED")));
    QVERIFY(isIdle());
}

void GeneralSendingTest::refusedPresetIsAnsweredLocally_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("device did not answer") << 5 << QByteArray("USSD_CODE_TIME_OUT");
    QTest::newRow("no device") << 1 << QByteArray("USSD_CODE_FAILED");
}

void GeneralSendingTest::refusedPresetIsAnsweredLocally()
{
    QFETCH(int, status);
    QFETCH(QByteArray, key);
    open();
    fakeSdkSetAnswer(fakeRefused(1, status));
    click(presetButtons().first());
    QCOMPARE(shownLines().mid(0, 2),
             (QStringList{sentLine(latin1("*100#")), receivedLine(text(key.constData()))}));
    QVERIFY(isIdle());
    QVERIFY(presetButtons().first()->isEnabled());
}

/// Tests that pressing a preset button disables the combo box, but pressing Send does not. This
/// difference is deliberate.
void GeneralSendingTest::presetDisablesTheComboButSendDoesNot()
{
    open();
    send(latin1("*100#"));
    QVERIFY(combo()->isEnabled());
    networkSays(latin1("one"));
    click(presetButtons().first());
    QVERIFY(isWaiting());
    QVERIFY(!combo()->isEnabled());
    networkSays(latin1("two"));
    QVERIFY(combo()->isEnabled());
}

void GeneralSendingTest::menuIsAnsweredByTheNextCommand()
{
    open();
    send(latin1("*100#"));
    networkSays(latin1("1) Yes\n2) No"));
    QVERIFY(isIdle());
    send(latin1("1"));
    networkSays(latin1("Done"));
    QCOMPARE(requests(), (QStringList{latin1("*100#"), latin1("1")}));
    QVERIFY(shownLines().contains(receivedLine(latin1("Done"))));
}

// ---- answers ------------------------------------------------------------------------------------

void GeneralSendingTest::answerEndsTheWaiting()
{
    open();
    QTest::keyClicks(paymentEdit(), latin1("123"));
    send(latin1("*100#"));
    QVERIFY(isWaiting());
    networkSays(latin1("12 EUR"));
    QVERIFY(isIdle());
    const QList<QPushButton *> presets = presetButtons();
    QCOMPARE(presets.count(), 4);
    QVERIFY(presets.at(0)->isEnabled());
    QVERIFY(presets.at(1)->isEnabled());
    QVERIFY(!presets.at(2)->isEnabled()); // disabled because the payment field is empty
    QVERIFY(!presets.at(3)->isEnabled());
    QCOMPARE(timesLogged("showPromptForWaitingResponse Enter bShow: 0"), 1);
}

void GeneralSendingTest::emptyAnswerIsShownAsFailure()
{
    open();
    send(latin1("*100#"));
    networkSays(QString());
    QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_FAILED")));
    QVERIFY(isIdle());
}

void GeneralSendingTest::networkRefusalIsShownAsFailure()
{
    fakeSdkSetAnswer(fakeNetworkRefusal());
    open();
    send(latin1("*100#"));
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    drainEvents();
    QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_FAILED")));
}

void GeneralSendingTest::silenceIsShownAsTimeOut()
{
    USSDLogic::setReplyTimes({20, 3000});
    open();
    send(latin1("*100#"));
    QVERIFY(isWaiting());
    QTRY_COMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_TIME_OUT")));
    QVERIFY(isIdle());
}

void GeneralSendingTest::answerOfAnotherComponentIsIgnored_data()
{
    QTest::addColumn<int>("component");
    for (int component : {-1, 0, 1, 2, 3, 4, 6, 7})
        QTest::newRow(qPrintable(QString::number(component))) << component;
}

void GeneralSendingTest::answerOfAnotherComponentIsIgnored()
{
    QFETCH(int, component);
    open();
    send(latin1("*100#"));
    clearLog();
    emit USSDLogic::GetUSSDLogicInstance()->responseReceived(component, latin1("not mine"));
    QCOMPARE(shownLines().count(), 1);
    QVERIFY(isWaiting());
    // This line is logged twice: as a debug message and as a warning.
    QCOMPARE(timesLogged("OnResponseReceived Exit: USSDGeneralDlg no need to handle"), 2);
}

void GeneralSendingTest::secondAnswerIsIgnored()
{
    open();
    send(latin1("*100#"));
    networkSays(latin1("first"));
    const QString shown = history()->toHtml();
    QTest::keyClicks(commandEdit(), latin1("*1"));
    clearLog();
    emit USSDLogic::GetUSSDLogicInstance()->responseReceived(5, latin1("second"));
    QCOMPARE(history()->toHtml(), shown);
    QCOMPARE(commandEdit()->text(), latin1("*1")); // the text in the field is not cleared
    QVERIFY(timesLogged("onResponseReceived Exit: USSDGeneralDlg no need to handle") > 0);
}

void GeneralSendingTest::answerThatNobodyWaitsForIsIgnored()
{
    open();
    emit USSDLogic::GetUSSDLogicInstance()->responseReceived(5, latin1("unasked"));
    QVERIFY(shownLines().isEmpty());
    QVERIFY(timesLogged("onResponseReceived Exit: USSDGeneralDlg no need to handle") > 0);
}

void GeneralSendingTest::answersOfManyCommandsStandInOrder()
{
    open();
    QStringList expected;
    for (int i = 0; i < 30; ++i) {
        const QString code = latin1("*%1#").arg(i);
        send(code);
        networkSays(latin1("reply %1").arg(i));
        expected << sentLine(code) << receivedLine(latin1("reply %1").arg(i));
    }
    QStringList shown = shownLines();
    shown.removeAll(QString()); // every reply ends with a line break
    QCOMPARE(shown, expected);
    QCOMPARE(requests().count(), 30);
}

/// Tests that a late answer is shown as the answer to the current command. Answers do not identify
/// the command to which they belong.
void GeneralSendingTest::lateAnswerAfterTheNextCommandIsTakenForIts()
{
    open(WINDOW_MODEL_MODAL);
    send(latin1("*1#"));
    dialog()->OnClickedCloseButton();
    open(WINDOW_MODEL_MODAL);
    send(latin1("*2#"));
    networkSays(latin1("late"));
    QCOMPARE(shownLines().mid(0, 2),
             (QStringList{sentLine(latin1("*2#")), receivedLine(latin1("late"))}));
    QVERIFY(isIdle());
    networkSays(latin1("for the second"));
    QVERIFY(!shownLines().contains(receivedLine(latin1("for the second"))));
}

// ---- focus --------------------------------------------------------------------------------------

void GeneralSendingTest::keysTypedAfterAnAnswerReachTheCommandEdit_data()
{
    QTest::addColumn<bool>("byPreset");
    QTest::newRow("typed command") << false;
    QTest::newRow("preset button") << true;
}

void GeneralSendingTest::keysTypedAfterAnAnswerReachTheCommandEdit()
{
    QFETCH(bool, byPreset);
    open();
    activateWindow();
    if (byPreset) {
        presetButtons().first()->setFocus();
        click(presetButtons().first());
    } else {
        commandEdit()->setFocus();
        send(latin1("*100#"));
    }
    networkSays(latin1("1) Yes"));
    QTest::keyClicks(QApplication::focusWidget(), latin1("1"));
    QCOMPARE(commandEdit()->text(), latin1("1"));
    QVERIFY(sendButton()->isEnabled());
    QVERIFY(combo()->hasFocus()); // the combo box is the focus proxy of the visible field
}

void GeneralSendingTest::keysTypedAfterALocalFailureReachTheCommandEdit()
{
    fakeSdkSetAnswer(fakeRefused(1, 0));
    open();
    activateWindow();
    sendButton()->setFocus();
    send(latin1("*100#"));
    QTest::keyClicks(QApplication::focusWidget(), latin1("*2"));
    QCOMPARE(commandEdit()->text(), latin1("*2"));
}

void GeneralSendingTest::answerLeavesTheFocusToAWidgetOfTheHost()
{
    open();
    QLineEdit other(page());
    other.show();
    activateWindow();
    send(latin1("*100#"));
    other.setFocus();
    networkSays(latin1("12 EUR"));
    QVERIFY(isIdle());
    QVERIFY(other.hasFocus());
}

void GeneralSendingTest::answerBehindAQuestionGivesTheFocusBack()
{
    changeConfig("showConfirmDialog='false'", "showConfirmDialog='true'");
    open();
    activateWindow();
    send(latin1("*100#"));
    clearButton()->setFocus();
    QTimer::singleShot(0, this, [&] {
        QWidget *question = QApplication::activeModalWidget();
        if (!question)
            return;
        QApplication::setActiveWindow(question);
        networkSays(latin1("1) Yes"));
        question->close();
    });
    click(clearButton());
    QVERIFY(isIdle());
    activateWindow();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(commandEdit()));
}

void GeneralSendingTest::profileFocusReachesTheCommandEdit()
{
    open();
    activateWindow();
    history()->setFocus();
    dialog()->setProfileFocus();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(commandEdit()));
}

void GeneralSendingTest::dialogShownAgainHasTheFocusInTheCommandEdit()
{
    open();
    activateWindow();
    history()->setFocus();
    dialog()->ReInitDialog();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(commandEdit()));
}

USSD_TEST_MAIN(GeneralSendingTest)
#include "general_sending_test.moc"
