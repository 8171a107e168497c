#include "PrepaidTest.h"

#include <QMessageBox>
#include <QScrollBar>
#include <QSignalSpy>

#include "fake_tksv.h"
#include "Languages.h"

namespace
{

const char PIN[] = "123456789012";

QString pin()
{
    return QLatin1String(PIN);
}

/// Returns the functions of the USSD service that were called, in order.
QStringList ussdCalls()
{
    QStringList names;
    for (const FakeCall &call : fakeSdkCalls()) {
        const QString name = QString::fromStdString(call.function);
        if (name == QLatin1String("TKSV_USSDSrv_Release") ||
            name == QLatin1String("TKSV_USSDSrv_Request"))
            names << name.mid(int(strlen("TKSV_USSDSrv_")));
    }
    return names;
}

} // namespace

/**
 * Tests the commands of the account window, the moments at which it sends them, and its reactions
 * to answers.
 */
class PrepaidDialogTest : public PrepaidTest
{
    Q_OBJECT

private:
    void configureCharge(const QByteArray &charge);
    void refuseAll(int status);
    void sendFrom(int component);
    Account only(const QByteArray &charge); ///< an account that shows only the top-up

private slots:
    // entry
    void twelveCharactersActivateWithLength16AndMinlenth12();
    void eightCharactersActivateWithLength8AndMinlenth12();
    void shorterAgainDisablesActivation();
    void onlyTheUsersOwnEditsChangeActivation();
    void noMoreThanLengthCanBeTyped();
    void onlyTheLimitTextCanBeTyped();
    void limitTextTellsCapitals();
    void brokenLimitTextIsLoggedAndLetsEverythingIn();
    void hostileLimitTextIsLoggedAndLetsEverythingIn();
    void enormousLengthStillLimitsTheCharacters();
    void zeroLengthIsLogged();
    void piecesOfTheExpressionAreLogged();

    // opening
    void openingAsksForBalanceAndThenForTheNumber();
    void openingReleasesAndClearsBeforeItSends();
    void openingAsksOnlyForWhatIsShown_data();
    void openingAsksOnlyForWhatIsShown();
    void emptyCommandIsNotSent();
    void openingAnInvalidTypeDoesNothing_data();
    void openingAnInvalidTypeDoesNothing();
    void openingMakesTheEntryReady();
    void openingAgainEmptiesTheEntry();
    void openingShowsTheWindow();
    void eachPaidTypeSendsItsOwn();
    void openingAsTheOtherTypeShowsThatOne();

    // busy
    void everyBoxSaysFailedAtFirst();
    void answersBeforeAnyCommandAreDropped();
    void answersGoOnAfterTheFirstOne();
    void closingEndsIt();
    void openingAgainDoesNotEndIt();

    // sending
    void waitingDisablesItsOwnControlsOnly_data();
    void waitingDisablesItsOwnControlsOnly();
    void answerEnablesThemAgain_data();
    void answerEnablesThemAgain();
    void refusalShowsNothingWhenNotBusy();
    void refusalIsShownWhenBusy_data();
    void refusalIsShownWhenBusy();
    void everyPlaceholderBecomesThePin();
    void withoutLogicNothingIsSent();

    // answers
    void emptyAnswerIsShownAsFailure();
    void answersOfOtherComponentsTouchNothing_data();
    void answersOfOtherComponentsTouchNothing();
    void answersAreShownAsPlainText();
    void longAnswerScrollsAndDoesNotGrowTheWindow();
    void timeOutIsShown();

    // topping up
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
    void returnWhoseReleaseWentElsewhereCountsAgainAfterTyping();
    void heldReturnWithoutItsReleasesTopsUpOnce();
    void heldReturnBehindAWaitingBalanceTopsUpOnce();
    void returnPressedAnewTopsUpAgain();

    // focus
    void focusWaitsInTheStatusBoxAndComesBack();
    void focusThatTheUserMovedStays();

    // language
    void textsFollowTheLanguage();
    void ownTextsInBoxesFollowTheLanguageAndAnswersDoNot();

    // closing
    void closeButtonAsksToBeClosed();
    void closingDropsWhatWaits();
    void closedDialogMayBeDeletedAtOnce();
    void escapeClosesTheFrame();
    void dialogDestroyedBehindItsMessageBoxCostsNothing();
};

void PrepaidDialogTest::configureCharge(const QByteArray &charge)
{
    Account account;
    account.charge = charge;
    configure(account);
}

PrepaidTest::Account PrepaidDialogTest::only(const QByteArray &charge)
{
    Account account;
    account.balance.clear();
    account.charge = charge;
    account.online.clear();
    account.msisdn.clear();
    return account;
}

/// Presses the button of the component. The entry always contains a PIN.
void PrepaidDialogTest::sendFrom(int component)
{
    type(pin());
    if (component == COMPONENT_CHARGE)
        click(activateButton());
    else
        click(component == COMPONENT_BALANCE ? balanceButton() : msisdnButton());
}

void PrepaidDialogTest::refuseAll(int status)
{
    allowWarning("TKSV_USSDSrv_Request");
    fakeSdkSetAnswer(fakeRefused(1, status));
}

// ---- entry -----------------------------------------------------------------------------------

void PrepaidDialogTest::twelveCharactersActivateWithLength16AndMinlenth12()
{
    configureCharge(chargeItem(1, 0, 16, 12));
    open();
    type(pin().left(11));
    QVERIFY(!activateButton()->isEnabled());
    type(QStringLiteral("2"));
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidDialogTest::eightCharactersActivateWithLength8AndMinlenth12()
{
    configureCharge(chargeItem(1, 0, 8, 12));
    open();
    type(pin().left(7));
    QVERIFY(!activateButton()->isEnabled());
    type(QStringLiteral("8"));
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidDialogTest::shorterAgainDisablesActivation()
{
    configure(Account());
    open();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Backspace);
    QVERIFY(!activateButton()->isEnabled());
}

void PrepaidDialogTest::onlyTheUsersOwnEditsChangeActivation()
{
    configure(Account());
    open();
    chargeEdit()->setText(pin()); // as a host's on-screen keyboard could do
    QVERIFY(!activateButton()->isEnabled());
    QTest::keyClick(chargeEdit(), Qt::Key_Backspace);
    type(QStringLiteral("2"));
    QVERIFY(activateButton()->isEnabled());
    chargeEdit()->clear();
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidDialogTest::noMoreThanLengthCanBeTyped()
{
    configureCharge(chargeItem(1, 0, 8, 4));
    open();
    type(pin());
    QCOMPARE(chargeEdit()->text(), pin().left(8));
    QCOMPARE(chargeEdit()->maxLength(), 8); // a longer pasted PIN is truncated
}

void PrepaidDialogTest::onlyTheLimitTextCanBeTyped()
{
    configure(Account());
    open();
    type(QStringLiteral("1a*#2 "));
    QCOMPARE(chargeEdit()->text(), QStringLiteral("12"));
}

void PrepaidDialogTest::limitTextTellsCapitals()
{
    configureCharge(chargeItem(1, 0, 8, 1, "a-z"));
    open();
    type(QStringLiteral("aBc"));
    QCOMPARE(chargeEdit()->text(), QStringLiteral("ac"));
}

void PrepaidDialogTest::brokenLimitTextIsLoggedAndLetsEverythingIn()
{
    expectWarning("LimitText or length make no expression: [0-9\\]{0,16}");
    configureCharge(chargeItem(1, 0, 16, 2, "0-9\\"));
    open();
    type(QStringLiteral("1a*"));
    QCOMPARE(chargeEdit()->text(), QStringLiteral("1a*"));
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidDialogTest::hostileLimitTextIsLoggedAndLetsEverythingIn()
{
    expectWarning("LimitText or length make no expression: [a]|((a{1000}){1000}){1000}|[b]{0,16}");
    configureCharge(chargeItem(1, 0, 16, 2, "a]|((a{1000}){1000}){1000}|[b"));
    open();
    type(QStringLiteral("1a*"));
    QCOMPARE(chargeEdit()->text(), QStringLiteral("1a*"));
}

void PrepaidDialogTest::enormousLengthStillLimitsTheCharacters()
{
    configureCharge(chargeItem(1, 0, 2147483647, 2));
    open();
    type(QStringLiteral("1a*2"));
    QCOMPARE(chargeEdit()->text(), QStringLiteral("12"));
}

void PrepaidDialogTest::zeroLengthIsLogged()
{
    expectWarning("length = 0 lets nothing be entered");
    configureCharge(chargeItem(1, 0, 0, 2));
    open();
    type(QStringLiteral("1"));
    QVERIFY(chargeEdit()->text().isEmpty());
}

void PrepaidDialogTest::piecesOfTheExpressionAreLogged()
{
    configure(Account());
    make();
    QCOMPARE(timesLogged(" limittext = 0-9"), 1);
    QCOMPARE(timesLogged(" string validator = [0-9]{0,16}"), 1);
}

// ---- opening ---------------------------------------------------------------------------------

void PrepaidDialogTest::openingAsksForBalanceAndThenForTheNumber()
{
    configure(Account());
    open();
    QCOMPARE(requests(), QStringList() << QStringLiteral("*100#"));
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_WAITTING"));
    QCOMPARE(msisdnBox()->toPlainText(), text("USSD_CODE_WAITTING"));
    networkSays(QStringLiteral("5 EUR"));
    QCOMPARE(requests(), QStringList() << QStringLiteral("*100#") << QStringLiteral("*102#"));
    networkSays(QStringLiteral("0170"));
    QCOMPARE(balanceBox()->toPlainText(), QStringLiteral("5 EUR"));
    QCOMPARE(msisdnBox()->toPlainText(), QStringLiteral("0170"));
}

void PrepaidDialogTest::openingReleasesAndClearsBeforeItSends()
{
    configure(Account());
    make();
    int status = 0;
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QStringLiteral("*1#")), &status);
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QStringLiteral("*2#")), &status);
    dialog()->MyDoModal(PAID_TYPE_PREPAID);
    // No command is pending any more, so the balance is requested at once.
    QCOMPARE(ussdCalls(), QStringList() << QStringLiteral("Request") << QStringLiteral("Release")
                                        << QStringLiteral("Request"));
    QCOMPARE(requests(), QStringList() << QStringLiteral("*1#") << QStringLiteral("*100#"));
}

void PrepaidDialogTest::openingAsksOnlyForWhatIsShown_data()
{
    QTest::addColumn<bool>("balance");
    QTest::addColumn<bool>("msisdn");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("balance") << true << false << QStringList(QStringLiteral("*100#"));
    QTest::newRow("number") << false << true << QStringList(QStringLiteral("*102#"));
    QTest::newRow("neither") << false << false << QStringList();
}

void PrepaidDialogTest::openingAsksOnlyForWhatIsShown()
{
    QFETCH(bool, balance);
    QFETCH(bool, msisdn);
    Account account = only(chargeItem(0));
    if (balance)
        account.balance = balanceItem(1);
    if (msisdn)
        account.msisdn = msisdnItem(2);
    configure(account);
    open();
    QTEST(requests(), "sent");
}

/// A command that an error in the file has truncated is read as an empty command.
void PrepaidDialogTest::emptyCommandIsNotSent()
{
    Account account;
    account.balance.replace("<command>*100#</command>", "<command></command>");
    configure(account);
    open();
    // The request for the own number makes the window busy.
    QCOMPARE(requests(), QStringList{QStringLiteral("*102#")});
    click(balanceButton());
    QCOMPARE(requests().count(), 1);
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_FAILED"));
    QVERIFY(balanceButton()->isEnabled());
}

void PrepaidDialogTest::openingAnInvalidTypeDoesNothing_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("general") << int(PAID_TYPE_GENERAL);
    QTest::newRow("none") << int(PAID_TYPE_NONE);
    QTest::newRow("unused") << 2;
}

void PrepaidDialogTest::openingAnInvalidTypeDoesNothing()
{
    QFETCH(int, type);
    configure(Account());
    make();
    dialog()->MyDoModal(static_cast<PAID_TYPE>(type));
    QCOMPARE(timesLogged("MyDoModal Exit: invalid paid type"), 1);
    QVERIFY(ussdCalls().isEmpty());
}

void PrepaidDialogTest::openingMakesTheEntryReady()
{
    configure(Account());
    open();
    QVERIFY(chargeEdit()->isEnabled());
    QVERIFY(chargeEdit()->hasFocus());
    QVERIFY(!activateButton()->isEnabled());
    QVERIFY(activateBox()->toPlainText().isEmpty());
}

void PrepaidDialogTest::openingAgainEmptiesTheEntry()
{
    configure(Account());
    open();
    topUp(pin());
    QVERIFY(!chargeEdit()->isEnabled());
    dialog()->MyDoModal(PAID_TYPE_PREPAID);
    QVERIFY(chargeEdit()->isEnabled());
    QVERIFY(chargeEdit()->text().isEmpty());
    QVERIFY(!activateButton()->isEnabled());
    QVERIFY(activateBox()->toPlainText().isEmpty());
}

void PrepaidDialogTest::openingShowsTheWindow()
{
    configure(Account());
    make();
    frame()->hide();
    dialog()->MyDoModal(PAID_TYPE_PREPAID);
    QVERIFY(dialog()->isVisible());
}

void PrepaidDialogTest::eachPaidTypeSendsItsOwn()
{
    Account postpaid;
    postpaid.balance.replace("*100#", "*110#");
    configure(Account(), postpaid);
    open(PAID_TYPE_POSTPAID);
    QCOMPARE(requests(), QStringList() << QStringLiteral("*110#"));
    QCOMPARE(dialog()->windowTitle(), text("IDS_WINDOW_TETLE_POSTPAID"));
}

void PrepaidDialogTest::openingAsTheOtherTypeShowsThatOne()
{
    Account postpaid = only(chargeItem(0, 0, 6, 4));
    postpaid.balance = balanceItem(1).replace("*100#", "*110#");
    configure(Account(), postpaid);
    make(PAID_TYPE_PREPAID);
    dialog()->MyDoModal(PAID_TYPE_POSTPAID);
    QCOMPARE(requests(), QStringList() << QStringLiteral("*110#"));
    QVERIFY(!msisdnBox()->isVisible());
    QVERIFY(!link()->isVisible());
    type(pin());
    QCOMPARE(chargeEdit()->text(), pin().left(6));
    QCOMPARE(dialog()->windowTitle(), text("IDS_WINDOW_TETLE_POSTPAID"));
}

// ---- busy ------------------------------------------------------------------------------------

void PrepaidDialogTest::everyBoxSaysFailedAtFirst()
{
    configure(Account());
    make();
    for (QTextEdit *box : {balanceBox(), activateBox(), msisdnBox()})
        QCOMPARE(box->toPlainText(), text("USSD_CODE_FAILED"));
}

void PrepaidDialogTest::answersBeforeAnyCommandAreDropped()
{
    configure(Account());
    make();
    logicSays(COMPONENT_BALANCE, QStringLiteral("5 EUR"));
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_FAILED"));
    QCOMPARE(timesLogged("OnResponseReceived Exit: USSDDlg no need to handle"), 1);
}

void PrepaidDialogTest::answersGoOnAfterTheFirstOne()
{
    configure(Account());
    open();
    networkSays(QStringLiteral("5 EUR"));
    logicSays(COMPONENT_BALANCE, QStringLiteral("6 EUR"));
    QCOMPARE(balanceBox()->toPlainText(), QStringLiteral("6 EUR"));
}

void PrepaidDialogTest::closingEndsIt()
{
    configure(Account());
    open();
    dialog()->OnClickedCloseButton();
    logicSays(COMPONENT_BALANCE, QStringLiteral("5 EUR"));
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_WAITTING"));
}

void PrepaidDialogTest::openingAgainDoesNotEndIt()
{
    Account account = only(chargeItem(0));
    account.balance = balanceItem(1);
    configure(account);
    open();
    refuseAll(1);
    dialog()->MyDoModal(PAID_TYPE_PREPAID);
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_FAILED")); // the box was waiting before
    QVERIFY(balanceButton()->isEnabled());
}

// ---- sending ---------------------------------------------------------------------------------

void PrepaidDialogTest::waitingDisablesItsOwnControlsOnly_data()
{
    QTest::addColumn<int>("component");
    QTest::newRow("balance") << int(COMPONENT_BALANCE);
    QTest::newRow("charge") << int(COMPONENT_CHARGE);
    QTest::newRow("msisdn") << int(COMPONENT_MSISDN);
}

void PrepaidDialogTest::waitingDisablesItsOwnControlsOnly()
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

void PrepaidDialogTest::answerEnablesThemAgain_data()
{
    waitingDisablesItsOwnControlsOnly_data();
}

void PrepaidDialogTest::answerEnablesThemAgain()
{
    QFETCH(int, component);
    Account account;
    if (component == COMPONENT_CHARGE)
        account.balance.clear(); // the balance would be requested next
    configure(account);
    make();
    sendFrom(component);
    networkSays(QStringLiteral("done"));
    QVERIFY(balanceButton()->isEnabled());
    QVERIFY(activateButton()->isEnabled());
    QVERIFY(chargeEdit()->isEnabled());
    QVERIFY(msisdnButton()->isEnabled());
}

void PrepaidDialogTest::refusalShowsNothingWhenNotBusy()
{
    refuseAll(5);
    configure(Account());
    open();
    // The box keeps its initial text; after a time-out it would show another one.
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_FAILED"));
    QVERIFY(balanceButton()->isEnabled());
}

void PrepaidDialogTest::refusalIsShownWhenBusy_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("time-out") << 5 << QByteArray("USSD_CODE_TIME_OUT");
    QTest::newRow("other") << 2 << QByteArray("USSD_CODE_FAILED");
}

void PrepaidDialogTest::refusalIsShownWhenBusy()
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

void PrepaidDialogTest::everyPlaceholderBecomesThePin()
{
    configure(only(chargeItem(0, 0, 16, 4).replace("*101*%s#", "*101*%s*%S*%s#")));
    open();
    topUp(QStringLiteral("1234"));
    QCOMPARE(requests(), QStringList() << QStringLiteral("*101*1234*%S*1234#"));
    QCOMPARE(timesLogged(" USSD command = *101*%s*%S*%s#"), 1);
    QCOMPARE(timesLogged(" USSD command: *101*1234*%S*1234#"), 1);
}

void PrepaidDialogTest::withoutLogicNothingIsSent()
{
    configure(Account());
    make();
    USSDLogic::Destroy();
    dialog()->MyDoModal(PAID_TYPE_PREPAID);
    click(balanceButton());
    QCOMPARE(timesLogged("sendUSSDCommand Fail Exit: Logic is NULL"), 1);
    QVERIFY(requests().isEmpty());
}

// ---- answers ---------------------------------------------------------------------------------

void PrepaidDialogTest::emptyAnswerIsShownAsFailure()
{
    configure(Account());
    open();
    networkSays(QString());
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_FAILED"));
}

void PrepaidDialogTest::answersOfOtherComponentsTouchNothing_data()
{
    QTest::addColumn<int>("component");
    QTest::newRow("online") << int(COMPONENT_ONLINE_CHARGE);
    QTest::newRow("general") << int(COMPONENT_GENERAL);
    QTest::newRow("ussd-sms") << int(COMPONENT_USSD_SMS);
}

void PrepaidDialogTest::answersOfOtherComponentsTouchNothing()
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

void PrepaidDialogTest::answersAreShownAsPlainText()
{
    const QString reply = QStringLiteral("<b>5</b> &amp; <img src='/dev/zero'> <a href='x'>y</a>");
    configure(Account());
    open();
    networkSays(reply);
    networkSays(reply);
    topUp(pin());
    networkSays(reply);
    for (QTextEdit *box : {balanceBox(), msisdnBox(), activateBox()}) {
        if (box != balanceBox()) // the balance is being requested again
            QCOMPARE(box->toPlainText(), reply);
        QVERIFY(box->isReadOnly());
        QVERIFY(!box->textInteractionFlags().testFlag(Qt::LinksAccessibleByMouse));
    }
}

void PrepaidDialogTest::longAnswerScrollsAndDoesNotGrowTheWindow()
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

void PrepaidDialogTest::timeOutIsShown()
{
    const ReplyTimes impatient = {1, 1};
    USSDLogic::setReplyTimes(impatient);
    configure(Account());
    open();
    QTRY_COMPARE(balanceBox()->toPlainText(), text("USSD_CODE_TIME_OUT"));
    QTRY_COMPARE(msisdnBox()->toPlainText(), text("USSD_CODE_TIME_OUT"));
    QVERIFY(balanceButton()->isEnabled());
}

// ---- topping up ------------------------------------------------------------------------------

void PrepaidDialogTest::topUpIsAnsweredAndTheBalanceFetchedAtOnce()
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

void PrepaidDialogTest::topUpByMessageBoxShowsItAndThenFetchesTheBalance()
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

void PrepaidDialogTest::topUpByMessageBoxWaitsWithoutSayingSo()
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

void PrepaidDialogTest::messageBoxShowsPlainTextAndStaysSmall()
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

void PrepaidDialogTest::topUpAloneIsAnswered()
{
    configure(only(chargeItem(0, 1)));
    open();
    topUp(pin());
    QCOMPARE(networkSaysIntoBox(QStringLiteral("10 EUR added")), QStringLiteral("10 EUR added"));
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidDialogTest::topUpWithoutBalanceFetchesNone()
{
    configure(only(chargeItem(0)));
    open();
    topUp(pin());
    networkSays(QStringLiteral("10 EUR added"));
    QCOMPARE(requests(), QStringList() << QStringLiteral("*101*123456789012#"));
}

void PrepaidDialogTest::queuedTopUpWaitsForItsTurn()
{
    configure(Account());
    open();
    topUp(pin());
    networkSays(QStringLiteral("5 EUR"));
    networkSays(QStringLiteral("0170"));
    QCOMPARE(requests().last(), QStringLiteral("*101*123456789012#"));
    QCOMPARE(activateBox()->toPlainText(), text("USSD_CODE_WAITTING"));
}

void PrepaidDialogTest::failedTopUpIsToldLikeAnAnswer()
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

void PrepaidDialogTest::returnKeySendsOnce()
{
    refuseAll(1); // after a rejected command the button stays enabled, so a second press would send
    configure(only(chargeItem(0)));
    open();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    QCOMPARE(requests(), QStringList() << QStringLiteral("*101*123456789012#"));
}

void PrepaidDialogTest::returnKeyObeysTheMinimum()
{
    configure(only(chargeItem(0)));
    open();
    type(pin().left(11));
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    QVERIFY(requests().isEmpty());
}

void PrepaidDialogTest::returnKeyWhileWaitingDoesNothing()
{
    configure(only(chargeItem(0)));
    open();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    QTest::keyClick(frame()->focusWidget(), Qt::Key_Return);
    networkSays(QStringLiteral("10 EUR added"));
    QCOMPARE(requests().count(), 1);
}

void PrepaidDialogTest::returnKeyElsewhereSendsNothing()
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
    QTest::keyClick(balanceButton(), Qt::Key_Return); // Return on a button still presses the button
    QCOMPARE(requests(), QStringList() << QStringLiteral("*100#"));
}

void PrepaidDialogTest::secondTopUpSendsTheNewPin()
{
    configure(only(chargeItem(0, 0, 16, 4)));
    open();
    topUp(QStringLiteral("1111"));
    networkSays(QStringLiteral("no"));
    topUp(QStringLiteral("2222"));
    QCOMPARE(requests(), QStringList()
                             << QStringLiteral("*101*1111#") << QStringLiteral("*101*2222#"));
}

void PrepaidDialogTest::heldReturnTopsUpOnce_data()
{
    QTest::addColumn<bool>("onTheButton");
    QTest::newRow("in the entry") << false;
    QTest::newRow("on the button") << true;
}

void PrepaidDialogTest::heldReturnTopsUpOnce()
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

void PrepaidDialogTest::heldReturnAfterARefusalTriesOnce()
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

/// Some remote desktops send repeated presses without releases.
void PrepaidDialogTest::heldReturnWithoutItsReleasesTopsUpOnce()
{
    refuseAll(1);
    configure(only(chargeItem(0)));
    open();
    type(pin());
    for (int i = 0; i < 7; ++i)
        pressReturn(false);
    QCOMPARE(requests().count(), 1);
}

void PrepaidDialogTest::returnWhoseReleaseWentElsewhereCountsAgainAfterTyping()
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

void PrepaidDialogTest::heldReturnBehindAWaitingBalanceTopsUpOnce()
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

void PrepaidDialogTest::returnPressedAnewTopsUpAgain()
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

// ---- focus -----------------------------------------------------------------------------------

void PrepaidDialogTest::focusWaitsInTheStatusBoxAndComesBack()
{
    configure(only(chargeItem(0)));
    open();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    QVERIFY(activateBox()->hasFocus());
    networkSays(QStringLiteral("10 EUR added"));
    QVERIFY(chargeEdit()->hasFocus());
}

void PrepaidDialogTest::focusThatTheUserMovedStays()
{
    configure(only(chargeItem(0)));
    open();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    closeButton()->setFocus();
    networkSays(QStringLiteral("10 EUR added"));
    QVERIFY(closeButton()->hasFocus());
}

// ---- language --------------------------------------------------------------------------------

void PrepaidDialogTest::textsFollowTheLanguage()
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

void PrepaidDialogTest::ownTextsInBoxesFollowTheLanguageAndAnswersDoNot()
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

// ---- closing ---------------------------------------------------------------------------------

void PrepaidDialogTest::closeButtonAsksToBeClosed()
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

void PrepaidDialogTest::closingDropsWhatWaits()
{
    configure(Account());
    open();
    dialog()->OnClickedCloseButton();
    networkSays(QStringLiteral("5 EUR"));
    // The own number is not requested.
    QCOMPARE(requests(), QStringList() << QStringLiteral("*100#"));
}

void PrepaidDialogTest::closedDialogMayBeDeletedAtOnce()
{
    configure(Account());
    open();
    QPointer<USSDDlg> closed(dialog());
    connect(dialog(), &USSDDlg::clickedcloseButton, this, [this] { delete dialog(); });
    connect(dialog(), &USSDDlg::closeButtonClicked, dialog(), &USSDDlg::OnClickedCloseButton);
    click(closeButton());
    QVERIFY(!closed);
}

void PrepaidDialogTest::escapeClosesTheFrame()
{
    configure(Account());
    open();
    QSignalSpy closes(frame(), SIGNAL(dlgCloseEvent()));
    QTest::keyClick(chargeEdit(), Qt::Key_Escape);
    QCOMPARE(closes.count(), 1);
}

void PrepaidDialogTest::dialogDestroyedBehindItsMessageBoxCostsNothing()
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

USSD_TEST_MAIN(PrepaidDialogTest)

#include "prepaid_dialog_test.moc"
