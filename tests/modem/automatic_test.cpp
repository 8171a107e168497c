/*
 * Tests which device the library uses if none is selected: the first modem that has registered. The
 * library must never use the simulator.
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
    void theSimulatorIsNotUsedWithoutAModem();
    void aModemThatComesIsUsed();
    void theSimulatorDoesNotTakeAModemsPlace();
    void theDaemonMayStartLater();
    void theRegisteredModemIsPreferred();
    void theModemInUseStaysInUse();
    void whatTheUserChoseStays();
    void choicesOfManyThreadsEndInTheLast();

private:
    void addModem();
    void addSecondModem();

    std::unique_ptr<ModemWorld> m_world;
};

/// Unsets TKSV_BACKEND, with which the tests normally select the simulator. This must be done
/// before the library is first called.
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
    // The library searches for the next ModemWorld only after it has noticed the end of this one.
    TKSV_Device_UseModem(nullptr);
    QVERIFY(waitUntil([] { return info().problem == TKSV_PROBLEM_NO_BUS; }));
    received().clear();
}

void ModemAutomaticTest::addModem()
{
    QCOMPARE(m_world->addModem("one", NETWORK), std::string());
}

void ModemAutomaticTest::addSecondModem()
{
    FakeModems::ModemSettings settings;
    settings.imei = "350000000000025";
    const std::string network =
        QByteArray(NETWORK).replace("the modem", "the second modem").toStdString();
    QCOMPARE(m_world->addModem("two", network, settings), std::string());
}

/// Tests that a command that is sent before the library has found a device waits for the modem.
/// Must be the first test in the process.
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

void ModemAutomaticTest::theSimulatorIsNotUsedWithoutAModem()
{
    registerAll();
    TKSV_Device_UseAutomatic();
    QVERIFY(waitUntil([] { return info().isLooking == 0; }));
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_ABSENT));
    // The request is rejected as soon as the library knows that there is no modem.
    QVERIFY(waitUntil([] { return request(u"*100#") != 0; }));
    QVERIFY(waitUntil([] { return info().problem == TKSV_PROBLEM_NONE; }));
    TKSV_FailureInfo failure;
    QCOMPARE(TKSV_Device_GetLastFailure(&failure), 0L);
    QCOMPARE(int(failure.reason), int(TKSV_FAILURE_NO_DEVICE));
}

void ModemAutomaticTest::aModemThatComesIsUsed()
{
    registerAll();
    TKSV_Device_UseAutomatic();
    QVERIFY(waitUntil([] { return info().isLooking == 0; }));
    received().clear();
    addModem();
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_DISABLED));
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    QCOMPARE(reply(), QLatin1String("From the modem"));
    QVERIFY(received().deviceEvents.all().empty());
}

void ModemAutomaticTest::theSimulatorDoesNotTakeAModemsPlace()
{
    registerAll();
    TKSV_Device_UseAutomatic();
    addModem();
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    m_world->unplug("one");
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_ABSENT));
    QCOMPARE(int(info().problem), int(TKSV_PROBLEM_MODEM_REMOVED));
    QVERIFY(request(u"*100#") != 0);
    m_world->plugIn("one");
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    QCOMPARE(int(info().problem), int(TKSV_PROBLEM_NONE));
    QCOMPARE(reply(), QLatin1String("From the modem"));
}

void ModemAutomaticTest::theDaemonMayStartLater()
{
    m_world->stopDaemon();
    registerAll();
    TKSV_Device_UseAutomatic();
    QVERIFY(waitUntil([] { return info().problem == TKSV_PROBLEM_NO_SERVICE; }));
    addModem();
    QVERIFY(m_world->startDaemon());
    QCOMPARE(TKSV_Device_LookAgain(), 0L);
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_DISABLED));
}

/// Tests that the library switches from a disabled modem to another modem when that modem
/// registers.
void ModemAutomaticTest::theRegisteredModemIsPreferred()
{
    registerAll();
    TKSV_Device_UseAutomatic();
    addModem();
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_DISABLED));
    addSecondModem();
    QVERIFY(waitUntil([] { return countModems() == 2; }));
    QCOMPARE(info().equipmentId, "350000000000017");
    QVERIFY(!m_world->enable("two").empty());
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    QCOMPARE(info().equipmentId, "350000000000025");
    QVERIFY(received().deviceEvents.all().empty());
    QCOMPARE(reply(), QLatin1String("From the second modem"));

    TKSV_Modem list[2];
    unsigned long count = 0;
    QCOMPARE(TKSV_Device_GetModems(list, 2, &count), 0L);
    QCOMPARE(int(list[0].state), int(TKSV_DEVICE_DISABLED));
    QCOMPARE(int(list[1].state), int(TKSV_DEVICE_REGISTERED));
    QCOMPARE(list[0].isInUse, 0);
    QCOMPARE(list[1].isInUse, 1);
}

/// Tests that a short loss of the network does not make the library switch to another modem, and
/// thus to another SIM card.
void ModemAutomaticTest::theModemInUseStaysInUse()
{
    registerAll();
    TKSV_Device_UseAutomatic();
    addModem();
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    addSecondModem();
    QVERIFY(!m_world->enable("two").empty());
    QVERIFY(m_world->switchOff("one"));
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_DISABLED));
    QCOMPARE(info().equipmentId, "350000000000017");
    m_world->unplug("one");
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_REGISTERED));
    QCOMPARE(info().equipmentId, "350000000000025");
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
    QVERIFY(waitForDevice(TKSV_BACKEND_MODEMMANAGER, TKSV_DEVICE_DISABLED));
}

void ModemAutomaticTest::choicesOfManyThreadsEndInTheLast()
{
    registerAll();
    addModem();
    QVERIFY(!m_world->enable("one").empty());
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
