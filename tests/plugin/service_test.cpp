#include "PluginTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTextEdit>

#include "fake_tksv.h"
#include "HostState.h"
#include "Languages.h"
#include "profiles/USSDEditCmd.h"
#include "requests/USSDLogic.h"
#include "windows/USSDService.h"

/** Tests the plug-in's service with its windows, embedded and in a frame. */
class ServiceTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    CUSSDService *service() { return CUSSDService::instance(); }
    USSDExtendDialog *frame();
    USSDGeneralDlg *framedDialog();
    USSDGeneralDlg *embeddedDialog();
    template <typename Widget>
    static Widget *part(QWidget *dialog, const char *role);
    static void sendByHand(USSDGeneralDlg *dialog, const QString &command);

    QScopedPointer<QWidget> m_mainWindow;
    QRect m_rect;

private slots:
    void instanceIsOneAndTheSame();
    void metacastKnowsTheInterface();
    void destroyWithoutInstanceDoesNothing();
    void secondDestroyFindsNothing();

    void doModalTwiceReusesFrameAndDialog();
    void framedWindowHasSizeTitleAndModality();
    void miniModeLeavesTheFramesFlagsAlone();
    void unknownTypeIsNotShown();
    void unknownTypeIsRememberedNevertheless();
    void framesAreCentredOverTheMainWindow_data();
    void framesAreCentredOverTheMainWindow();
    void framesCannotBeResized_data();
    void framesCannotBeResized();
    void rejectedFrameIsClosed_data();
    void rejectedFrameIsClosed();
    void closeRequestClosesTheWindowOfItsTypeOnly_data();
    void closeRequestClosesTheWindowOfItsTypeOnly();
    void closeRequestLeavesTheUssdSmsWindow();
    void closeButtonEndsFrameAndDialog();
    void closingTheFrameEndsFrameAndDialog();
    void escapeEndsFrameAndDialog();
    void windowCanBeOpenedAgainAfterClosing();
    void closingWhileWaitingLetsTheNextWindowSend();
    void lateAnswerIsNotShownInTheNextWindow();

    void showWindowPutsTheDialogIntoTheHostsWidget();
    void showPrePostPaidWindowShowsNothingForPrepaid();
    void hideHidesTheEmbeddedDialogOnly();
    void fitSizeBeforeShowWindowDoesNothing();
    void fitSizeMovesAndSizes();
    void fitSizeBeforeAnyWindowMakesNoDialog();
    void fitSizeWithAnotherTypeShownDoesNothing();
    void doModalMakesTheGeneralWindowTheShownOne();
    void showWindowPutsTheFocusIntoTheCommandEdit();
    void embeddedDialogSurvivesHideWithItsHistory();
    void embeddedDialogOutlivesClosingTheFrame();
    void hostThatDeletesItsWidgetCostsNothing();

    void languageEventReachesBothDialogs();
    void languageEventBeforeAnyWindowDoesNothing();
    void imsiEventClosesTheFrameWhenMatching();
    void imsiEventClosesEveryFrameButUssdSms_data();
    void imsiEventClosesEveryFrameButUssdSms();
    void imsiEventMayEndInAShutDown();
    void imsiEventLeavesTheFrameWithoutMatching();
    void languageEventReachesTheDialogOfType_data();
    void languageEventReachesTheDialogOfType();
    void unknownEventDoesNothing();

    void paidWindowFitsItsDialog_data();
    void paidWindowFitsItsDialog();
    void openingThePrepaidWindowAsksForBalanceAndNumber();
    void prepaidWindowShownThriceAsksOnceEachTime();
    void closingThePaidWindowEndsFrameAndDialog_data();
    void closingThePaidWindowEndsFrameAndDialog();
    void escapeEndsThePaidWindow_data();
    void escapeEndsThePaidWindow();
    void closeButtonEndsThePaidWindow_data();
    void closeButtonEndsThePaidWindow();
    void closeButtonEndsEveryFramedWindow();
    void ussdSmsWindowFitsItsDialog();
    void closeRequestAfterTheUssdSmsWindowDoesNothing();
    void imsiEventLeavesTheUssdSmsWindow();
    void languageEventReachesEveryDialog();
    void detectionWorksWithoutAWindow();
    void imsiQuestionsReachTheLogic();
    void logLinesNameTheFileOfTheirClassFamily();
    void destroyWithOpenMessageBoxEnds();
    void destroyWithWindowsOpenAndCommandInFlight();
};

void ServiceTest::setUp()
{
    PluginTest::setUp();
    // With these times, a window that is opened again does not have to wait for the last command.
    const ReplyTimes times = {60000, 1};
    USSDLogic::setReplyTimes(times);
    writeSystemProfiles(profileFile(profileItem("Balance", "*100#")));
    m_mainWindow.reset(new QWidget);
    m_mainWindow->resize(700, 600);
    m_mainWindow->show();
    HostCore::HostState::setMainWindow(m_mainWindow.data());
    m_rect = QRect(10, 20, 600, 500);
}

void ServiceTest::tearDown()
{
    HostCore::Languages::setCurrent(QStringLiteral("en"));
    HostCore::HostState::setMiniMode(false);
    PluginTest::tearDown();
    HostCore::HostState::setMainWindow(nullptr);
    m_mainWindow.reset();
}

USSDExtendDialog *ServiceTest::frame()
{
    const QList<USSDExtendDialog *> frames = m_mainWindow->findChildren<USSDExtendDialog *>();
    return frames.count() == 1 ? frames.first() : nullptr;
}

USSDGeneralDlg *ServiceTest::framedDialog()
{
    return frame() ? frame()->findChild<USSDGeneralDlg *>() : nullptr;
}

USSDGeneralDlg *ServiceTest::embeddedDialog()
{
    return m_mainWindow->findChild<USSDGeneralDlg *>(QString(), Qt::FindDirectChildrenOnly);
}

template <typename Widget>
Widget *ServiceTest::part(QWidget *dialog, const char *role)
{
    return dialog->findChild<Widget *>(USSDGeneralDlg::objectNameOf(role));
}

void ServiceTest::sendByHand(USSDGeneralDlg *dialog, const QString &command)
{
    QTest::keyClicks(part<QLineEdit>(dialog, "USSDCmdEdit"), command);
    QTest::mouseClick(part<QPushButton>(dialog, "SendButton"), Qt::LeftButton);
}

// ---- the singleton ---------------------------------------------------------------------------

void ServiceTest::instanceIsOneAndTheSame()
{
    QVERIFY(service());
    QCOMPARE(CUSSDService::instance(), service());
}

void ServiceTest::metacastKnowsTheInterface()
{
    QObject *object = service();
    QCOMPARE(object->qt_metacast("CUSSDService"), static_cast<void *>(service()));
    void *interface = static_cast<IUSSD *>(service());
    QCOMPARE(object->qt_metacast("IUSSD"), interface);
    QCOMPARE(object->qt_metacast("com.zelvor.portalcompass.plugin.IUSSD"), interface);
    QCOMPARE(object->qt_metacast("QObject"), static_cast<void *>(object));
    QVERIFY(!object->qt_metacast("INotify"));
}

void ServiceTest::destroyWithoutInstanceDoesNothing()
{
    CUSSDService::Destroy();
    QVERIFY(fakeSdkCalls().empty());
}

void ServiceTest::secondDestroyFindsNothing()
{
    service()->DoModal();
    CUSSDService::Destroy();
    CUSSDService::Destroy();
    QVERIFY(!frame());
}

// ---- framed ----------------------------------------------------------------------------------

void ServiceTest::doModalTwiceReusesFrameAndDialog()
{
    QCOMPARE(service()->DoModal(), 1);
    USSDExtendDialog *const firstFrame = frame();
    USSDGeneralDlg *const firstDialog = framedDialog();
    sendByHand(firstDialog, QStringLiteral("*1#"));
    fakeSdkRespond(u"one");
    QTRY_VERIFY(
        part<QTextEdit>(firstDialog, "History")->toPlainText().contains(QLatin1String("one")));
    QCOMPARE(service()->DoModal(), 1);
    QCOMPARE(frame(), firstFrame);
    QCOMPARE(framedDialog(), firstDialog);
    // The dialog has been reset.
    QVERIFY(part<QTextEdit>(firstDialog, "History")->toPlainText().isEmpty());
    QCOMPARE(service()->DoPrePostPaidModal(PAID_TYPE_GENERAL), 1);
    QCOMPARE(frame(), firstFrame);
}

void ServiceTest::framedWindowHasSizeTitleAndModality()
{
    service()->DoModal();
    QVERIFY(frame()->isVisible());
    QCOMPARE(frame()->size(), QSize(588, 465));
    QCOMPARE(frame()->windowModality(), Qt::WindowModal);
    // Qt itself adds the system menu to a window with a close button.
    QCOMPARE(int(frame()->windowFlags() & ~Qt::WindowSystemMenuHint), 0x0A001001);
    QCOMPARE(frame()->windowTitle(), CUSSDService::tr(QStringLiteral("IDS_ADVANCE_USSD")));
    QCOMPARE(frame()->parentWidget(), m_mainWindow.data());
}

void ServiceTest::miniModeLeavesTheFramesFlagsAlone()
{
    HostCore::HostState::setMiniMode(true);
    service()->DoModal();
    QVERIFY(int(frame()->windowFlags() & ~Qt::WindowSystemMenuHint) != 0x0A001001);
}

void ServiceTest::unknownTypeIsNotShown()
{
    QCOMPARE(service()->doModal(PAID_TYPE_NONE), 0);
    QCOMPARE(service()->doModal(static_cast<PAID_TYPE>(2)), 0);
    QVERIFY(!frame());
}

/// Tests that an unknown type is stored, too. A dialog that was opened earlier can then no longer
/// request to be closed.
void ServiceTest::unknownTypeIsRememberedNevertheless()
{
    service()->DoModal();
    service()->doModal(PAID_TYPE_NONE);
    QVERIFY(QMetaObject::invokeMethod(service(), "OnCloseButtonClicked"));
    QVERIFY(frame()->isVisible());
    QVERIFY(QMetaObject::invokeMethod(service(), "OnDlgCloseEvent"));
    drainEvents();
    QVERIFY(frame());
}

static void addFramedTypes()
{
    QTest::addColumn<int>("type");
    QTest::newRow("prepaid") << 0;
    QTest::newRow("postpaid") << 1;
    QTest::newRow("general") << 3;
    QTest::newRow("USSD-SMS") << 5;
}

void ServiceTest::framesAreCentredOverTheMainWindow_data()
{
    addFramedTypes();
}

void ServiceTest::framesAreCentredOverTheMainWindow()
{
    QFETCH(int, type);
    m_mainWindow->move(60, 40);
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    // The plug-in has moved the frame. Otherwise QDialog would position it when it is shown.
    QVERIFY(frame()->testAttribute(Qt::WA_Moved));
    const QPoint apart = frame()->frameGeometry().center() - m_mainWindow->frameGeometry().center();
    QVERIFY2(apart.manhattanLength() <= 4,
             qPrintable(QStringLiteral("%1,%2 apart").arg(apart.x()).arg(apart.y())));
}

void ServiceTest::framesCannotBeResized_data()
{
    addFramedTypes();
}

void ServiceTest::framesCannotBeResized()
{
    QFETCH(int, type);
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    QCOMPARE(frame()->minimumSize(), frame()->size());
    QCOMPARE(frame()->maximumSize(), frame()->size());
}

void ServiceTest::rejectedFrameIsClosed_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("prepaid") << 0;
    QTest::newRow("postpaid") << 1;
    QTest::newRow("general") << 3;
}

/// Tests a frame that is rejected without a close event, as QDialog may do.
void ServiceTest::rejectedFrameIsClosed()
{
    QFETCH(int, type);
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    const QPointer<USSDExtendDialog> rejected(frame());
    int closed = 0;
    connect(rejected.data(), &ExtendDialog::dlgCloseEvent, [&closed] { ++closed; });
    rejected->reject();
    drainEvents();
    QCOMPARE(closed, 1);
    QVERIFY(!rejected);
}

void ServiceTest::closeRequestClosesTheWindowOfItsTypeOnly_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("title");
    QTest::newRow("prepaid") << 0 << QStringLiteral("IDS_WINDOW_TETLE_PREPAID");
    QTest::newRow("postpaid") << 1 << QStringLiteral("IDS_WINDOW_TETLE_POSTPAID");
    QTest::newRow("general") << 3 << QStringLiteral("IDS_ADVANCE_USSD");
    QTest::newRow("USSD-SMS") << 5 << QString();
    QTest::newRow("none") << 4 << QString();
}

void ServiceTest::closeRequestClosesTheWindowOfItsTypeOnly()
{
    QFETCH(int, type);
    QFETCH(QString, title);
    for (int other : {5, 0, 1, 3}) {
        if (other != type)
            service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(other));
    }
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type)); // the last type is stored
    QStringList closed;
    for (USSDExtendDialog *one : m_mainWindow->findChildren<USSDExtendDialog *>())
        connect(one, &ExtendDialog::dlgCloseEvent,
                [&closed, one] { closed << one->windowTitle(); });
    QVERIFY(QMetaObject::invokeMethod(service(), "OnCloseButtonClicked"));
    QCOMPARE(closed, title.isEmpty() ? QStringList() : QStringList{CUSSDService::tr(title)});
}

void ServiceTest::closeRequestLeavesTheUssdSmsWindow()
{
    service()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
    QVERIFY(QMetaObject::invokeMethod(service(), "OnCloseButtonClicked"));
    drainEvents();
    QVERIFY(frame() && frame()->isVisible());
}

void ServiceTest::closeButtonEndsFrameAndDialog()
{
    service()->DoModal();
    QPointer<USSDExtendDialog> closed(frame());
    QPointer<USSDGeneralDlg> dialog(framedDialog());
    QTest::mouseClick(part<QPushButton>(dialog, "CloseButton"), Qt::LeftButton);
    QVERIFY(!dialog);
    drainEvents();
    QVERIFY(!closed);
}

void ServiceTest::closingTheFrameEndsFrameAndDialog()
{
    service()->DoModal();
    QPointer<USSDExtendDialog> closed(frame());
    QPointer<USSDGeneralDlg> dialog(framedDialog());
    closed->close();
    drainEvents();
    QVERIFY(!dialog);
    QVERIFY(!closed);
}

void ServiceTest::escapeEndsFrameAndDialog()
{
    service()->DoModal();
    QPointer<USSDExtendDialog> closed(frame());
    QTest::keyClick(closed.data(), Qt::Key_Escape);
    drainEvents();
    QVERIFY(!closed);
}

void ServiceTest::windowCanBeOpenedAgainAfterClosing()
{
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(service()->DoModal(), 1);
        sendByHand(framedDialog(), QStringLiteral("*1#"));
        fakeSdkRespond(u"one");
        QTextEdit *history = part<QTextEdit>(framedDialog(), "History");
        QTRY_VERIFY(history->toPlainText().contains(QLatin1String("one")));
        frame()->close();
        drainEvents();
        QVERIFY(!frame());
    }
}

void ServiceTest::closingWhileWaitingLetsTheNextWindowSend()
{
    service()->DoModal();
    sendByHand(framedDialog(), QStringLiteral("*1#"));
    QVERIFY(!part<QLineEdit>(framedDialog(), "USSDCmdEdit")->isEnabled());
    frame()->close();
    drainEvents();
    service()->DoModal();
    QVERIFY(part<QLineEdit>(framedDialog(), "USSDCmdEdit")->isEnabled());
    QTest::keyClicks(part<QLineEdit>(framedDialog(), "USSDCmdEdit"), QStringLiteral("*2#"));
    QVERIFY(part<QPushButton>(framedDialog(), "SendButton")->isEnabled());
}

void ServiceTest::lateAnswerIsNotShownInTheNextWindow()
{
    service()->DoModal();
    sendByHand(framedDialog(), QStringLiteral("*1#"));
    frame()->close();
    drainEvents();
    service()->DoModal();
    fakeSdkRespond(u"late");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    drainEvents();
    QVERIFY(part<QTextEdit>(framedDialog(), "History")->toPlainText().isEmpty());
    QCOMPARE(timesLogged("onResponseReceived Exit: USSDGeneralDlg no need to handle"), 1);
}

// ---- embedded --------------------------------------------------------------------------------

void ServiceTest::showWindowPutsTheDialogIntoTheHostsWidget()
{
    QCOMPARE(service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL), 0);
    QVERIFY(embeddedDialog());
    QVERIFY(embeddedDialog()->isVisible());
    QCOMPARE(embeddedDialog()->geometry(), m_rect);
}

void ServiceTest::showPrePostPaidWindowShowsNothingForPrepaid()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QCOMPARE(service()->ShowPrePostPaidWindow(m_mainWindow.data(), m_rect, PAID_TYPE_PREPAID), 0);
    service()->Hide(); // does nothing, because the stored type is not the general window
    QVERIFY(embeddedDialog()->isVisible());
}

void ServiceTest::hideHidesTheEmbeddedDialogOnly()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    service()->DoModal();
    service()->Hide();
    QVERIFY(!embeddedDialog()->isVisible());
    QVERIFY(frame()->isVisible());
}

void ServiceTest::fitSizeBeforeShowWindowDoesNothing()
{
    service()->FitSize(m_rect);
    service()->Hide();
    QVERIFY(!embeddedDialog());
}

void ServiceTest::fitSizeMovesAndSizes()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QRect other(0, 0, 640, 520);
    service()->FitSize(other);
    QCOMPARE(embeddedDialog()->geometry(), other);
}

void ServiceTest::fitSizeBeforeAnyWindowMakesNoDialog()
{
    service()->FitSize(m_rect);
    QVERIFY(fakeSdkCalls().empty()); // the logic object has not been created
    for (QWidget *widget : QApplication::allWidgets())
        QVERIFY(!qobject_cast<USSDGeneralDlg *>(widget));
}

void ServiceTest::fitSizeWithAnotherTypeShownDoesNothing()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    service()->ShowPrePostPaidWindow(m_mainWindow.data(), m_rect, PAID_TYPE_POSTPAID);
    QRect other(0, 0, 640, 520);
    service()->FitSize(other);
    QCOMPARE(embeddedDialog()->geometry(), m_rect);
}

void ServiceTest::doModalMakesTheGeneralWindowTheShownOne()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    service()->ShowPrePostPaidWindow(m_mainWindow.data(), m_rect, PAID_TYPE_PREPAID);
    service()->DoModal();
    service()->Hide();
    QVERIFY(!embeddedDialog()->isVisible());
}

void ServiceTest::showWindowPutsTheFocusIntoTheCommandEdit()
{
    QApplication::setActiveWindow(m_mainWindow.data());
    QVERIFY(QTest::qWaitForWindowActive(m_mainWindow.data()));
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QCOMPARE(QApplication::focusWidget(),
             static_cast<QWidget *>(part<QLineEdit>(embeddedDialog(), "USSDCmdEdit")));
    part<QTextEdit>(embeddedDialog(), "History")->setFocus();
    service()->Hide();
    clearLog();
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QCOMPARE(QApplication::focusWidget(),
             static_cast<QWidget *>(part<QLineEdit>(embeddedDialog(), "USSDCmdEdit")));
}

void ServiceTest::embeddedDialogSurvivesHideWithItsHistory()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    sendByHand(embeddedDialog(), QStringLiteral("*1#"));
    service()->Hide();
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QVERIFY(
        part<QTextEdit>(embeddedDialog(), "History")->toPlainText().contains(QLatin1String("*1#")));
}

void ServiceTest::embeddedDialogOutlivesClosingTheFrame()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QPointer<USSDGeneralDlg> embedded(embeddedDialog());
    service()->DoModal();
    frame()->close();
    drainEvents();
    QVERIFY(embedded);
}

void ServiceTest::hostThatDeletesItsWidgetCostsNothing()
{
    QScopedPointer<QWidget> page(new QWidget(m_mainWindow.data()));
    service()->showWindow(page.data(), m_rect, PAID_TYPE_GENERAL);
    page.reset();
    service()->Hide();
    service()->FitSize(m_rect);
    service()->Notify(320, 0, 0);
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QVERIFY(embeddedDialog()->isVisible());
}

// ---- events ----------------------------------------------------------------------------------

void ServiceTest::languageEventReachesBothDialogs()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    service()->DoModal();
    const QString english = part<QPushButton>(embeddedDialog(), "SendButton")->text();
    QVERIFY(HostCore::Languages::setCurrent(QStringLiteral("de")));
    QCOMPARE(service()->Notify(320, 0, 0), 0);
    const QString german = CUSSDService::tr(QStringLiteral("IDS_BUTTON_SEND"));
    QVERIFY(german != english);
    QCOMPARE(part<QPushButton>(embeddedDialog(), "SendButton")->text(), german);
    QCOMPARE(part<QPushButton>(framedDialog(), "SendButton")->text(), german);
    QCOMPARE(frame()->windowTitle(), QStringLiteral("USSD-Codes"));
}

void ServiceTest::languageEventBeforeAnyWindowDoesNothing()
{
    QCOMPARE(service()->Notify(320, 0, 0), 0);
    QVERIFY(m_mainWindow->findChildren<QWidget *>().isEmpty());
}

void ServiceTest::imsiEventClosesTheFrameWhenMatching()
{
    service()->DoModal();
    QCOMPARE(service()->Notify(579, 1, 2), 0);
    drainEvents();
    QVERIFY(!frame());
}

void ServiceTest::imsiEventClosesEveryFrameButUssdSms_data()
{
    addFramedTypes();
}

void ServiceTest::imsiEventClosesEveryFrameButUssdSms()
{
    QFETCH(int, type);
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    int closed = 0;
    connect(frame(), &ExtendDialog::dlgCloseEvent, [&closed] { ++closed; });
    QCOMPARE(service()->Notify(579, 0, 0), 0);
    drainEvents();
    QCOMPARE(closed, type == PAID_TYPE_USSD_SMS ? 0 : 1);
    QCOMPARE(frame() != nullptr, type == PAID_TYPE_USSD_SMS);
}

void ServiceTest::languageEventReachesTheDialogOfType_data()
{
    addFramedTypes();
}

void ServiceTest::languageEventReachesTheDialogOfType()
{
    QFETCH(int, type);
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    QVERIFY(HostCore::Languages::setCurrent(QStringLiteral("de")));
    clearLog();
    service()->Notify(320, 0, 0);
    static const char *const families[] = {"USSDDlg",        "USSDDlg", "",
                                           "USSDGeneralDlg", "",        "USSDSMSDlg"};
    QCOMPARE(timesLogged(QLatin1String("/") + QLatin1String(families[type]) +
                         QLatin1String(".cpp: SetLanguage Enter")),
             1);
}

/// Tests a host that shuts the plug-in down when the first frame is closed.
void ServiceTest::imsiEventMayEndInAShutDown()
{
    for (int type : {3, 1, 0})
        service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    int closed = 0;
    for (USSDExtendDialog *one : m_mainWindow->findChildren<USSDExtendDialog *>())
        connect(one, &ExtendDialog::dlgCloseEvent, [&closed] {
            ++closed;
            CUSSDService::Destroy();
        });
    service()->Notify(579, 0, 0);
    drainEvents();
    QCOMPARE(closed, 1);
    QVERIFY(m_mainWindow->findChildren<QWidget *>().isEmpty());
}

void ServiceTest::imsiEventLeavesTheFrameWithoutMatching()
{
    writeConfig("<c><autoUSSD valid='false'/></c>");
    service()->DoModal();
    service()->Notify(579, 0, 0);
    QVERIFY(frame()->isVisible());
}

void ServiceTest::unknownEventDoesNothing()
{
    service()->DoModal();
    QCOMPARE(service()->Notify(4711, 0, 0), 0);
    QVERIFY(frame()->isVisible());
}

void ServiceTest::imsiQuestionsReachTheLogic()
{
    QVERIFY(service()->IsImsiDynamicMatch());
    int flags = -1;
    QVERIFY(service()->CheckImsiIsValid(QStringLiteral("001012345678901"), flags));
    QCOMPARE(flags, 8);
}

// ---- the other windows -----------------------------------------------------------------------

void ServiceTest::paidWindowFitsItsDialog_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("title");
    QTest::newRow("prepaid") << 0 << QStringLiteral("IDS_WINDOW_TETLE_PREPAID");
    QTest::newRow("postpaid") << 1 << QStringLiteral("IDS_WINDOW_TETLE_POSTPAID");
}

void ServiceTest::paidWindowFitsItsDialog()
{
    QFETCH(int, type);
    QFETCH(QString, title);
    QCOMPARE(service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type)), 1);
    USSDDlg *dialog = frame()->findChild<USSDDlg *>();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(frame()->size(), dialog->GetSize() + QSize(0, 20));
    QCOMPARE(frame()->windowTitle(), CUSSDService::tr(title));
    QCOMPARE(frame()->windowModality(), Qt::WindowModal);
    QCOMPARE(int(frame()->windowFlags() & ~Qt::WindowSystemMenuHint), 0x0A001001);
}

void ServiceTest::openingThePrepaidWindowAsksForBalanceAndNumber()
{
    fakeSdkSetAnswer(fakeReply(u"ok"));
    service()->DoPrePostPaidModal(PAID_TYPE_PREPAID);
    QVERIFY(fakeSdkWaitForRequests(2));
    QVERIFY(fakeSdkCommands() == (std::vector<std::u16string>{u"*100#", u"*102#"}));
}

void ServiceTest::prepaidWindowShownThriceAsksOnceEachTime()
{
    for (size_t i = 1; i <= 3; ++i) {
        service()->DoPrePostPaidModal(PAID_TYPE_PREPAID);
        // The own number is requested only after the balance has been answered.
        QCOMPARE(fakeSdkCommands().size(), i);
    }
}

void ServiceTest::closingThePaidWindowEndsFrameAndDialog_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("prepaid") << 0;
    QTest::newRow("postpaid") << 1;
    QTest::newRow("USSD-SMS") << 5;
}

void ServiceTest::closingThePaidWindowEndsFrameAndDialog()
{
    QFETCH(int, type);
    for (int i = 0; i < 2; ++i) {
        service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
        QPointer<USSDExtendDialog> closed(frame());
        closed->close();
        drainEvents();
        QVERIFY(!closed);
        QVERIFY(m_mainWindow->findChildren<QWidget *>().isEmpty());
    }
}

void ServiceTest::escapeEndsThePaidWindow_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("prepaid") << 0;
    QTest::newRow("postpaid") << 1;
}

void ServiceTest::escapeEndsThePaidWindow()
{
    QFETCH(int, type);
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    QPointer<USSDExtendDialog> closed(frame());
    QTest::keyClick(closed.data(), Qt::Key_Escape);
    drainEvents();
    QVERIFY(!closed);
    QVERIFY(m_mainWindow->findChildren<QWidget *>().isEmpty());
}

void ServiceTest::closeButtonEndsThePaidWindow_data()
{
    escapeEndsThePaidWindow_data();
}

void ServiceTest::closeButtonEndsThePaidWindow()
{
    QFETCH(int, type);
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    QPointer<USSDExtendDialog> closed(frame());
    QPointer<USSDDlg> dialog(closed->findChild<USSDDlg *>());
    QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("USSDUIPlugin_CloseButton")),
                      Qt::LeftButton);
    QVERIFY(!dialog);
    drainEvents();
    QVERIFY(!closed);
}

void ServiceTest::closeButtonEndsEveryFramedWindow()
{
    service()->DoPrePostPaidModal(PAID_TYPE_PREPAID);
    service()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
    service()->DoPrePostPaidModal(PAID_TYPE_POSTPAID);
    QCOMPARE(m_mainWindow->findChildren<USSDExtendDialog *>().count(), 3);
    for (USSDDlg *dialog : m_mainWindow->findChildren<USSDDlg *>()) {
        if (dialog->window()->windowTitle() ==
            CUSSDService::tr(QStringLiteral("IDS_WINDOW_TETLE_POSTPAID")))
            dialog->window()->close();
    }
    drainEvents();
    QVERIFY(m_mainWindow->findChildren<QWidget *>().isEmpty());
}

void ServiceTest::ussdSmsWindowFitsItsDialog()
{
    QCOMPARE(service()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS), 1);
    CUSSDSMSDlg *dialog = frame()->findChild<CUSSDSMSDlg *>();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(frame()->size(), dialog->GetSize() + QSize(0, 20));
    QCOMPARE(frame()->windowTitle(), CUSSDService::tr(QStringLiteral("IDS_WINDOW_TITLE_SMSUSSD")));
}

/// Tests a close request after the USSD-SMS window was opened. The stored type is that of this
/// window, which a close request does not close.
void ServiceTest::closeRequestAfterTheUssdSmsWindowDoesNothing()
{
    service()->DoModal();
    QPointer<USSDExtendDialog> general(frame());
    service()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
    QVERIFY(QMetaObject::invokeMethod(service(), "OnCloseButtonClicked"));
    QVERIFY(general->isVisible());
    // This call has the same effect as closing the window.
    QVERIFY(QMetaObject::invokeMethod(service(), "OnDlgCloseEvent"));
    drainEvents();
    QVERIFY(!general);
    QVERIFY(QMetaObject::invokeMethod(service(), "OnCloseButtonClicked"));
    QVERIFY(QMetaObject::invokeMethod(service(), "OnDlgCloseEvent"));
}

void ServiceTest::imsiEventLeavesTheUssdSmsWindow()
{
    service()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
    service()->Notify(579, 0, 0);
    drainEvents();
    QVERIFY(frame() && frame()->isVisible());
}

void ServiceTest::languageEventReachesEveryDialog()
{
    service()->DoPrePostPaidModal(PAID_TYPE_PREPAID);
    service()->DoPrePostPaidModal(PAID_TYPE_POSTPAID);
    service()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
    HostCore::Languages::setCurrent(QStringLiteral("de"));
    service()->Notify(320, 0, 0);
    QStringList titles;
    for (USSDExtendDialog *one : m_mainWindow->findChildren<USSDExtendDialog *>())
        titles << one->windowTitle();
    titles.sort();
    QStringList german;
    german << CUSSDService::tr(QStringLiteral("IDS_WINDOW_TETLE_PREPAID"))
           << CUSSDService::tr(QStringLiteral("IDS_WINDOW_TETLE_POSTPAID"))
           << CUSSDService::tr(QStringLiteral("IDS_WINDOW_TITLE_SMSUSSD"));
    german.sort();
    QCOMPARE(titles, german);
    USSDDlg *dialog = m_mainWindow->findChild<USSDDlg *>();
    QCOMPARE(dialog->window()->size(), dialog->GetSize() + QSize(0, 20));
    QCOMPARE(dialog->findChild<QPushButton *>(QStringLiteral("USSDUIPlugin_CloseButton"))->text(),
             CUSSDService::tr(QStringLiteral("IDS_BUTTON_CLOSE")));
}

void ServiceTest::detectionWorksWithoutAWindow()
{
    bool inUse = false;
    bool postpaid = true;
    int result = -1;
    QCOMPARE(service()->GetPrePostInfo(inUse, postpaid, result, true), 1);
    QCOMPARE(inUse, true);
    QCOMPARE(postpaid, false);
    QVERIFY(fakeSdkCommands() == (std::vector<std::u16string>{u"*103#"}));
    QVERIFY(!frame());
}

// ---- shutting down ---------------------------------------------------------------------------

/// Tests classes whose code is in several files. The log lines of such a class name only one of
/// these files.
void ServiceTest::logLinesNameTheFileOfTheirClassFamily()
{
    for (int type : {3, 0, 5})
        service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    bool inUse = false, postpaid = false;
    int result = 0;
    service()->GetPrePostInfo(inUse, postpaid, result, true);
    USSDEditCmd editor;
    editor.InitDialog(m_mainWindow.data());
    const QRegularExpression source(QStringLiteral("/src/USSDUIPlugin/([A-Za-z]+\\.cpp)"));
    QSet<QString> files;
    for (const QString &line : logLines()) {
        const QString file = source.match(line).captured(1);
        if (!file.isEmpty())
            files.insert(file);
    }
    const QSet<QString> families = {
        QStringLiteral("USSDService.cpp"), QStringLiteral("USSDLogic.cpp"),
        QStringLiteral("USSDEditCmd.cpp"), QStringLiteral("USSDGeneralDlg.cpp"),
        QStringLiteral("USSDDlg.cpp"),     QStringLiteral("USSDSMSDlg.cpp")};
    QCOMPARE(files, families);
    QVERIFY(timesLogged("/USSDDlg.cpp: GetPrePostInfo Enter") > 0);
    QVERIFY(timesLogged("/USSDDlg.cpp: findPosAndAddElements Enter") > 0);
    QVERIFY(timesLogged("/USSDEditCmd.cpp: InitDialog Enter") > 0);
    QVERIFY(timesLogged("/USSDGeneralDlg.cpp: findPosAndAddElements Enter") > 0);
    QVERIFY(timesLogged("/USSDLogic.cpp: load Enter") > 0);
}

void ServiceTest::destroyWithOpenMessageBoxEnds()
{
    writeConfig(completeConfig().replace("showConfirmDialog='false'", "showConfirmDialog='true'"));
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    sendByHand(embeddedDialog(), QStringLiteral("*1#"));
    bool wasOpen = false;
    QTimer::singleShot(0, m_mainWindow.data(), [&wasOpen] {
        wasOpen = QApplication::activeModalWidget() != nullptr;
        CUSSDService::Destroy();
    });
    QTest::mouseClick(part<QPushButton>(embeddedDialog(), "ClearButton"), Qt::LeftButton);
    QVERIFY(wasOpen);
    QVERIFY(!embeddedDialog());
}

void ServiceTest::destroyWithWindowsOpenAndCommandInFlight()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    service()->DoModal();
    sendByHand(framedDialog(), QStringLiteral("*1#"));
    sendByHand(embeddedDialog(), QStringLiteral("*2#"));
    fakeSdkRespond(u"one");
    CUSSDService::Destroy();
    drainEvents();
    QVERIFY(m_mainWindow->findChildren<QWidget *>().isEmpty());
}

USSD_TEST_MAIN(ServiceTest)

#include "service_test.moc"
