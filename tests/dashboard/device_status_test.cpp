#include <QSignalSpy>

#include "device/DeviceStatus.h"
#include "device/DeviceWatcher.h"
#include "device/Scenarios.h"
#include "Languages.h"
#include "tksv_device.h"
#include "UssdTest.h"
#include "window/DeviceHeader.h"

#include <QLabel>

using namespace Dashboard;

namespace
{

QByteArray network(const char *more)
{
    return QByteArray("[Network]\nOperator=Other\nIMSI=001019999999999\n") + more + "\n";
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
    QCOMPARE(status.sourceText(), QLatin1String("Source: simulated network (quick.scenario)"));
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
    DeviceStatus status;
    status.operatorName = QLatin1String("<b>Op</b>");
    DeviceHeader header;
    header.showStatus(status);
    const QLabel *label = header.findChild<QLabel *>(QLatin1String("Dashboard_Operator"));
    QCOMPARE(label->text(), status.operatorName);
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

void DeviceStatusTest::aLongOperatorsNameIsElided()
{
    DeviceStatus status;
    status.operatorName = QLatin1String("<b>") + QString(120, QLatin1Char('W'));
    DeviceHeader header;
    header.showStatus(status);
    const QLabel *label = header.findChild<QLabel *>(QLatin1String("Dashboard_Operator"));
    QVERIFY(label->text().size() < status.operatorName.size());
    QVERIFY(label->toolTip().contains(QLatin1String("&lt;b&gt;WWW")));
    QVERIFY(header.sizeHint().width() < 900);
}

USSD_TEST_MAIN(DeviceStatusTest)
#include "device_status_test.moc"
