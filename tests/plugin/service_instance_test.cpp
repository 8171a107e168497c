#include "ServiceTest.h"

#include <QRegularExpression>
#include <QSet>

#include "profiles/USSDEditCmd.h"

/** Tests the CUSSDService singleton: its results without a window, its log, and its destruction. */
class ServiceInstanceTest : public ServiceTest
{
    Q_OBJECT

private slots:
    // ---- the singleton
    void instanceIsOneAndTheSame();
    void metacastKnowsTheInterface();

    // ---- without a window
    void detectionWorksWithoutAWindow();
    void imsiQuestionsReachTheLogic();

    // ---- the log
    void logLinesNameTheFileOfTheirClassFamily();

    // ---- shutting down
    void destroyWithoutInstanceDoesNothing();
    void secondDestroyFindsNothing();
    void destroyWithOpenMessageBoxEnds();
    void destroyWithWindowsOpenAndCommandInFlight();
};

// ---- the singleton ------------------------------------------------------------------------------

void ServiceInstanceTest::instanceIsOneAndTheSame()
{
    QVERIFY(service());
    QCOMPARE(CUSSDService::instance(), service());
}

void ServiceInstanceTest::metacastKnowsTheInterface()
{
    QObject *object = service();
    QCOMPARE(object->qt_metacast("CUSSDService"), static_cast<void *>(service()));
    void *interface = static_cast<IUSSD *>(service());
    QCOMPARE(object->qt_metacast("IUSSD"), interface);
    QCOMPARE(object->qt_metacast("com.zelvor.portalcompass.plugin.IUSSD"), interface);
    QCOMPARE(object->qt_metacast("QObject"), static_cast<void *>(object));
    QVERIFY(!object->qt_metacast("INotify"));
}

// ---- without a window ---------------------------------------------------------------------------

void ServiceInstanceTest::detectionWorksWithoutAWindow()
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

void ServiceInstanceTest::imsiQuestionsReachTheLogic()
{
    QVERIFY(service()->IsImsiDynamicMatch());
    int flags = -1;
    QVERIFY(service()->CheckImsiIsValid(QStringLiteral("001012345678901"), flags));
    QCOMPARE(flags, 8);
}

// ---- the log ------------------------------------------------------------------------------------

/// Tests that all log lines of a class contain the same file name, even if the class is implemented
/// in several files.
void ServiceInstanceTest::logLinesNameTheFileOfTheirClassFamily()
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

// ---- shutting down ------------------------------------------------------------------------------

void ServiceInstanceTest::destroyWithoutInstanceDoesNothing()
{
    CUSSDService::Destroy();
    QVERIFY(fakeSdkCalls().empty());
}

void ServiceInstanceTest::secondDestroyFindsNothing()
{
    service()->DoModal();
    CUSSDService::Destroy();
    CUSSDService::Destroy();
    QVERIFY(!frame());
}

void ServiceInstanceTest::destroyWithOpenMessageBoxEnds()
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

void ServiceInstanceTest::destroyWithWindowsOpenAndCommandInFlight()
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

USSD_TEST_MAIN(ServiceInstanceTest)

#include "service_instance_test.moc"
