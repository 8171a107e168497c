#include "PrepaidDialogTest.h"

/** Tests the entry field of the account window, and how the window opens. */
class PrepaidOpeningTest : public PrepaidDialogTest
{
    Q_OBJECT

private slots:
    // ---- entry
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

    // ---- opening
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

    // ---- busy
    void everyBoxSaysFailedAtFirst();
    void answersBeforeAnyCommandAreDropped();
    void answersGoOnAfterTheFirstOne();
    void closingEndsIt();
    void openingAgainDoesNotEndIt();
};

// ---- entry --------------------------------------------------------------------------------------

void PrepaidOpeningTest::twelveCharactersActivateWithLength16AndMinlenth12()
{
    configureCharge(chargeItem(1, 0, 16, 12));
    open();
    type(pin().left(11));
    QVERIFY(!activateButton()->isEnabled());
    type(QStringLiteral("2"));
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidOpeningTest::eightCharactersActivateWithLength8AndMinlenth12()
{
    configureCharge(chargeItem(1, 0, 8, 12));
    open();
    type(pin().left(7));
    QVERIFY(!activateButton()->isEnabled());
    type(QStringLiteral("8"));
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidOpeningTest::shorterAgainDisablesActivation()
{
    configure(Account());
    open();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Backspace);
    QVERIFY(!activateButton()->isEnabled());
}

void PrepaidOpeningTest::onlyTheUsersOwnEditsChangeActivation()
{
    configure(Account());
    open();
    chargeEdit()->setText(pin()); // as an on-screen keyboard of the host might do
    QVERIFY(!activateButton()->isEnabled());
    QTest::keyClick(chargeEdit(), Qt::Key_Backspace);
    type(QStringLiteral("2"));
    QVERIFY(activateButton()->isEnabled());
    chargeEdit()->clear();
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidOpeningTest::noMoreThanLengthCanBeTyped()
{
    configureCharge(chargeItem(1, 0, 8, 4));
    open();
    type(pin());
    QCOMPARE(chargeEdit()->text(), pin().left(8));
    QCOMPARE(chargeEdit()->maxLength(), 8); // when a longer PIN is pasted, it is truncated
}

void PrepaidOpeningTest::onlyTheLimitTextCanBeTyped()
{
    configure(Account());
    open();
    type(QStringLiteral("1a*#2 "));
    QCOMPARE(chargeEdit()->text(), QStringLiteral("12"));
}

void PrepaidOpeningTest::limitTextTellsCapitals()
{
    configureCharge(chargeItem(1, 0, 8, 1, "a-z"));
    open();
    type(QStringLiteral("aBc"));
    QCOMPARE(chargeEdit()->text(), QStringLiteral("ac"));
}

void PrepaidOpeningTest::brokenLimitTextIsLoggedAndLetsEverythingIn()
{
    expectWarning("LimitText or length make no expression: [0-9\\]{0,16}");
    configureCharge(chargeItem(1, 0, 16, 2, "0-9\\"));
    open();
    type(QStringLiteral("1a*"));
    QCOMPARE(chargeEdit()->text(), QStringLiteral("1a*"));
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidOpeningTest::hostileLimitTextIsLoggedAndLetsEverythingIn()
{
    expectWarning("LimitText or length make no expression: [a]|((a{1000}){1000}){1000}|[b]{0,16}");
    configureCharge(chargeItem(1, 0, 16, 2, "a]|((a{1000}){1000}){1000}|[b"));
    open();
    type(QStringLiteral("1a*"));
    QCOMPARE(chargeEdit()->text(), QStringLiteral("1a*"));
}

void PrepaidOpeningTest::enormousLengthStillLimitsTheCharacters()
{
    configureCharge(chargeItem(1, 0, 2147483647, 2));
    open();
    type(QStringLiteral("1a*2"));
    QCOMPARE(chargeEdit()->text(), QStringLiteral("12"));
}

void PrepaidOpeningTest::zeroLengthIsLogged()
{
    expectWarning("length = 0 lets nothing be entered");
    configureCharge(chargeItem(1, 0, 0, 2));
    open();
    type(QStringLiteral("1"));
    QVERIFY(chargeEdit()->text().isEmpty());
}

void PrepaidOpeningTest::piecesOfTheExpressionAreLogged()
{
    configure(Account());
    make();
    QCOMPARE(timesLogged(" limittext = 0-9"), 1);
    QCOMPARE(timesLogged(" string validator = [0-9]{0,16}"), 1);
}

// ---- opening ------------------------------------------------------------------------------------

void PrepaidOpeningTest::openingAsksForBalanceAndThenForTheNumber()
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

void PrepaidOpeningTest::openingReleasesAndClearsBeforeItSends()
{
    configure(Account());
    make();
    int status = 0;
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QStringLiteral("*1#")), &status);
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QStringLiteral("*2#")), &status);
    dialog()->MyDoModal(PAID_TYPE_PREPAID);
    // The balance is requested immediately, because no other command is pending.
    QCOMPARE(ussdCalls(), QStringList() << QStringLiteral("Request") << QStringLiteral("Release")
                                        << QStringLiteral("Request"));
    QCOMPARE(requests(), QStringList() << QStringLiteral("*1#") << QStringLiteral("*100#"));
}

void PrepaidOpeningTest::openingAsksOnlyForWhatIsShown_data()
{
    QTest::addColumn<bool>("balance");
    QTest::addColumn<bool>("msisdn");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("balance") << true << false << QStringList(QStringLiteral("*100#"));
    QTest::newRow("number") << false << true << QStringList(QStringLiteral("*102#"));
    QTest::newRow("neither") << false << false << QStringList();
}

void PrepaidOpeningTest::openingAsksOnlyForWhatIsShown()
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

/// Tests that an empty command is not sent. The parser also returns an empty command if an error in
/// the file has cut off the command.
void PrepaidOpeningTest::emptyCommandIsNotSent()
{
    Account account;
    account.balance.replace("<command>*100#</command>", "<command></command>");
    configure(account);
    open();
    // Only the subscriber's own number is requested.
    QCOMPARE(requests(), QStringList{QStringLiteral("*102#")});
    click(balanceButton());
    QCOMPARE(requests().count(), 1);
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_FAILED"));
    QVERIFY(balanceButton()->isEnabled());
}

void PrepaidOpeningTest::openingAnInvalidTypeDoesNothing_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("general") << int(PAID_TYPE_GENERAL);
    QTest::newRow("none") << int(PAID_TYPE_NONE);
    QTest::newRow("unused") << 2;
}

void PrepaidOpeningTest::openingAnInvalidTypeDoesNothing()
{
    QFETCH(int, type);
    configure(Account());
    make();
    dialog()->MyDoModal(static_cast<PAID_TYPE>(type));
    QCOMPARE(timesLogged("MyDoModal Exit: invalid paid type"), 1);
    QVERIFY(ussdCalls().isEmpty());
}

void PrepaidOpeningTest::openingMakesTheEntryReady()
{
    configure(Account());
    open();
    QVERIFY(chargeEdit()->isEnabled());
    QVERIFY(chargeEdit()->hasFocus());
    QVERIFY(!activateButton()->isEnabled());
    QVERIFY(activateBox()->toPlainText().isEmpty());
}

void PrepaidOpeningTest::openingAgainEmptiesTheEntry()
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

void PrepaidOpeningTest::openingShowsTheWindow()
{
    configure(Account());
    make();
    frame()->hide();
    dialog()->MyDoModal(PAID_TYPE_PREPAID);
    QVERIFY(dialog()->isVisible());
}

void PrepaidOpeningTest::eachPaidTypeSendsItsOwn()
{
    Account postpaid;
    postpaid.balance.replace("*100#", "*110#");
    configure(Account(), postpaid);
    open(PAID_TYPE_POSTPAID);
    QCOMPARE(requests(), QStringList() << QStringLiteral("*110#"));
    QCOMPARE(dialog()->windowTitle(), text("IDS_WINDOW_TETLE_POSTPAID"));
}

void PrepaidOpeningTest::openingAsTheOtherTypeShowsThatOne()
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

// ---- busy ---------------------------------------------------------------------------------------

void PrepaidOpeningTest::everyBoxSaysFailedAtFirst()
{
    configure(Account());
    make();
    for (QTextEdit *box : {balanceBox(), activateBox(), msisdnBox()})
        QCOMPARE(box->toPlainText(), text("USSD_CODE_FAILED"));
}

void PrepaidOpeningTest::answersBeforeAnyCommandAreDropped()
{
    configure(Account());
    make();
    logicSays(COMPONENT_BALANCE, QStringLiteral("5 EUR"));
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_FAILED"));
    QCOMPARE(timesLogged("OnResponseReceived Exit: USSDDlg no need to handle"), 1);
}

void PrepaidOpeningTest::answersGoOnAfterTheFirstOne()
{
    configure(Account());
    open();
    networkSays(QStringLiteral("5 EUR"));
    logicSays(COMPONENT_BALANCE, QStringLiteral("6 EUR"));
    QCOMPARE(balanceBox()->toPlainText(), QStringLiteral("6 EUR"));
}

void PrepaidOpeningTest::closingEndsIt()
{
    configure(Account());
    open();
    dialog()->OnClickedCloseButton();
    logicSays(COMPONENT_BALANCE, QStringLiteral("5 EUR"));
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_WAITTING"));
}

void PrepaidOpeningTest::openingAgainDoesNotEndIt()
{
    Account account = only(chargeItem(0));
    account.balance = balanceItem(1);
    configure(account);
    open();
    refuseAll(1);
    dialog()->MyDoModal(PAID_TYPE_PREPAID);
    // The waiting text has been replaced, because the request was refused.
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_FAILED"));
    QVERIFY(balanceButton()->isEnabled());
}

USSD_TEST_MAIN(PrepaidOpeningTest)
#include "prepaid_opening_test.moc"
