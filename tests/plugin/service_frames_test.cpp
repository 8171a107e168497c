#include "ServiceTest.h"

#include "HostState.h"

/** Tests how the service opens and closes windows that have a frame. */
class ServiceFramesTest : public ServiceTest
{
    Q_OBJECT

private slots:
    // ---- opening
    void doModalTwiceReusesFrameAndDialog();
    void framedWindowHasSizeTitleAndModality();
    void miniModeLeavesTheFramesFlagsAlone();
    void unknownTypeIsNotShown();
    void unknownTypeIsRememberedNevertheless();
    void framesAreCentredOverTheMainWindow_data();
    void framesAreCentredOverTheMainWindow();
    void framesCannotBeResized_data();
    void framesCannotBeResized();
    void paidWindowFitsItsDialog_data();
    void paidWindowFitsItsDialog();
    void ussdSmsWindowFitsItsDialog();
    void openingThePrepaidWindowAsksForBalanceAndNumber();
    void prepaidWindowShownThriceAsksOnceEachTime();

    // ---- closing
    void rejectedFrameIsClosed_data();
    void rejectedFrameIsClosed();
    void closeRequestClosesTheWindowOfItsTypeOnly_data();
    void closeRequestClosesTheWindowOfItsTypeOnly();
    void closeRequestLeavesTheUssdSmsWindow();
    void closeRequestAfterTheUssdSmsWindowDoesNothing();
    void closeButtonEndsFrameAndDialog();
    void closeButtonEndsThePaidWindow_data();
    void closeButtonEndsThePaidWindow();
    void closeButtonEndsEveryFramedWindow();
    void closingTheFrameEndsFrameAndDialog();
    void closingThePaidWindowEndsFrameAndDialog_data();
    void closingThePaidWindowEndsFrameAndDialog();
    void escapeEndsFrameAndDialog();
    void escapeEndsThePaidWindow_data();
    void escapeEndsThePaidWindow();

    // ---- the next window
    void windowCanBeOpenedAgainAfterClosing();
    void closingWhileWaitingLetsTheNextWindowSend();
    void lateAnswerIsNotShownInTheNextWindow();
};

// ---- opening ------------------------------------------------------------------------------------

void ServiceFramesTest::doModalTwiceReusesFrameAndDialog()
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
    // Opening the window again has cleared the transcript.
    QVERIFY(part<QTextEdit>(firstDialog, "History")->toPlainText().isEmpty());
    QCOMPARE(service()->DoPrePostPaidModal(PAID_TYPE_GENERAL), 1);
    QCOMPARE(frame(), firstFrame);
}

void ServiceFramesTest::framedWindowHasSizeTitleAndModality()
{
    service()->DoModal();
    QVERIFY(frame()->isVisible());
    QCOMPARE(frame()->size(), QSize(588, 465));
    QCOMPARE(frame()->windowModality(), Qt::WindowModal);
    // Qt adds the system menu to every window with a close button.
    QCOMPARE(int(frame()->windowFlags() & ~Qt::WindowSystemMenuHint), 0x0A001001);
    QCOMPARE(frame()->windowTitle(), CUSSDService::tr(QStringLiteral("IDS_ADVANCE_USSD")));
    QCOMPARE(frame()->parentWidget(), m_mainWindow.data());
}

void ServiceFramesTest::miniModeLeavesTheFramesFlagsAlone()
{
    HostCore::HostState::setMiniMode(true);
    service()->DoModal();
    QVERIFY(int(frame()->windowFlags() & ~Qt::WindowSystemMenuHint) != 0x0A001001);
}

void ServiceFramesTest::unknownTypeIsNotShown()
{
    QCOMPARE(service()->doModal(PAID_TYPE_NONE), 0);
    QCOMPARE(service()->doModal(static_cast<PAID_TYPE>(2)), 0);
    QVERIFY(!frame());
}

/// Tests that the service also stores an unknown window type. A window that is already open then
/// ignores close requests.
void ServiceFramesTest::unknownTypeIsRememberedNevertheless()
{
    service()->DoModal();
    service()->doModal(PAID_TYPE_NONE);
    QVERIFY(QMetaObject::invokeMethod(service(), "OnCloseButtonClicked"));
    QVERIFY(frame()->isVisible());
    QVERIFY(QMetaObject::invokeMethod(service(), "OnDlgCloseEvent"));
    drainEvents();
    QVERIFY(frame());
}

void ServiceFramesTest::framesAreCentredOverTheMainWindow_data()
{
    addFramedTypes();
}

void ServiceFramesTest::framesAreCentredOverTheMainWindow()
{
    QFETCH(int, type);
    m_mainWindow->move(60, 40);
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    // Proves that the plug-in has moved the frame. QDialog would otherwise choose the position.
    QVERIFY(frame()->testAttribute(Qt::WA_Moved));
    const QPoint apart = frame()->frameGeometry().center() - m_mainWindow->frameGeometry().center();
    QVERIFY2(apart.manhattanLength() <= 4,
             qPrintable(QStringLiteral("%1,%2 apart").arg(apart.x()).arg(apart.y())));
}

void ServiceFramesTest::framesCannotBeResized_data()
{
    addFramedTypes();
}

void ServiceFramesTest::framesCannotBeResized()
{
    QFETCH(int, type);
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    QCOMPARE(frame()->minimumSize(), frame()->size());
    QCOMPARE(frame()->maximumSize(), frame()->size());
}

void ServiceFramesTest::paidWindowFitsItsDialog_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("title");
    QTest::newRow("prepaid") << 0 << QStringLiteral("IDS_WINDOW_TETLE_PREPAID");
    QTest::newRow("postpaid") << 1 << QStringLiteral("IDS_WINDOW_TETLE_POSTPAID");
}

void ServiceFramesTest::paidWindowFitsItsDialog()
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

void ServiceFramesTest::ussdSmsWindowFitsItsDialog()
{
    QCOMPARE(service()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS), 1);
    CUSSDSMSDlg *dialog = frame()->findChild<CUSSDSMSDlg *>();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(frame()->size(), dialog->GetSize() + QSize(0, 20));
    QCOMPARE(frame()->windowTitle(), CUSSDService::tr(QStringLiteral("IDS_WINDOW_TITLE_SMSUSSD")));
}

void ServiceFramesTest::openingThePrepaidWindowAsksForBalanceAndNumber()
{
    fakeSdkSetAnswer(fakeReply(u"ok"));
    service()->DoPrePostPaidModal(PAID_TYPE_PREPAID);
    QVERIFY(fakeSdkWaitForRequests(2));
    QVERIFY(fakeSdkCommands() == (std::vector<std::u16string>{u"*100#", u"*102#"}));
}

void ServiceFramesTest::prepaidWindowShownThriceAsksOnceEachTime()
{
    for (size_t i = 1; i <= 3; ++i) {
        service()->DoPrePostPaidModal(PAID_TYPE_PREPAID);
        // The subscriber's own number is requested only after the reply with the balance.
        QCOMPARE(fakeSdkCommands().size(), i);
    }
}

// ---- closing ------------------------------------------------------------------------------------

void ServiceFramesTest::rejectedFrameIsClosed_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("prepaid") << 0;
    QTest::newRow("postpaid") << 1;
    QTest::newRow("general") << 3;
}

/// Tests that a frame that is closed with reject() reports this once and is deleted. reject() does
/// not send a close event.
void ServiceFramesTest::rejectedFrameIsClosed()
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

void ServiceFramesTest::closeRequestClosesTheWindowOfItsTypeOnly_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("title");
    QTest::newRow("prepaid") << 0 << QStringLiteral("IDS_WINDOW_TETLE_PREPAID");
    QTest::newRow("postpaid") << 1 << QStringLiteral("IDS_WINDOW_TETLE_POSTPAID");
    QTest::newRow("general") << 3 << QStringLiteral("IDS_ADVANCE_USSD");
    QTest::newRow("USSD-SMS") << 5 << QString();
    QTest::newRow("none") << 4 << QString();
}

void ServiceFramesTest::closeRequestClosesTheWindowOfItsTypeOnly()
{
    QFETCH(int, type);
    QFETCH(QString, title);
    for (int other : {5, 0, 1, 3}) {
        if (other != type)
            service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(other));
    }
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type)); // changes the stored window type
    QStringList closed;
    for (USSDExtendDialog *one : m_mainWindow->findChildren<USSDExtendDialog *>())
        connect(one, &ExtendDialog::dlgCloseEvent,
                [&closed, one] { closed << one->windowTitle(); });
    QVERIFY(QMetaObject::invokeMethod(service(), "OnCloseButtonClicked"));
    QCOMPARE(closed, title.isEmpty() ? QStringList() : QStringList{CUSSDService::tr(title)});
}

void ServiceFramesTest::closeRequestLeavesTheUssdSmsWindow()
{
    service()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
    QVERIFY(QMetaObject::invokeMethod(service(), "OnCloseButtonClicked"));
    drainEvents();
    QVERIFY(frame() && frame()->isVisible());
}

/// Tests that OnCloseButtonClicked() does not close the general window after the USSD-SMS window
/// was opened, because the service has stored the type of the USSD-SMS window instead.
void ServiceFramesTest::closeRequestAfterTheUssdSmsWindowDoesNothing()
{
    service()->DoModal();
    QPointer<USSDExtendDialog> general(frame());
    service()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
    QVERIFY(QMetaObject::invokeMethod(service(), "OnCloseButtonClicked"));
    QVERIFY(general->isVisible());
    // Closing a frame calls this slot.
    QVERIFY(QMetaObject::invokeMethod(service(), "OnDlgCloseEvent"));
    drainEvents();
    QVERIFY(!general);
    QVERIFY(QMetaObject::invokeMethod(service(), "OnCloseButtonClicked"));
    QVERIFY(QMetaObject::invokeMethod(service(), "OnDlgCloseEvent"));
}

void ServiceFramesTest::closeButtonEndsFrameAndDialog()
{
    service()->DoModal();
    QPointer<USSDExtendDialog> closed(frame());
    QPointer<USSDGeneralDlg> dialog(framedDialog());
    QTest::mouseClick(part<QPushButton>(dialog, "CloseButton"), Qt::LeftButton);
    QVERIFY(!dialog);
    drainEvents();
    QVERIFY(!closed);
}

void ServiceFramesTest::closeButtonEndsThePaidWindow_data()
{
    escapeEndsThePaidWindow_data();
}

void ServiceFramesTest::closeButtonEndsThePaidWindow()
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

void ServiceFramesTest::closeButtonEndsEveryFramedWindow()
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

void ServiceFramesTest::closingTheFrameEndsFrameAndDialog()
{
    service()->DoModal();
    QPointer<USSDExtendDialog> closed(frame());
    QPointer<USSDGeneralDlg> dialog(framedDialog());
    closed->close();
    drainEvents();
    QVERIFY(!dialog);
    QVERIFY(!closed);
}

void ServiceFramesTest::closingThePaidWindowEndsFrameAndDialog_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("prepaid") << 0;
    QTest::newRow("postpaid") << 1;
    QTest::newRow("USSD-SMS") << 5;
}

void ServiceFramesTest::closingThePaidWindowEndsFrameAndDialog()
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

void ServiceFramesTest::escapeEndsFrameAndDialog()
{
    service()->DoModal();
    QPointer<USSDExtendDialog> closed(frame());
    QTest::keyClick(closed.data(), Qt::Key_Escape);
    drainEvents();
    QVERIFY(!closed);
}

void ServiceFramesTest::escapeEndsThePaidWindow_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("prepaid") << 0;
    QTest::newRow("postpaid") << 1;
}

void ServiceFramesTest::escapeEndsThePaidWindow()
{
    QFETCH(int, type);
    service()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type));
    QPointer<USSDExtendDialog> closed(frame());
    QTest::keyClick(closed.data(), Qt::Key_Escape);
    drainEvents();
    QVERIFY(!closed);
    QVERIFY(m_mainWindow->findChildren<QWidget *>().isEmpty());
}

// ---- the next window ----------------------------------------------------------------------------

void ServiceFramesTest::windowCanBeOpenedAgainAfterClosing()
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

void ServiceFramesTest::closingWhileWaitingLetsTheNextWindowSend()
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

void ServiceFramesTest::lateAnswerIsNotShownInTheNextWindow()
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

USSD_TEST_MAIN(ServiceFramesTest)

#include "service_frames_test.moc"
