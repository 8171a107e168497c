/* Tests the guarantees of tksv_device.h. */
#include <atomic>
#include <QtTest>

#include "SdkFixture.h"
#include "tksv_device.h"

using namespace SdkFixture;

namespace
{

const char SCENARIO_START[] = "[Network]\nOperator=Test Net\nIMSI=001010000000001\nSignal=42\n";

TKSV_DeviceInfo info()
{
    TKSV_DeviceInfo result;
    TKSV_Device_GetInfo(&result);
    return result;
}

std::atomic<int> infoCalls(0);
void countInfo(void *context)
{
    ++infoCalls;
    static_cast<Gate *>(context)->open();
}

void openGate(void *gate)
{
    static_cast<Gate *>(gate)->open();
}

const char OFFER_PUSH[] = "[Push offer]\nAfter=0\nReply=An offer\n[Push offer/1]\nReply=Booked\n";

Inbox<std::string> &networkTexts()
{
    static Inbox<std::string> inbox;
    return inbox;
}

void onNetworkText(void *, const TKSV_NetworkText *text)
{
    networkTexts().add(text->text + std::string(text->waitsForAnswer ? "?" : "."));
}

std::atomic<int> notTaken(0);
unsigned char takeNothing(int, void *)
{
    ++notTaken;
    return 0;
}

} // namespace

class SdkDevice : public QObject
{
    Q_OBJECT
private slots:
    void shippedScenarioIsFoundBesideTheLibrary();
    void codesFailOn4GOnly();
    void roamingIsReported();
    void infoTellsOfTheScenario();
    void infoHidesWhatTheStateDoesNotGive_data();
    void infoHidesWhatTheStateDoesNotGive();
    void pinUnlocksTheSim();
    void pinsThatCannotBeAreRefused();
    void textOfTheNetworkIsToldToTheDashboard();
    void textThatCameBeforeIsToldAsWell();
    void nullInfoIsRefused();
    void badScenarioChangesNothing();
    void messageIsCutToItsSize();
    void newScenarioEndsTheRequestByAnEvent();
    void newScenarioTellsReadinessForSms();
    void infoCallbackTellsOfChanges();
    void infoCallbackIsOneAtMost();
};

void SdkDevice::shippedScenarioIsFoundBesideTheLibrary()
{
    QCOMPARE(TKSV_Device_UseScenario(nullptr, nullptr, 0), 0L);
    QCOMPARE(info().operatorName, "Meridian Mobile");
    QCOMPARE(info().imsi, "001010123456789");
    QVERIFY(QByteArray(info().source).endsWith("/scenarios/default.scenario"));
}

void SdkDevice::infoTellsOfTheScenario()
{
    QCOMPARE(useNetwork(SCENARIO_START), std::string());
    const TKSV_DeviceInfo got = info();
    QCOMPARE(int(got.backend), int(TKSV_BACKEND_SIMULATOR));
    QCOMPARE(int(got.state), int(TKSV_DEVICE_REGISTERED));
    QCOMPARE(got.signalPercent, 42);
    QCOMPARE(got.canSendSMS, 1);
    QCOMPARE(got.operatorName, "Test Net");
    QCOMPARE(got.imsi, "001010000000001");
}

void SdkDevice::infoHidesWhatTheStateDoesNotGive_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<bool>("hasImsi");
    QTest::addColumn<bool>("hasSignal");
    QTest::newRow("absent") << QByteArray("absent") << false << false;
    QTest::newRow("missing") << QByteArray("sim-missing") << false << false;
    QTest::newRow("locked") << QByteArray("sim-locked") << false << false;
    QTest::newRow("disabled") << QByteArray("disabled") << true << false;
    QTest::newRow("searching") << QByteArray("searching") << true << true;
}

void SdkDevice::infoHidesWhatTheStateDoesNotGive()
{
    QFETCH(QByteArray, state);
    QFETCH(bool, hasImsi);
    QFETCH(bool, hasSignal);
    QCOMPARE(useNetwork(SCENARIO_START + ("State=" + state).toStdString()), std::string());
    QCOMPARE(info().operatorName, "");
    QCOMPARE(info().canSendSMS, 0);
    QCOMPARE(*info().imsi != '\0', hasImsi);
    QCOMPARE(info().signalPercent >= 0, hasSignal);
}

void SdkDevice::codesFailOn4GOnly()
{
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + "Modes=4G\n[*100#]\nReply=Balance\n"),
             std::string());
    registerAll();
    TKSV_ModesInfo modes = {};
    QCOMPARE(TKSV_Device_GetModes(&modes), 0L);
    QCOMPARE(modes.current.allowed, unsigned(TKSV_MODE_4G));
    QCOMPARE(ask(u"*100#").type, int(TKSV_FAILURE_NOT_ON_4G));
    const TKSV_Modes none = {};
    QVERIFY(TKSV_Device_SetModes(&none) != 0);
    QVERIFY(TKSV_Device_SetModes(nullptr) != 0);
    QVERIFY(TKSV_Device_GetModes(nullptr) != 0);
    Gate changed;
    QCOMPARE(TKSV_Device_SetInfoCallback(openGate, &changed), 0L);
    QCOMPARE(TKSV_Device_SetModes(&modes.withOlder), 0L);
    QVERIFY(changed.wait());
    TKSV_Device_SetInfoCallback(nullptr, nullptr);
    QVERIFY(ask(u"*100#").text == u"Balance");
    TKSV_Device_GetModes(&modes);
    QCOMPARE(modes.current.allowed, unsigned(TKSV_MODE_2G | TKSV_MODE_3G | TKSV_MODE_4G));
    QCOMPARE(modes.withOlder.allowed, 0U);
    QCOMPARE(modes.hasFailed, 0);
    unregisterAll();
}

void SdkDevice::roamingIsReported()
{
    QCOMPARE(useNetwork(SCENARIO_START), std::string());
    QCOMPARE(info().isRoaming, 0);
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + "Roaming=yes\n"), std::string());
    QCOMPARE(info().isRoaming, 1);
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + "Roaming=yes\nState=searching\n"),
             std::string());
    QCOMPARE(info().isRoaming, 0);
}

void SdkDevice::pinUnlocksTheSim()
{
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + "State=sim-locked\nPIN=4711\n"),
             std::string());
    QCOMPARE(info().pinRetries, 3);
    QCOMPARE(TKSV_Device_SendPin("0000"), 0L);
    QVERIFY(waitUntil([] { return info().pinRetries == 2; }));
    QCOMPARE(int(info().problem), int(TKSV_PROBLEM_WRONG_PIN));
    QCOMPARE(TKSV_Device_SendPin("4711"), 0L);
    QVERIFY(waitUntil([] { return info().state == TKSV_DEVICE_REGISTERED; }));
    QCOMPARE(int(info().problem), int(TKSV_PROBLEM_NONE));
    QVERIFY(TKSV_Device_SendPin("4711") != 0); // the SIM card is no longer locked
}

void SdkDevice::pinsThatCannotBeAreRefused()
{
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + "State=sim-locked\n"), std::string());
    for (const char *pin : {"", "123", "123456789", "12a4", "\"\r12"})
        QVERIFY2(TKSV_Device_SendPin(pin) != 0, pin);
    QVERIFY(TKSV_Device_SendPin(nullptr) != 0);
    QCOMPARE(info().pinRetries, 3);
}

void SdkDevice::textOfTheNetworkIsToldToTheDashboard()
{
    networkTexts().clear();
    TKSV_Device_SetTextCallback(onNetworkText, nullptr);
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + OFFER_PUSH), std::string());
    QVERIFY(networkTexts().waitFor(1));
    QCOMPARE(networkTexts().all(), std::vector<std::string>{"An offer?"});
    TKSV_Device_SetTextCallback(nullptr, nullptr);
    registerAll();
    QCOMPARE(QString::fromStdU16String(ask(u"1").text), QString::fromLatin1("Booked"));
    unregisterAll();
    received().clear();
}

void SdkDevice::textThatCameBeforeIsToldAsWell()
{
    networkTexts().clear();
    TKSV_USSDSrv_RegisterUSSDCallback(takeNothing);
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + OFFER_PUSH), std::string());
    QVERIFY(waitUntil([] { return notTaken > 0; }));
    TKSV_USSDSrv_UnRegisterUSSDCallback(takeNothing);
    TKSV_Device_SetTextCallback(onNetworkText, nullptr);
    QVERIFY(networkTexts().waitFor(1));
    TKSV_Device_SetTextCallback(nullptr, nullptr);
}

void SdkDevice::nullInfoIsRefused()
{
    QVERIFY(TKSV_Device_GetInfo(nullptr) != 0);
}

void SdkDevice::badScenarioChangesNothing()
{
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + "[*1#]\nReply=menu\n[*1#/1]\nReply=one\n"),
             std::string());
    registerAll();
    QCOMPARE(ask(u"*1#").type, 1);
    const std::string complaint = useNetwork("[Network]\nOperator=x\n");
    QVERIFY(QByteArray(complaint.c_str()).endsWith(":1: [Network]: expected a key IMSI"));
    QCOMPARE(info().operatorName, "Test Net");
    QCOMPARE(ask(u"1").type, 0); // the session is still open
    unregisterAll();
    received().clear();
}

void SdkDevice::messageIsCutToItsSize()
{
    char message[8] = "";
    QVERIFY(TKSV_Device_UseScenario("/nowhere/x", message, sizeof message) != 0);
    QCOMPARE(message, "/nowher");
    QVERIFY(TKSV_Device_UseScenario("/nowhere/x", nullptr, 0) != 0);
    QCOMPARE(TKSV_Device_UseScenario("", message, sizeof message), 0L);
    QCOMPARE(message, "");
}

void SdkDevice::newScenarioEndsTheRequestByAnEvent()
{
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + "[*1#]\nReply=late\nDelay=3600000\n"),
             std::string());
    registerAll();
    QCOMPARE(request(u"*1#"), 0L);
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + "[*1#]\nReply=of the new one\n"),
             std::string());
    QVERIFY(received().deviceEvents.waitFor(1));
    QCOMPARE(received().deviceEvents.all(), std::vector<int>{TKSV_DEV_EVENT_GONE});
    QCOMPARE(QString::fromStdU16String(ask(u"*1#").text), QString::fromLatin1("of the new one"));
    QCOMPARE(received().responses.all().size(), std::size_t(1));
    unregisterAll();
    received().clear();
}

void SdkDevice::newScenarioTellsReadinessForSms()
{
    QCOMPARE(useNetwork(SCENARIO_START), std::string());
    registerAll();
    QVERIFY(received().smsStatus.waitFor(1));
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + "SMS=not-ready\n"), std::string());
    QVERIFY(received().smsStatus.waitFor(2));
    QCOMPARE(useNetwork(SCENARIO_START), std::string());
    QVERIFY(received().smsStatus.waitFor(3));
    QCOMPARE(received().smsStatus.all(), (std::vector<int>{7, 8, 7}));
    unregisterAll();
    received().clear();
}

void SdkDevice::infoCallbackTellsOfChanges()
{
    Gate changed;
    QCOMPARE(useNetwork(std::string(SCENARIO_START) + "[Event e]\nAfter=10\nEvery=10\nSignal=5\n"),
             std::string());
    QCOMPARE(TKSV_Device_SetInfoCallback(countInfo, &changed), 0L);
    QVERIFY(changed.wait());
    QCOMPARE(TKSV_Device_SetInfoCallback(nullptr, nullptr), 0L);
    QCOMPARE(info().signalPercent, 5);
}

void SdkDevice::infoCallbackIsOneAtMost()
{
    Gate first;
    Gate second;
    // This network does not change by itself, so only useNetwork() causes a call.
    QCOMPARE(useNetwork(SCENARIO_START), std::string());
    QCOMPARE(TKSV_Device_SetInfoCallback(countInfo, &first), 0L);
    QCOMPARE(TKSV_Device_SetInfoCallback(openGate, &second), 0L);
    infoCalls = 0;
    QCOMPARE(useNetwork(SCENARIO_START), std::string());
    QVERIFY(second.wait());
    QCOMPARE(TKSV_Device_SetInfoCallback(nullptr, nullptr), 0L);
    QCOMPARE(infoCalls.load(), 0); // the first call-back is no longer registered
}

QTEST_APPLESS_MAIN(SdkDevice)
#include "sdk_device_test.moc"
