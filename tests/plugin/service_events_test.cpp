#include "ServiceTest.h"

#include "Languages.h"

/** Tests the events that the host passes to Notify(). */
class ServiceEventsTest : public ServiceTest
{
    Q_OBJECT

private slots:
    // ---- languages
    void languageEventReachesBothDialogs();
    void languageEventReachesEveryDialog();
    void languageEventReachesTheDialogOfType_data();
    void languageEventReachesTheDialogOfType();
    void languageEventBeforeAnyWindowDoesNothing();

    // ---- SIM card and unknown events
    void imsiEventClosesTheFrameWhenMatching();
    void imsiEventClosesEveryFrameButUssdSms_data();
    void imsiEventClosesEveryFrameButUssdSms();
    void imsiEventLeavesTheUssdSmsWindow();
    void imsiEventMayEndInAShutDown();
    void imsiEventLeavesTheFrameWithoutMatching();
    void unknownEventDoesNothing();
};

// ---- languages ----------------------------------------------------------------------------------

void ServiceEventsTest::languageEventReachesBothDialogs()
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

void ServiceEventsTest::languageEventReachesEveryDialog()
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

void ServiceEventsTest::languageEventReachesTheDialogOfType_data()
{
    addFramedTypes();
}

void ServiceEventsTest::languageEventReachesTheDialogOfType()
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

void ServiceEventsTest::languageEventBeforeAnyWindowDoesNothing()
{
    QCOMPARE(service()->Notify(320, 0, 0), 0);
    QVERIFY(m_mainWindow->findChildren<QWidget *>().isEmpty());
}

// ---- SIM card and unknown events ----------------------------------------------------------------

void ServiceEventsTest::imsiEventClosesTheFrameWhenMatching()
{
    service()->DoModal();
    QCOMPARE(service()->Notify(579, 1, 2), 0);
    drainEvents();
    QVERIFY(!frame());
}

void ServiceEventsTest::imsiEventClosesEveryFrameButUssdSms_data()
{
    addFramedTypes();
}

void ServiceEventsTest::imsiEventClosesEveryFrameButUssdSms()
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

void ServiceEventsTest::imsiEventLeavesTheUssdSmsWindow()
{
    service()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
    service()->Notify(579, 0, 0);
    drainEvents();
    QVERIFY(frame() && frame()->isVisible());
}

/// Tests that a host may shut the plug-in down when the first frame closes.
void ServiceEventsTest::imsiEventMayEndInAShutDown()
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

void ServiceEventsTest::imsiEventLeavesTheFrameWithoutMatching()
{
    writeConfig("<c><autoUSSD valid='false'/></c>");
    service()->DoModal();
    service()->Notify(579, 0, 0);
    QVERIFY(frame()->isVisible());
}

void ServiceEventsTest::unknownEventDoesNothing()
{
    service()->DoModal();
    QCOMPARE(service()->Notify(4711, 0, 0), 0);
    QVERIFY(frame()->isVisible());
}

USSD_TEST_MAIN(ServiceEventsTest)

#include "service_events_test.moc"
