/*
 * Tests which device is used if the user has not chosen one: a modem if there is one, otherwise the
 * simulator.
 */
#include "ModemWorld.h"

#include <QtTest>

#include <atomic>

#include "SdkFixture.h"
#include "tksv_device.h"
#include "UssdTest.h"

using namespace SdkFixture;
using FakeModems::ModemWorld;

namespace
{

const char NETWORK[] = R"([Network]
Operator=Test Net
IMSI=001010000000001
[*100#]
Reply=From the modem
)";

const int ROUNDS = 25;

TKSV_DeviceInfo info()
{
    TKSV_DeviceInfo result;
    TKSV_Device_GetInfo(&result);
    return result;
}

bool waitForDevice(TKSV_Backend backend, TKSV_DeviceState state)
{
    return waitUntil([=] {
        const TKSV_DeviceInfo now = info();
        return now.backend == backend && now.state == state;
    });
}

unsigned long countModems()
{
    unsigned long count = 0;
    TKSV_Device_GetModems(nullptr, 0, &count);
    return count;
}

QString reply()
{
    return QString::fromStdU16String(ask(u"*100#").text);
}

} // namespace

class ModemAutomaticTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUpClass() override;
    void setUp() override;
    void tearDown() override;

private slots:
    void theFirstCommandWaitsForTheModem();
    void aModemThatComesTakesTheSimulatorsPlace();
    void theSimulatorDoesNotTakeAModemsPlace();
    void theDaemonMayStartLater();
    void whatTheUserChoseStays();
    void choicesOfManyThreadsEndInTheLast();

private:
    void addModem();

    std::unique_ptr<ModemWorld> m_world;
};

/// Unsets the variable before the first call of the library. Tests use the simulator by default
/// because of this variable.
void ModemAutomaticTest::setUpClass()
{
    qunsetenv("TKSV_BACKEND");
}

void ModemAutomaticTest::setUp()
{
    m_world = std::make_unique<ModemWorld>();
    QCOMPARE(m_world->start(), std::string());
}

void ModemAutomaticTest::tearDown()
{
    if (QTest::currentTestFailed())
        std::fprintf(stderr, "%s\n", m_world->logTail().c_str());
    unregisterAll();
    m_world.reset();
    // The library searches for the next world only after it has noticed the end of this one.
    TKSV_Device_UseModem(nullptr);
    QVERIFY(waitUntil([] { return info().problem == TKSV_PROBLEM_NO_BUS; }));
    received().clear();
}

void ModemAutomaticTest::addModem()
{
    QCOMPARE(m_world->addModem("one", NETWORK), std::string());
}

/// Tests a library that has not seen any device yet. This test must therefore be the first in the
/// process.
void ModemAutomaticTest::theFirstCommandWaitsForTheModem()
{
    addModem();
    QVERIFY(!m_world->enable("one").empty());
    registerAll();
    QCOMPARE(reply(), QLatin1String("From the modem"));
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    QVERIFY(received().deviceEvents.all().empty());
    QCOMPARE(received().responses.all().size(), std::size_t(1));
}

void ModemAutomaticTest::aModemThatComesTakesTheSimulatorsPlace()
{
    registerAll();
    TKSV_Device_UseAutomatic();
    QVERIFY(waitForDevice(TKSV_BACKEND_SIMULATOR, TKSV_DEVICE_REGISTERED));
    received().clear();
    addModem();
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    QVERIFY(received().deviceEvents.waitFor(1));
    QCOMPARE(received().deviceEvents.all(), std::vector<int>{TKSV_DEV_EVENT_GONE});
    QCOMPARE(reply(), QLatin1String("From the modem"));
}

void ModemAutomaticTest::theSimulatorDoesNotTakeAModemsPlace()
{
    registerAll();
    TKSV_Device_UseAutomatic();
    addModem();
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    m_world->unplug("one");
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_ABSENT));
    QVERIFY(request(u"*100#") != 0);
    m_world->plugIn("one");
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    QCOMPARE(reply(), QLatin1String("From the modem"));
}

void ModemAutomaticTest::theDaemonMayStartLater()
{
    m_world->stopDaemon();
    registerAll();
    TKSV_Device_UseAutomatic();
    QVERIFY(waitForDevice(TKSV_BACKEND_SIMULATOR, TKSV_DEVICE_REGISTERED));
    addModem();
    QVERIFY(m_world->startDaemon());
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
}

void ModemAutomaticTest::whatTheUserChoseStays()
{
    registerAll();
    QCOMPARE(TKSV_Device_UseScenario(nullptr, nullptr, 0), 0L);
    addModem();
    // The library has found the modem but does not use it.
    QVERIFY(waitUntil([] { return countModems() == 1; }));
    QCOMPARE(int(info().backend), int(TKSV_BACKEND_SIMULATOR));
    TKSV_Device_UseAutomatic();
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
}

void ModemAutomaticTest::choicesOfManyThreadsEndInTheLast()
{
    registerAll();
    addModem();
    std::atomic<std::size_t> accepted(0);
    const auto inThread = [](const std::function<void()> &step) {
        return std::thread([step] {
            for (int i = 0; i < ROUNDS; ++i)
                step();
        });
    };
    std::thread threads[] = {
        inThread([] { TKSV_Device_UseModem(nullptr); }),
        inThread([] { TKSV_Device_UseScenario(nullptr, nullptr, 0); }),
        inThread([] { TKSV_Device_UseAutomatic(); }),
        inThread([&] { accepted += request(u"*100#") == 0 ? 1 : 0; }),
        inThread([] { TKSV_USSDSrv_Release(nullptr); }),
    };
    for (std::thread &thread : threads)
        thread.join();
    TKSV_Device_UseModem(nullptr);
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    const Response last = ask(u"*100#");
    QCOMPARE(QString::fromStdU16String(last.text), QLatin1String("From the modem"));
    QVERIFY(received().responses.all().size() <= accepted + 1);
}

USSD_TEST_MAIN(ModemAutomaticTest)
#include "automatic_test.moc"
