#include "PrepaidTest.h"

#include <QMessageBox>

#include "fake_tksv.h"
#include "HostState.h"
#include "Languages.h"
#include "LogicListener.h"
#include "windows/USSDService.h"

namespace
{

QString pin()
{
    return QStringLiteral("123456789012");
}

QByteArray chargeIntoBox()
{
    return QByteArray("<item name='Charge' value='true' pos='0'><command>*101*%s#</command>"
                      "<length>16</length><minlenth>12</minlenth><ReturnStyle>1</ReturnStyle>"
                      "<LimitText>0-9</LimitText></item>");
}

/// Returns a top-up whose code is one character too long after the PIN has been inserted.
QByteArray tooLongCharge()
{
    return chargeIntoBox().replace("*101*", "*101*" + QByteArray(74, '1'));
}

} // namespace

/**
 * Tests the message box with the reply to a top-up, and events that occur while the box is open.
 */
class PrepaidBoxTest : public PrepaidTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    enum HostAct { IMSI_EVENT, ON_DESTROY, DELETION_OF_ITS_WINDOW };

    /// Opens the window and waits until there is no pending command.
    void openReady(const QByteArray &charge = chargeIntoBox());
    void letATopUpTimeOutBeforeAnotherCommand(); ///< the other command is *9#
    void openBox(const QString &reply = QStringLiteral("10 EUR added"));
    void act(int hostAct);

    QScopedPointer<QWidget> m_mainWindow;

private slots:
    // ---- box
    void boxIsTheDialogsOwn();
    void boxShowsThePlainReply();
    void boxFollowsTheLanguage();
    void replyStandsInTheStatusBoxTooWhichNeverSaidToWait();

    // ---- order
    void controlsAndBalanceWaitForTheBox();
    void replyInABurstHasABoxOfItsOwn();
    void boxOpensAfterTheAnnouncement();
    void timeOutInTheBoxLetsTheQueueMove();
    void lateReplyIsDeliveredWhileTheBoxIsOpen();
    void focusComesBackToTheEntry();

    // ---- hosts
    void refusedReturnOpensTheBoxAfterTheKey();
    void hostActsWhileTheBoxIsOpen_data();
    void hostActsWhileTheBoxIsOpen();
    void hostActsBeforeTheBoxOpens_data();
    void hostActsBeforeTheBoxOpens();
    void closingTheDialogTakesTheBoxAlong();

    // ---- held keys
    void heldReturnLeavesTheBoxOpen();
    void heldReturnAfterTheBoxSendsNothing();
};

void PrepaidBoxTest::setUp()
{
    PrepaidTest::setUp();
    m_mainWindow.reset(new QWidget);
    m_mainWindow->show();
    HostCore::HostState::setMainWindow(m_mainWindow.data());
}

void PrepaidBoxTest::tearDown()
{
    PrepaidTest::tearDown();
    HostCore::HostState::setMainWindow(nullptr);
    m_mainWindow.reset();
    QVERIFY(!QApplication::activeModalWidget());
}

void PrepaidBoxTest::openReady(const QByteArray &charge)
{
    Account account;
    account.balance = balanceItem(1);
    account.charge = charge;
    account.online.clear();
    account.msisdn.clear();
    configure(account);
    openByService();
    networkSays(QStringLiteral("5 EUR"));
}

void PrepaidBoxTest::openBox(const QString &reply)
{
    topUp(pin());
    networkSays(reply);
    QVERIFY(messageBox());
}

void PrepaidBoxTest::act(int hostAct)
{
    if (hostAct == IMSI_EVENT)
        CUSSDService::instance()->Notify(579, 0, 0);
    else if (hostAct == ON_DESTROY)
        CUSSDService::Destroy();
    else
        m_mainWindow.reset();
}

// ---- the box ---------------------------------------------------------------------------------

void PrepaidBoxTest::boxIsTheDialogsOwn()
{
    openReady();
    openBox();
    // The box is not the host's own message box, which has a different class.
    QCOMPARE(messageBox()->metaObject()->className(), "QMessageBox");
    QCOMPARE(messageBox()->parentWidget(), static_cast<QWidget *>(dialog()));
    QCOMPARE(messageBox()->windowModality(), Qt::ApplicationModal);
    QCOMPARE(messageBox()->icon(), QMessageBox::Information);
    QCOMPARE(messageBox()->windowTitle(), text("IDS_PROMPT_CAPTION"));
    QCOMPARE(messageBox()->buttons().count(), 1);
    QAbstractButton *button = messageBox()->buttons().first();
    QCOMPARE(button->text(), text("IDS_BUTTON_OK"));
    QCOMPARE(messageBox()->buttonRole(button), QMessageBox::YesRole);
}

void PrepaidBoxTest::boxShowsThePlainReply()
{
    const QString reply = QStringLiteral("<b>10</b> &amp; EUR");
    openReady();
    openBox(reply);
    QCOMPARE(messageBox()->text(), reply);
    QCOMPARE(messageBox()->textFormat(), Qt::PlainText);
}

void PrepaidBoxTest::boxFollowsTheLanguage()
{
    openReady();
    openBox();
    QVERIFY(HostCore::Languages::setCurrent(QStringLiteral("fr")));
    dialog()->SetLanguage();
    QCOMPARE(messageBox()->windowTitle(), text("IDS_PROMPT_CAPTION"));
    QCOMPARE(messageBox()->buttons().first()->text(), text("IDS_BUTTON_OK"));
    QCOMPARE(messageBox()->text(), QStringLiteral("10 EUR added"));
}

void PrepaidBoxTest::replyStandsInTheStatusBoxTooWhichNeverSaidToWait()
{
    openReady();
    topUp(pin());
    QVERIFY(activateBox()->toPlainText().isEmpty());
    networkSays(QStringLiteral("10 EUR added"));
    QCOMPARE(activateBox()->toPlainText(), QStringLiteral("10 EUR added"));
}

// ---- order -----------------------------------------------------------------------------------

void PrepaidBoxTest::controlsAndBalanceWaitForTheBox()
{
    openReady();
    openBox();
    QVERIFY(!activateButton()->isEnabled());
    QVERIFY(!chargeEdit()->isEnabled());
    QCOMPARE(requests().last(), QStringLiteral("*101*123456789012#"));
    closeMessageBox();
    QVERIFY(activateButton()->isEnabled());
    QVERIFY(chargeEdit()->isEnabled());
    QCOMPARE(requests().last(), QStringLiteral("*100#"));
    QCOMPARE(balanceBox()->toPlainText(), text("USSD_CODE_WAITTING"));
}

/// Tests that replies in quick succession are shown in separate message boxes, one after the other.
/// An operator may confirm a top-up with two messages.
void PrepaidBoxTest::replyInABurstHasABoxOfItsOwn()
{
    openReady();
    topUp(pin());
    logicSays(COMPONENT_CHARGE, QStringLiteral("first"));
    logicSays(COMPONENT_CHARGE, QStringLiteral("second"));
    drainEvents();
    QCOMPARE(textInMessageBox(), QStringLiteral("first"));
    logicSays(COMPONENT_CHARGE, QStringLiteral("third"));
    for (const char *reply : {"second", "third"}) {
        closeMessageBox();
        QCOMPARE(textInMessageBox(), QLatin1String(reply));
        QVERIFY(!activateButton()->isEnabled());
    }
    closeMessageBox();
    QVERIFY(!messageBox());
    QVERIFY(activateButton()->isEnabled());
}

void PrepaidBoxTest::boxOpensAfterTheAnnouncement()
{
    openReady();
    topUp(pin());
    logicSays(COMPONENT_CHARGE, QStringLiteral("10 EUR added"));
    QVERIFY(!messageBox());
    drainEvents();
    QVERIFY(messageBox());
}

void PrepaidBoxTest::letATopUpTimeOutBeforeAnotherCommand()
{
    openReady();
    topUp(pin());
    int status = 0;
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QStringLiteral("*9#")), &status);
    QVERIFY(QMetaObject::invokeMethod(logic, "OnTimeOut"));
}

void PrepaidBoxTest::timeOutInTheBoxLetsTheQueueMove()
{
    letATopUpTimeOutBeforeAnotherCommand();
    QCOMPARE(requests().last(), QStringLiteral("*9#"));
    drainEvents();
    QCOMPARE(textInMessageBox(), text("USSD_CODE_TIME_OUT"));
}

void PrepaidBoxTest::lateReplyIsDeliveredWhileTheBoxIsOpen()
{
    letATopUpTimeOutBeforeAnotherCommand();
    drainEvents();
    QVERIFY(messageBox());
    LogicListener listener(USSDLogic::GetUSSDLogicInstance());
    networkSays(QStringLiteral("late"));
    QCOMPARE(listener.answers.count(), 1);
    QCOMPARE(listener.answers.first().first, int(COMPONENT_GENERAL));
    QVERIFY(messageBox());
}

void PrepaidBoxTest::focusComesBackToTheEntry()
{
    openReady();
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    networkSays(QStringLiteral("10 EUR added"));
    closeMessageBox();
    QCOMPARE(dialog()->window()->focusWidget(), static_cast<QWidget *>(chargeEdit()));
}

// ---- hosts -----------------------------------------------------------------------------------

void PrepaidBoxTest::refusedReturnOpensTheBoxAfterTheKey()
{
    openReady(tooLongCharge());
    type(pin());
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    QVERIFY(!messageBox());
    drainEvents();
    QCOMPARE(textInMessageBox(), text("USSD_CODE_FAILED"));
    QCOMPARE(requests(), QStringList(QStringLiteral("*100#")));
}

void PrepaidBoxTest::hostActsWhileTheBoxIsOpen_data()
{
    QTest::addColumn<int>("hostAct");
    QTest::newRow("579") << int(IMSI_EVENT);
    QTest::newRow("OnDestroy") << int(ON_DESTROY);
    QTest::newRow("deletes its window") << int(DELETION_OF_ITS_WINDOW);
}

/// Tests that a host may close or delete the window while the box is open. Pressing Return in the
/// entry field opens the box; the host reacts in a timer event.
void PrepaidBoxTest::hostActsWhileTheBoxIsOpen()
{
    QFETCH(int, hostAct);
    openReady(tooLongCharge());
    type(pin());
    bool wasOpen = false;
    QTimer host;
    connect(&host, &QTimer::timeout, this, [this, hostAct, &host, &wasOpen] {
        if (!messageBox())
            return;
        host.stop();
        wasOpen = true;
        act(hostAct);
    });
    host.start(0);
    QTest::keyClick(chargeEdit(), Qt::Key_Return);
    QTRY_VERIFY(wasOpen);
    drainEvents();
    QVERIFY(!dialog());
    QVERIFY(!messageBox());
}

void PrepaidBoxTest::hostActsBeforeTheBoxOpens_data()
{
    hostActsWhileTheBoxIsOpen_data();
}

void PrepaidBoxTest::hostActsBeforeTheBoxOpens()
{
    QFETCH(int, hostAct);
    openReady();
    topUp(pin());
    logicSays(COMPONENT_CHARGE, QStringLiteral("10 EUR added"));
    act(hostAct);
    drainEvents();
    QVERIFY(!dialog());
    QVERIFY(!messageBox());
}

void PrepaidBoxTest::closingTheDialogTakesTheBoxAlong()
{
    Account account;
    account.charge = chargeIntoBox();
    configure(account);
    open();
    topUp(pin());
    logicSays(COMPONENT_CHARGE, QStringLiteral("first"));
    logicSays(COMPONENT_CHARGE, QStringLiteral("second"));
    drainEvents();
    QVERIFY(messageBox());
    dialog()->OnClickedCloseButton(); // does not delete the dialog in this test
    drainEvents();
    QVERIFY(dialog());
    QVERIFY(!messageBox());
}

// ---- held keys -------------------------------------------------------------------------------

void PrepaidBoxTest::heldReturnLeavesTheBoxOpen()
{
    openReady(tooLongCharge());
    type(pin());
    for (bool isRepetition : {false, true, true, false}) {
        pressReturn(isRepetition);
        drainEvents();
    }
    QVERIFY(messageBox());
    releaseReturn();
    pressReturn();
    drainEvents();
    QVERIFY(!messageBox());
}

void PrepaidBoxTest::heldReturnAfterTheBoxSendsNothing()
{
    openReady();
    type(pin());
    pressReturn();
    networkSays(QStringLiteral("10 EUR added"));
    closeMessageBox();
    networkSays(QStringLiteral("15 EUR"));
    pressReturn(true);
    pressReturn(false);
    QCOMPARE(requests().filter(pin()).count(), 1);
}

USSD_TEST_MAIN(PrepaidBoxTest)

#include "prepaid_box_test.moc"
