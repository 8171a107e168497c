#include "ModemTest.h"

#include <QtTest>

using namespace SdkFixture;

const char ModemTest::NETWORK[] = R"([Network]
Operator=Test Net
IMSI=001010000000001
Signal=60
[*100#]
Reply=Balance
[*101#]
Reply=Late
Delay=20
[*120#]
Reply=Menu
[*120#/1]
Reply=One
[*121#]
Reply=Menu
[*121#/1]
Goto=*121#
[*130#]
Outcome=refuse
[*131#]
Outcome=unsupported
[*132#]
Outcome=network-timeout
[*133#]
Outcome=silence
[*150#]
Reply=€ رصيدك Баланс\nline two
[*151#]
Reply=€ رصيدك Баланс\nline two
Delay=100
[*160#]
Reply=Reply 0
[*161#]
Reply=Reply 1
[*162#]
Reply=Reply 2
[*163#]
Reply=Reply 3
[*164#]
Reply=Reply 4
[*165#]
Reply=Reply 5
[*166#]
Reply=Reply 6
[*167#]
Reply=Reply 7
[SMS 28]
Result=28
)";

TKSV_DeviceInfo ModemTest::info()
{
    TKSV_DeviceInfo result;
    TKSV_Device_GetInfo(&result);
    return result;
}

TKSV_FailureInfo ModemTest::lastFailure()
{
    TKSV_FailureInfo failure;
    TKSV_Device_GetLastFailure(&failure);
    return failure;
}

bool ModemTest::waitForState(TKSV_DeviceState state)
{
    return waitUntil([state] { return info().state == state; });
}

bool ModemTest::waitForProblem(TKSV_DeviceProblem problem)
{
    return waitUntil([problem] { return info().problem == problem; });
}

void ModemTest::setUp()
{
    registerAll();
}

void ModemTest::tearDown()
{
    if (QTest::currentTestFailed() && m_world)
        std::fprintf(stderr, "%s\n", m_world->logTail().c_str());
    unregisterAll();
    m_world.reset();
    QVERIFY(waitForState(TKSV_DEVICE_ABSENT));
    received().clear();
}

void ModemTest::startWorld()
{
    m_world = std::make_unique<FakeModems::ModemWorld>();
    QCOMPARE(m_world->start(), std::string());
    TKSV_Device_UseModem(nullptr);
}

void ModemTest::addModem(const char *id, const FakeModems::ModemSettings &settings)
{
    QCOMPARE(m_world->addModem(id, NETWORK, settings), std::string());
}

void ModemTest::useModem(const FakeModems::ModemSettings &settings)
{
    startWorld();
    addModem("one", settings);
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitUntil([] { return info().state == TKSV_DEVICE_REGISTERED && info().canSendSMS; }));
    received().clear();
}

bool ModemTest::connect(FakeModems::MmClient &client)
{
    return client.use(m_world->stateOf("one").object);
}
