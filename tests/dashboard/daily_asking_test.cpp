#include <QFile>

#include "account/DailyAsking.h"
#include "CommandTest.h"
#include "device/DashboardSettings.h"

using namespace Dashboard;

namespace
{

const QDateTime NOON(QDate(2026, 11, 21), QTime(12, 0));
const char CODE[] = "*100#";

} // namespace

/** Tests when the dashboard requests the balance automatically. */
class DailyAskingTest : public CommandTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void nothingIsAskedUnlessSwitchedOn();
    void itAsksOnceADay();
    void aRestartDoesNotAskAgain();
    void eachSimIsAsked();
    void aFailedAttemptCounts();
    void aCodeOfTheUserCounts();
    void aReplyToAnotherWindowCounts();
    void aWrongClockDoesNotStopItForEver();
    void itWaitsWhileSomethingElseGoesOn();
    void itWaitsAbroadAndWithoutNetwork_data();
    void itWaitsAbroadAndWithoutNetwork();
    void theRuleDecides();
    void noImsiIsStored();
    void forgettingDoesNotAsk();

private:
    void restart();
    static TKSV_DeviceInfo registered(const char *imsi = "001010000000001");
    void tell(const TKSV_DeviceInfo &info);
    int asked() const { return int(fakeSdkCommands().size()); }
    void look(int hours = 0);

    QScopedPointer<DashboardSettings> m_settings;
    QScopedPointer<DailyAsking> m_daily;
    QDateTime m_time;
    bool m_mayAsk = true;
};

void DailyAskingTest::setUp()
{
    QFile::remove(DashboardSettings().file());
    CommandTest::setUp();
    m_time = NOON;
    m_mayAsk = true;
    m_settings.reset(new DashboardSettings);
    m_settings->setAsksDaily(true);
    fakeSdkSetAnswer(fakeReply(u"Balance: 12.50 EUR"));
    tell(registered());
    fakeSdkForgetRecords();
    restart();
}

void DailyAskingTest::tearDown()
{
    m_daily.reset();
    m_settings.reset();
    CommandTest::tearDown();
}

void DailyAskingTest::restart()
{
    m_daily.reset(new DailyAsking(&monitor(), &device(), m_settings.data()));
    m_daily->setClock([this] { return m_time; });
    m_daily->setSimKey([](const QString &imsi) { return QLatin1String("key") + imsi.right(2); });
    m_daily->setRule([this] { return m_mayAsk; });
    m_daily->setCode(QLatin1String(CODE));
}

TKSV_DeviceInfo DailyAskingTest::registered(const char *imsi)
{
    TKSV_DeviceInfo info = {};
    info.backend = TKSV_BACKEND_MODEMMANAGER;
    info.state = TKSV_DEVICE_REGISTERED;
    qstrncpy(info.imsi, imsi, sizeof info.imsi);
    return info;
}

void DailyAskingTest::tell(const TKSV_DeviceInfo &info)
{
    fakeSdkSetDeviceInfo(info);
    device().refresh();
    settle();
}

/// Advances the time by this number of hours, and then makes the object check the time.
void DailyAskingTest::look(int hours)
{
    m_time = m_time.addSecs(qint64(hours) * 3600);
    m_daily->look();
    settle();
}

void DailyAskingTest::nothingIsAskedUnlessSwitchedOn()
{
    m_settings->setAsksDaily(false);
    look();
    QCOMPARE(asked(), 0);
    QFile::remove(m_settings->file());
    QVERIFY(!DashboardSettings().asksDaily()); // disabled by default
    m_settings->setAsksDaily(true);
    m_daily->setCode(QString());
    look();
    QCOMPARE(asked(), 0);
}

void DailyAskingTest::itAsksOnceADay()
{
    look();
    QVERIFY(fakeSdkCommands() == std::vector<std::u16string>{u"*100#"});
    look();
    look(23);
    QCOMPARE(asked(), 1);
    look(1);
    QCOMPARE(asked(), 2);
}

void DailyAskingTest::aRestartDoesNotAskAgain()
{
    look();
    restart();
    look(23);
    QCOMPARE(asked(), 1);
    restart();
    look(1);
    QCOMPARE(asked(), 2);
}

void DailyAskingTest::eachSimIsAsked()
{
    look();
    tell(registered("001010000000002"));
    look();
    QCOMPARE(asked(), 2);
    tell(registered());
    look();
    QCOMPARE(asked(), 2);
}

void DailyAskingTest::aFailedAttemptCounts()
{
    fakeSdkSetAnswer(fakeReply(u"", TKSV_FAILURE_REFUSED));
    look();
    monitor().dismiss();
    look(1);
    QCOMPARE(asked(), 1);
}

void DailyAskingTest::aCodeOfTheUserCounts()
{
    QVERIFY(monitor().send(QLatin1String(CODE)));
    settle();
    look();
    QCOMPARE(asked(), 1);
    look(24);
    QCOMPARE(asked(), 2);
}

void DailyAskingTest::aReplyToAnotherWindowCounts()
{
    Reply reply;
    reply.text = QLatin1String("Balance: 12.50 EUR");
    emit monitor().replied(QLatin1String("*99#"), reply);
    emit monitor().replied(QLatin1String(CODE), reply);
    look();
    QCOMPARE(asked(), 0);
    look(24);
    QCOMPARE(asked(), 1);
}

void DailyAskingTest::aWrongClockDoesNotStopItForEver()
{
    m_time = NOON.addYears(5);
    look();
    m_time = NOON;
    look();
    QCOMPARE(asked(), 2);
}

void DailyAskingTest::itWaitsWhileSomethingElseGoesOn()
{
    fakeSdkSetAnswer(fakeReply(u"1 Yes\n2 No", 1)); // the network waits for an answer
    QVERIFY(monitor().send(QLatin1String("*123#")));
    settle();
    QCOMPARE(state().kind, Kind::MenuOpen);
    look();
    QCOMPARE(asked(), 1);
    monitor().endMenu();
    settle();
    QCOMPARE(state().kind, Kind::MenuEnded);
    look();
    QCOMPARE(asked(), 1); // no further request, because the user may still be reading
    monitor().dismiss();
    fakeSdkSetAnswer(FakeAnswer());
    QVERIFY(monitor().send(QLatin1String("*7#")));
    settle();
    look();
    QCOMPARE(asked(), 2); // no further request, because a reply is pending
}

void DailyAskingTest::itWaitsAbroadAndWithoutNetwork_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"roaming", "searching", "foreign session", "turn", "no SIM"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void DailyAskingTest::itWaitsAbroadAndWithoutNetwork()
{
    QFETCH(QString, what);
    TKSV_DeviceInfo info = registered(what == QLatin1String("no SIM") ? "" : "001010000000001");
    info.isRoaming = what == QLatin1String("roaming");
    info.hasForeignSession = what == QLatin1String("foreign session");
    info.waitsForTurn = what == QLatin1String("turn");
    if (what == QLatin1String("searching"))
        info.state = TKSV_DEVICE_SEARCHING;
    m_daily->setSimKey([](const QString &imsi) { return imsi; });
    tell(info);
    look();
    QCOMPARE(asked(), 0);
    tell(registered());
    look();
    QCOMPARE(asked(), 1);
}

void DailyAskingTest::theRuleDecides()
{
    m_mayAsk = false;
    look();
    QCOMPARE(asked(), 0);
    m_mayAsk = true;
    look();
    QCOMPARE(asked(), 1);
}

void DailyAskingTest::noImsiIsStored()
{
    look();
    QVERIFY(m_settings->save());
    const QByteArray content = contentOf(m_settings->file());
    QVERIFY(content.contains("key01"));
    QVERIFY(!content.contains("001010000000001"));
}

void DailyAskingTest::forgettingDoesNotAsk()
{
    look();
    tell(registered("001010000000002"));
    look();
    m_daily->forget();
    look();
    QCOMPARE(asked(), 2);
    QVERIFY(m_settings->lastAsked(QLatin1String("key02")).isValid());
    QVERIFY(!m_settings->lastAsked(QLatin1String("key01")).isValid());
}

USSD_TEST_MAIN(DailyAskingTest)
#include "daily_asking_test.moc"
