#include <QSignalSpy>

#include "device/DeviceStatus.h"
#include "device/DeviceWatcher.h"
#include "device/Scenarios.h"
#include "Languages.h"
#include "tksv_device.h"
#include "UssdTest.h"
#include "window/Header.h"

#include <QLabel>

using namespace Dashboard;

namespace
{

QByteArray network(const char *more)
{
    return QByteArray("[Network]\nOperator=Other\nIMSI=001019999999999\n") + more + "\n";
}

DeviceStatus modemStatus(int state)
{
    DeviceStatus status;
    status.isSimulated = false;
    status.state = state;
    return status;
}

} // namespace

class DeviceStatusTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override { QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en"))); }
    void tearDown() override { QVERIFY(Scenarios::use(QString()).isEmpty()); }

private slots:
    void theScenarioOfTheEnvironmentIsShown();
    void everyStateHasItsWords_data();
    void everyStateHasItsWords();
    void anUnknownSignalIsSaidInWords();
    void aBlockedSimIsSaidWithoutThePin();
    void aSimThatIsNotAcceptedIsSaid();
    void whoMayBecomeReady_data();
    void whoMayBecomeReady();
    void aModemIsNamed();
    void aChangeOfTheNetworkIsTold();
    void aBadScenarioChangesNothingAndNamesTheLine();
    void aMissingScenarioIsNamed();
    void anOperatorsNameIsPlainText();
    void aLongOperatorsNameIsElided();
};

void DeviceStatusTest::theScenarioOfTheEnvironmentIsShown()
{
    const DeviceStatus status = readDeviceStatus();
    QVERIFY(status.isSimulated);
    QVERIFY(status.isRegistered());
    QCOMPARE(status.operatorText(), QLatin1String("Test & Mobile"));
    QCOMPARE(status.signalText(), QLatin1String("Signal: 64%"));
    QCOMPARE(status.simText(), QLatin1String("SIM card: 001010000000007"));
    QCOMPARE(status.sourceText(),
             QLatin1String("Demonstration: invented network (quick.scenario)"));
    QVERIFY(status.troubleText().isEmpty());
}

void DeviceStatusTest::everyStateHasItsWords_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<QByteArray>("sim");
    QTest::addColumn<bool>("trouble");
    QTest::newRow("absent") << QByteArray("absent") << QByteArray("no device") << true;
    QTest::newRow("missing") << QByteArray("sim-missing") << QByteArray("no SIM card") << true;
    QTest::newRow("locked") << QByteArray("sim-locked") << QByteArray("PIN") << true;
    QTest::newRow("disabled") << QByteArray("disabled") << QByteArray("switched off") << true;
    QTest::newRow("searching") << QByteArray("searching") << QByteArray("001019999999999") << true;
    QTest::newRow("registered") << QByteArray("registered") << QByteArray("001019999999999")
                                << false;
}

void DeviceStatusTest::everyStateHasItsWords()
{
    QFETCH(QByteArray, state);
    QFETCH(QByteArray, sim);
    QFETCH(bool, trouble);
    const QString file =
        writeFile(QLatin1String("state.scenario"), network(("State=" + state).constData()));
    QCOMPARE(Scenarios::use(file), QString());
    const DeviceStatus status = readDeviceStatus();
    QVERIFY2(status.simText().contains(QString::fromLatin1(sim)), qPrintable(status.simText()));
    QCOMPARE(!status.troubleText().isEmpty(), trouble);
    QCOMPARE(status.isRegistered(), !trouble);
}

void DeviceStatusTest::anUnknownSignalIsSaidInWords()
{
    DeviceStatus status;
    status.signalPercent = -1;
    QCOMPARE(status.signalText(), QLatin1String("Signal: unknown"));
    QVERIFY(!status.operatorText().isEmpty());
}

void DeviceStatusTest::aBlockedSimIsSaidWithoutThePin()
{
    DeviceStatus status = modemStatus(TKSV_DEVICE_SIM_LOCKED);
    QVERIFY(status.troubleText().contains(QLatin1String("PIN")));
    status.problem = TKSV_PROBLEM_PUK_NEEDED;
    QVERIFY2(!status.troubleText().contains(QLatin1String("PIN")),
             qPrintable(status.troubleText()));
    QVERIFY(!status.waitsForPin());
}

void DeviceStatusTest::aSimThatIsNotAcceptedIsSaid()
{
    DeviceStatus status = modemStatus(TKSV_DEVICE_SEARCHING);
    QVERIFY(status.operatorText().startsWith(QLatin1String("Searching")));
    status.problem = TKSV_PROBLEM_REGISTRATION_DENIED;
    QCOMPARE(status.operatorText(), QLatin1String("No network"));
    QCOMPARE(status.troubleText(), QLatin1String("The network does not accept this SIM."));
}

void DeviceStatusTest::whoMayBecomeReady_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("problem");
    QTest::addColumn<bool>("isLooking");
    QTest::addColumn<bool>("mayBecomeReady");
    const int none = TKSV_PROBLEM_NONE;
    QTest::newRow("searching") << int(TKSV_DEVICE_SEARCHING) << none << false << true;
    QTest::newRow("looking") << int(TKSV_DEVICE_ABSENT) << none << true << true;
    QTest::newRow("no modem") << int(TKSV_DEVICE_ABSENT) << none << false << false;
    QTest::newRow("disabled") << int(TKSV_DEVICE_DISABLED) << none << false << false;
    QTest::newRow("registered") << int(TKSV_DEVICE_REGISTERED) << none << false << false;
    QTest::newRow("not permitted")
        << int(TKSV_DEVICE_SEARCHING) << int(TKSV_PROBLEM_NOT_PERMITTED) << false << false;
    QTest::newRow("denied") << int(TKSV_DEVICE_SEARCHING) << int(TKSV_PROBLEM_REGISTRATION_DENIED)
                            << false << false;
}

void DeviceStatusTest::whoMayBecomeReady()
{
    QFETCH(int, state);
    QFETCH(int, problem);
    QFETCH(bool, isLooking);
    QFETCH(bool, mayBecomeReady);
    DeviceStatus status = modemStatus(state);
    status.problem = problem;
    status.isLooking = isLooking;
    QCOMPARE(status.mayBecomeReady(), mayBecomeReady);
}

void DeviceStatusTest::aModemIsNamed()
{
    DeviceStatus status;
    status.isSimulated = false;
    status.source = QLatin1String("Maker Model");
    QCOMPARE(status.sourceText(), QLatin1String("Source: modem (Maker Model)"));
}

void DeviceStatusTest::aChangeOfTheNetworkIsTold()
{
    DeviceWatcher watcher;
    QSignalSpy changed(&watcher, SIGNAL(changed()));
    const QString file = writeFile(QLatin1String("other.scenario"), network("Signal=10"));
    QCOMPARE(Scenarios::use(file), QString());
    QVERIFY(changed.count() > 0 || changed.wait());
    QCOMPARE(watcher.status().operatorName, QLatin1String("Other"));
    QCOMPARE(watcher.status().signalPercent, 10);
}

void DeviceStatusTest::aBadScenarioChangesNothingAndNamesTheLine()
{
    const QString file = writeFile(QLatin1String("bad.scenario"), network("Signal=loud"));
    const QString error = Scenarios::use(file);
    QVERIFY2(error.contains(QLatin1String("bad.scenario:4")), qPrintable(error));
    QCOMPARE(readDeviceStatus().operatorName, QLatin1String("Test & Mobile"));
}

void DeviceStatusTest::aMissingScenarioIsNamed()
{
    const QString file = folder() + QLatin1String("/missing.scenario");
    QVERIFY(Scenarios::use(file).contains(file));
}

void DeviceStatusTest::anOperatorsNameIsPlainText()
{
    HeaderContent content;
    content.title = QLatin1String("<b>Op</b>");
    Header header;
    header.showContent(content);
    const QLabel *label = header.findChild<QLabel *>(QLatin1String("Dashboard_Operator"));
    QCOMPARE(label->text(), content.title);
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

void DeviceStatusTest::aLongOperatorsNameIsElided()
{
    HeaderContent content;
    content.title = QLatin1String("<b>") + QString(120, QLatin1Char('W'));
    Header header;
    header.showContent(content);
    header.resize(600, header.sizeHint().height());
    header.show();
    drainEvents();
    const QLabel *label = header.findChild<QLabel *>(QLatin1String("Dashboard_Operator"));
    QVERIFY(label->fontMetrics().horizontalAdvance(content.title) > label->width());
    QVERIFY(label->toolTip().contains(QLatin1String("&lt;b&gt;WWW")));
    QVERIFY(header.minimumSizeHint().width() < 600);
}

USSD_TEST_MAIN(DeviceStatusTest)
#include "device_status_test.moc"
