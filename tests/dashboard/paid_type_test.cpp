#include <QSignalSpy>

#include "IUSSD.h"
#include "PluginContract.h"
#include "sim/NotificationService.h"
#include "SimTest.h"
#include "Startup.h"

using namespace Dashboard;

namespace
{

const char PREPAID_SIM[] = "001010000000001";
const char POSTPAID_SIM[] = "001020000000001";
const char PREPAID[] = "[*103#]\nReply=Account 1\n[*123#]\nReply=Menu\n[*123#/1]\nReply=Done\n"
                       "[*199#]\nOutcome=silence\n";
const char POSTPAID[] = "[*103#]\nReply=Contract\n";
const char SILENT[] = "[*103#]\nOutcome=silence\n[*100#]\nReply=Here\n";
const char SLOW[] = "[*103#]\nReply=Account 1\nDelay=300\n[*100#]\nReply=Money\n[*102#]\nReply=1\n";
const char LATE[] = "[*103#]\nReply=Account 1\n[Event found]\nAfter=500\nState=registered\n";

const unsigned int TOLD = 384;

NotifyParam addressOf(const PrePostRecord &record)
{
    return reinterpret_cast<NotifyParam>(&record);
}

QString addressee(int index)
{
    return QLatin1String(NotificationService::ADDRESSEES[index]);
}

} // namespace

/** Tests how the dashboard detects and shows whether the SIM is prepaid or postpaid. */
class PaidTypeTest : public SimTest
{
    Q_OBJECT
private slots:
    void theServiceTakesWhatIsMeantForIt();
    void theServiceTellsWhatTheRecordSays_data();
    void theServiceTellsWhatTheRecordSays();
    void thePluginFindsTheServiceByItsIdentifier();

    void aPrepaidSimIsShown();
    void aPostpaidSimIsShown();
    void theShownKindFollowsTheLanguage();
    void whileItIsAskedThatIsShown();
    void aSilentNetworkLeavesItUnknown();
    void aConfigurationWithoutTheQuestionAsksNothing();
    void anotherSimIsAskedAnew();
    void theAnswerOfTheSimBeforeIsNotTaken();
    void aNewDeviceIsLeftAloneForAMoment();
    void aSimThatIsNotRegisteredIsAskedLater();
    void aDeviceThatComesBackIsAskedAnew();

    void aCommandOfTheUserComesFirst();
    void anOpenFrameComesFirst();
    void anOpenMenuComesFirst();
    void anAccountWindowWaitsForTheAnswer();
    void anAccountWindowDoesNotWaitForeverForTheAnswer();

private:
    void openWith(const char *imsi, const char *codes, const char *keys = "");
};

void PaidTypeTest::openWith(const char *imsi, const char *codes, const char *keys)
{
    useNetwork(imsi, keys, codes);
    openDashboard();
}

void PaidTypeTest::theServiceTakesWhatIsMeantForIt()
{
    NotificationService service;
    const PrePostRecord record = {true, false, 1};
    int timesEmitted = 0;
    connect(&service, &NotificationService::paidTypeTold, [&] { ++timesEmitted; });
    QCOMPARE(service.Notify(addressee(0), TOLD, addressOf(record), 0), 0);
    QCOMPARE(service.Notify(addressee(1), TOLD, addressOf(record), 0), 0);
    QCOMPARE(timesEmitted, 2);
    QVERIFY(service.Notify(QLatin1String("somebody"), TOLD, addressOf(record), 0) != 0);
    QVERIFY(service.Notify(addressee(0), TOLD + 1, addressOf(record), 0) != 0);
    QVERIFY(service.Notify(addressee(0), TOLD, 0, 0) != 0);
    QCOMPARE(timesEmitted, 2);
}

void PaidTypeTest::theServiceTellsWhatTheRecordSays_data()
{
    QTest::addColumn<bool>("inUse");
    QTest::addColumn<bool>("postpaid");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("type");
    QTest::newRow("prepaid") << true << false << 1 << int(PaidType::Prepaid);
    QTest::newRow("postpaid") << true << true << 1 << int(PaidType::Postpaid);
    QTest::newRow("time-out") << true << true << 0 << int(PaidType::Unknown);
    QTest::newRow("not in use") << false << false << 1 << int(PaidType::Unknown);
}

void PaidTypeTest::theServiceTellsWhatTheRecordSays()
{
    QFETCH(bool, inUse);
    QFETCH(bool, postpaid);
    QFETCH(int, result);
    QFETCH(int, type);
    NotificationService service;
    int received = -1;
    connect(&service, &NotificationService::paidTypeTold,
            [&](PaidType each) { received = int(each); });
    const PrePostRecord record = {inUse, postpaid, result};
    service.Notify(addressee(0), TOLD, addressOf(record), 0);
    QCOMPARE(received, type);
}

void PaidTypeTest::thePluginFindsTheServiceByItsIdentifier()
{
    QVERIFY(!Startup::GetPluginContainer());
    {
        PluginContainer container;
        NotificationService service;
        container.add(QLatin1String(NotificationService::CLSID), &service);
        QCOMPARE(Startup::GetPluginContainer(), &container);
        QObject *found = container.GetPlugin(QLatin1String("5B21E0C4-7D93-4A6F-9E08-C3F1A7D24B61"));
        QVERIFY(found);
        QCOMPARE(qobject_cast<INotifyService *>(found), &service);
        QVERIFY(!container.GetPlugin(QLatin1String("other")));
    }
    QVERIFY(!Startup::GetPluginContainer());
}

void PaidTypeTest::aPrepaidSimIsShown()
{
    openWith(PREPAID_SIM, PREPAID);
    QCOMPARE(paidType(), QString());
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
}

void PaidTypeTest::aPostpaidSimIsShown()
{
    openWith(POSTPAID_SIM, POSTPAID);
    QTRY_COMPARE(paidType(), QLatin1String("Postpaid"));
}

void PaidTypeTest::theShownKindFollowsTheLanguage()
{
    openWith(POSTPAID_SIM, POSTPAID);
    QTRY_COMPARE(paidType(), QLatin1String("Postpaid"));
    window().setLanguage(QLatin1String("de"));
    QCOMPARE(paidType(), QLatin1String("Vertrag"));
}

void PaidTypeTest::whileItIsAskedThatIsShown()
{
    openWith(PREPAID_SIM, SLOW);
    QTRY_VERIFY(window().sim().isAsking());
    QVERIFY2(paidType().startsWith(QLatin1String("Prepaid or postpaid?")), qPrintable(paidType()));
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
    QVERIFY(!window().sim().isAsking());
}

void PaidTypeTest::aSilentNetworkLeavesItUnknown()
{
    openWith(PREPAID_SIM, SILENT);
    QTRY_VERIFY(window().sim().isAsking());
    QTRY_VERIFY(!window().sim().isAsking());
    QCOMPARE(paidType(), QString());
    // The page accepts a command, because the detection is not repeated.
    QVERIFY(page().send(QLatin1String("*100#")));
    QTRY_COMPARE(page().lastReceived(), QLatin1String("Here"));
    drainEvents();
    QVERIFY(!window().sim().isAsking());
}

void PaidTypeTest::aConfigurationWithoutTheQuestionAsksNothing()
{
    QVERIFY(configure("<PrePostDiffer", "value=\"true\"", "value=\"false\""));
    useNetwork(PREPAID_SIM, "Balance=5.00",
               "[*103#]\nReply=Account 1\nCredit=1.00\n[*100#]\nReply={balance}\n");
    openDashboard();
    QSignalSpy settled(window().findChild<PaidTypeFinder *>(), SIGNAL(settled()));
    QTRY_VERIFY(!settled.isEmpty());
    QCOMPARE(paidType(), QString());
    QVERIFY(page().send(QLatin1String("*100#")));
    QTRY_COMPARE(page().lastReceived(), QLatin1String("5.00"));
}

void PaidTypeTest::anotherSimIsAskedAnew()
{
    openWith(PREPAID_SIM, PREPAID);
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
    useNetwork(POSTPAID_SIM, "", POSTPAID);
    QCOMPARE(paidType(), QString());
    QTRY_COMPARE(paidType(), QLatin1String("Postpaid"));
}

// Tests that the result of a detection is not shown for a new SIM. If the SIM changes during the
// detection, the plug-in reports the failed detection as "postpaid".
void PaidTypeTest::theAnswerOfTheSimBeforeIsNotTaken()
{
    openWith(POSTPAID_SIM, SILENT);
    QTRY_VERIFY(window().sim().isAsking());
    QStringList shown;
    connect(&window().sim(), &SimFollower::paidTypeChanged, [&] { shown << paidType(); });
    useNetwork(PREPAID_SIM, "", PREPAID);
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
    QVERIFY2(!shown.contains(QLatin1String("Postpaid")),
             qPrintable(shown.join(QLatin1String("|"))));
}

// Tests that the detection on a new device starts after a pause. During the pause, a thread of the
// SDK may still be cancelling the commands for the previous device.
void PaidTypeTest::aNewDeviceIsLeftAloneForAMoment()
{
    openWith(PREPAID_SIM, PREPAID);
    PaidTypeFinder *finder = window().findChild<PaidTypeFinder *>();
    QSignalSpy settled(finder, SIGNAL(settled()));
    QElapsedTimer time;
    time.start();
    finder->restart();
    finder->tryToAsk();
    QVERIFY(!finder->isAsking());
    QVERIFY(settled.wait());
    QVERIFY(time.elapsed() >= 100);
}

void PaidTypeTest::aSimThatIsNotRegisteredIsAskedLater()
{
    openWith(PREPAID_SIM, LATE, "State=searching");
    QVERIFY(!window().sim().isAsking());
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
}

void PaidTypeTest::aDeviceThatComesBackIsAskedAnew()
{
    const char codes[] = "[*103#]\nReply=Account 1\n[Event away]\nAfter=800\nDeviceEvent=6016\n"
                         "Away=100\n";
    openWith(PREPAID_SIM, codes);
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
    QTRY_COMPARE(paidType(), QString());
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
}

void PaidTypeTest::aCommandOfTheUserComesFirst()
{
    openWith(PREPAID_SIM, PREPAID);
    bool interrupted = false;
    connect(&window().sim(), &SimFollower::paidTypeChanged,
            [&] { interrupted = interrupted || page().isWaiting(); });
    QVERIFY(page().send(QLatin1String("*199#")));
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
    QVERIFY(!interrupted);
    QVERIFY(page().lastReceived().contains(QLatin1String("did not reply in time")));
}

void PaidTypeTest::anOpenFrameComesFirst()
{
    openWith(PREPAID_SIM, PREPAID);
    QSignalSpy settled(window().findChild<PaidTypeFinder *>(), SIGNAL(settled()));
    window().openFrame(PAID_TYPE_GENERAL);
    QTRY_VERIFY(!settled.isEmpty());
    drainEvents();
    QVERIFY(!window().sim().isAsking());
    frame()->close();
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
}

void PaidTypeTest::anOpenMenuComesFirst()
{
    openWith(PREPAID_SIM, PREPAID);
    QVERIFY(page().send(QLatin1String("*123#")));
    QSignalSpy settled(window().findChild<PaidTypeFinder *>(), SIGNAL(settled()));
    QTRY_VERIFY(!settled.isEmpty());
    QTRY_VERIFY(!page().isWaiting());
    drainEvents();
    QVERIFY(!window().sim().isAsking());
    QVERIFY(page().send(QLatin1String("1")));
    QTRY_COMPARE(page().lastReceived(), QLatin1String("Done"));
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
}

void PaidTypeTest::anAccountWindowWaitsForTheAnswer()
{
    openWith(PREPAID_SIM, SLOW);
    QTRY_VERIFY(window().sim().isAsking());
    window().openFrame(PAID_TYPE_PREPAID);
    QVERIFY(!frame());
    QTRY_VERIFY(frame());
    QCOMPARE(paidType(), QLatin1String("Prepaid"));
    const QTextEdit *balance =
        frame()->findChild<QTextEdit *>(QLatin1String("USSDUIPlugin_BalanceStatusTextEdit"));
    QVERIFY(balance);
    QTRY_COMPARE(balance->toPlainText(), QLatin1String("Money"));
}

void PaidTypeTest::anAccountWindowDoesNotWaitForeverForTheAnswer()
{
    openWith(PREPAID_SIM, SILENT);
    QTRY_VERIFY(window().sim().isAsking());
    window().openFrame(PAID_TYPE_PREPAID);
    QVERIFY(!frame());
    QTimer *delay = window().findChild<QTimer *>(QLatin1String("Dashboard_FrameDelay"));
    QVERIFY(delay);
    QVERIFY(delay->isActive());
    QVERIFY(delay->interval() <= 5000);
    delay->setInterval(1);
    QTRY_VERIFY_WITH_TIMEOUT(frame(), 300); // the plug-in waits 400 ms for the network
    QVERIFY(window().sim().isAsking());
}

USSD_TEST_MAIN(PaidTypeTest)
#include "paid_type_test.moc"
