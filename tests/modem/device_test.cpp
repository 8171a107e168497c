/*
 * Tests the device SDK with a real ModemManager. The tests are in the order of the rows in the
 * table in docs/modems.md.
 */
#include "ModemTest.h"

#include <QtTest>

using namespace SdkFixture;
using FakeModems::FakeModem;
using FakeModems::Fault;
using FakeModems::Misbehaviour;
using FakeModems::ModemSettings;
using FakeModems::ModemWorld;

namespace
{

std::vector<TKSV_Modem> modems()
{
    std::vector<TKSV_Modem> list(8);
    unsigned long count = 0;
    TKSV_Device_GetModems(list.data(), list.size(), &count);
    list.resize(count);
    return list;
}

Inbox<std::string> &networkTexts()
{
    static Inbox<std::string> inbox;
    return inbox;
}

void onNetworkText(void *, const TKSV_NetworkText *text)
{
    networkTexts().add(text->text + std::string(text->waitsForAnswer ? "?" : "."));
}

/// Does not accept the event, like the plug-in when it is not waiting for a reply.
unsigned char takesNothing(int, void *)
{
    return 0;
}

/**
 * While an object of this class exists, no USSD call-back accepts network-initiated messages. They
 * are therefore delivered to the dashboard's call-back.
 */
class OnlyDashboard
{
public:
    OnlyDashboard()
    {
        TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd);
        TKSV_USSDSrv_RegisterUSSDCallback(takesNothing);
        networkTexts().clear();
        TKSV_Device_SetTextCallback(onNetworkText, nullptr);
    }
    ~OnlyDashboard()
    {
        TKSV_Device_SetTextCallback(nullptr, nullptr);
        TKSV_USSDSrv_UnRegisterUSSDCallback(takesNothing);
        TKSV_USSDSrv_RegisterUSSDCallback(onUssd);
    }
    OnlyDashboard(const OnlyDashboard &) = delete;
    OnlyDashboard &operator=(const OnlyDashboard &) = delete;
};

} // namespace

class ModemDeviceTest : public ModemTest
{
    Q_OBJECT

private slots:
    void withoutABusThatIsSaid();
    void withoutADaemonThatIsSaid();
    void theDaemonMayStartLater();
    void theModemTellsOfItself();

    void repliesArriveWhole();
    void outcomesHaveTheirTypes_data();
    void outcomesHaveTheirTypes();
    void whatTheCharsetLacksFails();
    void brokenRepliesHaveAReason_data();
    void brokenRepliesHaveAReason();
    void aModemOn4GOnlyIsSaid();
    void unsaneTextIsRefused_data();
    void unsaneTextIsRefused();

    void aReleasedCommandDoesNotBlockTheNext();
    void aReplacedCommandIsNotAnswered();
    void theReplyToAReleasedCommandIsToldToTheDashboard();
    void aCommandForAModemJustChosenIsSent();
    void aDaemonThatHangsHoldsNobodyUp();
    void aLostRegistrationEndsTheCommand();
    void aDisabledModemEndsTheCommand();
    void anUnpluggedModemEndsTheCommand();
    void aDaemonThatDiesEndsTheCommand();
    void aBusThatDiesEndsTheCommand();

    void theNetworkTellsSomething();
    void theNetworkAsksSomething();

    void messagesTellTheirOutcome();
    void messagesAreDeletedFromTheModem();
    void aMessageThatWasGivenUpIsNotSent();
    void readinessFollowsTheRegistration();

    void thePinUnlocksTheSim();
    void tooManyPinsNeedThePuk();
    void aMissingSimIsSaid();
    void aPinFromElsewhereMakesGoodAWrongOne();
    void whatPolkitRefusesIsSaid();
    void aMissingPolkitIsSaid();
    void aRefusalIsForgottenWhenItIsTakenBack();
    void theModemIsEnabledOnRequestOnly();
    void aSettingThatTheModemRefusesIsReported();
    void aModemDisabledAfterThePinStaysDisabled();
    void aDeniedRegistrationIsSaid();
    void aModemWithoutUssdIsSaid();

    void oneOfTwoModemsIsChosen();
    void theChosenModemIsWaitedFor();
    void anyModemMayTakeThePlaceOfAnother();
};

/* ---- finding the modem ------------------------------------------------------------------- */

void ModemDeviceTest::withoutABusThatIsSaid()
{
    TKSV_Device_UseModem(nullptr);
    QVERIFY(waitForProblem(TKSV_PROBLEM_NO_BUS));
    QCOMPARE(int(info().backend), int(TKSV_BACKEND_MODEMMANAGER));
    int status = 0;
    QVERIFY(request(u"*100#", &status) != 0);
    QCOMPARE(status, 1);
}

void ModemDeviceTest::withoutADaemonThatIsSaid()
{
    startWorld();
    m_world->stopDaemon();
    QVERIFY(waitForProblem(TKSV_PROBLEM_NO_SERVICE));
}

void ModemDeviceTest::theDaemonMayStartLater()
{
    startWorld();
    m_world->stopDaemon();
    QVERIFY(waitForProblem(TKSV_PROBLEM_NO_SERVICE));
    addModem("one");
    QVERIFY(m_world->startDaemon());
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
}

void ModemDeviceTest::theModemTellsOfItself()
{
    useModem();
    QVERIFY(waitUntil([] { return *info().imsi && *info().operatorName; }));
    const TKSV_DeviceInfo got = info();
    QCOMPARE(int(got.backend), int(TKSV_BACKEND_MODEMMANAGER));
    QCOMPARE(int(got.problem), int(TKSV_PROBLEM_NONE));
    QCOMPARE(got.operatorName, "Test Net");
    QCOMPARE(got.simOperatorCode, "00101");
    QCOMPARE(got.simOperatorName, "Test Net");
    QCOMPARE(got.equipmentId, "350000000000017");
    QCOMPARE(got.source, "Example Fake One");
    QCOMPARE(got.pinRetries, -1);
    QVERIFY(waitUntil([] { return info().signalPercent > 50; }));
}

/* ---- replies ----------------------------------------------------------------------------- */

/// Tests that a reply is complete even if it arrives in several pieces, provided that they arrive
/// after the OK. If the pieces arrived together with the OK, the daemon would use only those that
/// have arrived when it reads the OK.
void ModemDeviceTest::repliesArriveWhole()
{
    useModem();
    QCOMPARE(shown(ask(u"*150#").text), QString::fromUtf8("€ رصيدك Баланс\nline two"));
    fake().setPieces(true);
    QCOMPARE(shown(ask(u"*151#").text), QString::fromUtf8("€ رصيدك Баланс\nline two"));
}

void ModemDeviceTest::outcomesHaveTheirTypes_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("fault");
    QTest::addColumn<int>("type");
    const int none = -1;
    QTest::newRow("reply") << QString::fromLatin1("*100#") << none << 0;
    QTest::newRow("menu") << QString::fromLatin1("*120#") << none << 1;
    QTest::newRow("refused") << QString::fromLatin1("*130#") << none << 2;
    QTest::newRow("unsupported") << QString::fromLatin1("*131#") << none << 4;
    QTest::newRow("network timed out") << QString::fromLatin1("*132#") << none << 5;
    QTest::newRow("error") << QString::fromLatin1("*100#") << int(Fault::Error)
                           << int(TKSV_FAILURE_REFUSED);
    QTest::newRow("equipment error")
        << QString::fromLatin1("*100#") << int(Fault::EquipmentError) << int(TKSV_FAILURE_REFUSED);
}

void ModemDeviceTest::outcomesHaveTheirTypes()
{
    QFETCH(QString, code);
    QFETCH(int, fault);
    QFETCH(int, type);
    useModem();
    if (fault >= 0)
        fake().misbehave(Misbehaviour{"AT+CUSD=1", Fault(fault), 100, 2});
    const Response response = ask(code.toStdU16String());
    QCOMPARE(response.type, type);
    QCOMPARE(response.text.empty(), type > 1);
    QCOMPARE(ask(u"*100#").type, 0);
    QCOMPARE(received().responses.all().size(), std::size_t(2));
}

void ModemDeviceTest::whatTheCharsetLacksFails()
{
    ModemSettings settings;
    settings.charsets = {FakeModems::Charset::Ira};
    useModem(settings);
    QCOMPARE(ask(u"*120#").type, 1);
    QCOMPARE(ask(u"€").type, int(TKSV_FAILURE_NOT_ENCODABLE));
    QCOMPARE(lastFailure().wasNotSent, 1);
    QCOMPARE(ask(u"*100#").type, 0);
}

void ModemDeviceTest::brokenRepliesHaveAReason_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("reason");
    const auto row = [](const char *name, const char *line, TKSV_Failure reason) {
        QTest::newRow(name) << QString::fromLatin1(line) << int(reason);
    };
    row("no text", "+CUSD: 0", TKSV_FAILURE_EMPTY_REPLY);
    row("empty text", "+CUSD: 0,\"\",15", TKSV_FAILURE_EMPTY_REPLY);
    row("half a character", "+CUSD: 0,\"D83D\",15", TKSV_FAILURE_UNDECODABLE);
    row("garbled", "+CUSD: ~,\"~04~\",~5", TKSV_FAILURE_UNDECODABLE);
    row("other client", "+CUSD: 3", TKSV_FAILURE_ENDED_BY_NETWORK);
    row("closing text", "+CUSD: 2,\"00410042\",15", TKSV_FAILURE_ENDED_BY_NETWORK);
}

void ModemDeviceTest::brokenRepliesHaveAReason()
{
    QFETCH(QString, line);
    QFETCH(int, reason);
    useModem();
    QCOMPARE(request(u"*133#"), 0L);
    QVERIFY(fake().waitForCommand("AT+CUSD=1,"));
    fake().say(line.toStdString());
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(received().responses.all()[0].type, reason);
    QCOMPARE(int(lastFailure().reason), reason);
    QCOMPARE(lastFailure().wasNotSent, 0);
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
}

/// Tests which failures are attributed to 4G. The last value of +CREG is the access technology: 7
/// for 4G, 2 for 3G (3GPP TS 27.007, 7.2).
void ModemDeviceTest::aModemOn4GOnlyIsSaid()
{
    useModem();
    const auto register4G = [this](const char *technology) {
        for (const char *line :
             {"+CREG: 1,\"1234\",\"001122BB\",", "+CGREG: 1,\"1234\",\"001122BB\","})
            fake().say(std::string(line) + technology);
    };
    register4G("7");
    QVERIFY(waitUntil([] { return ask(u"*131#").type == TKSV_FAILURE_NOT_ON_4G; }));
    fake().misbehave(Misbehaviour{"AT+CUSD=1", Fault::Error, 100, 2});
    QCOMPARE(ask(u"*100#").type, int(TKSV_FAILURE_NOT_ON_4G));
    QCOMPARE(ask(u"*130#").type, int(TKSV_FAILURE_ENDED_BY_NETWORK)); // unrelated to 4G
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    register4G("2");
    QVERIFY(waitUntil([] { return ask(u"*131#").type == TKSV_FAILURE_NOT_SUPPORTED; }));
}

void ModemDeviceTest::unsaneTextIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("quote") << QString::fromLatin1("*1\"#");
    QTest::newRow("carriage return") << QString::fromLatin1("*1\r#");
    QTest::newRow("line feed") << QString::fromLatin1("*1\n#");
    QTest::newRow("escape") << QString::fromLatin1("*1\x1b#");
    QTest::newRow("end of file") << QString::fromLatin1("*1\x1a#");
    QTest::newRow("delete") << QString::fromLatin1("*1\x7f#");
}

void ModemDeviceTest::unsaneTextIsRefused()
{
    QFETCH(QString, text);
    useModem();
    int status = 0;
    QVERIFY(request(text.toStdU16String(), &status) != 0);
    QCOMPARE(status, 2);
    QCOMPARE(ask(u"*100#").type, 0);
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 1);
}

/* ---- how commands end -------------------------------------------------------------------- */

void ModemDeviceTest::aReleasedCommandDoesNotBlockTheNext()
{
    useModem();
    // The daemon sends only the first cancellation to the modem, so one round is not enough.
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(request(u"*133#"), 0L);
        QVERIFY(fake().waitForCommand("AT+CUSD=1,", 2 * i + 1));
        TKSV_USSDSrv_Release(nullptr);
        QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    }
    QCOMPARE(received().responses.all().size(), std::size_t(3));
}

void ModemDeviceTest::aReplacedCommandIsNotAnswered()
{
    useModem();
    QCOMPARE(request(u"*133#"), 0L);
    QCOMPARE(request(u"*120#"), 0L); // may be sent before the modem has received the first command
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    QCOMPARE(received().responses.all().size(), std::size_t(1));
}

/// Tests that the late reply is delivered to the dashboard, because the daemon cannot know which
/// command the reply belongs to.
void ModemDeviceTest::theReplyToAReleasedCommandIsToldToTheDashboard()
{
    useModem();
    const OnlyDashboard dashboard;
    FakeModems::MmClient observer(m_world->busAddress());
    QVERIFY(observer.use(m_world->stateOf("one").object));
    QCOMPARE(request(u"*133#"), 0L);
    QVERIFY(fake().waitForCommand("AT+CUSD=1,"));
    TKSV_USSDSrv_Release(nullptr);
    QVERIFY(observer.waitUntilIdle());
    fake().sayUssd(0, "late");
    QVERIFY(networkTexts().waitFor(1));
    QCOMPARE(networkTexts().all(), std::vector<std::string>{"late."});
}

/// Tests that a command is sent even if the library has not yet read the state of the selected
/// modem, and that it fails if this modem is absent.
void ModemDeviceTest::aCommandForAModemJustChosenIsSent()
{
    useModem();
    TKSV_Device_UseModem("350000000000017");
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    TKSV_Device_UseModem("350000000000025");
    // The library rejects the request if it already knows that this modem is absent.
    const bool isAccepted = request(u"*100#") == 0;
    QVERIFY(waitForProblem(TKSV_PROBLEM_CHOSEN_ABSENT));
    const std::size_t expected = isAccepted ? 2 : 1;
    QVERIFY(received().responses.waitFor(expected));
    QCOMPARE(received().responses.all().size(), expected);
    QCOMPARE(received().responses.all().back().type, isAccepted ? int(TKSV_FAILURE_NO_DEVICE) : 0);
}

/// Tests that the calls return immediately. They must not wait for the default time-out of GDBus,
/// which is 25 s.
void ModemDeviceTest::aDaemonThatHangsHoldsNobodyUp()
{
    m_world = std::make_unique<ModemWorld>();
    QCOMPARE(m_world->start(), std::string());
    m_world->pauseDaemon();
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 200) // some of these calls are made while a reply is pending
        TKSV_Device_UseModem(nullptr);
    QVERIFY(timer.elapsed() < 15000);
    m_world->resumeDaemon();
    addModem("one");
    QVERIFY(waitForState(TKSV_DEVICE_DISABLED));
}

void ModemDeviceTest::aLostRegistrationEndsTheCommand()
{
    useModem();
    QCOMPARE(request(u"*133#"), 0L);
    QVERIFY(fake().waitForCommand("AT+CUSD=1,"));
    fake().say("+CREG: 0");
    fake().say("+CGREG: 0");
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(received().responses.all()[0].type, int(TKSV_FAILURE_NOT_REGISTERED));
    QVERIFY(received().responses.all()[0].text.empty());
    QVERIFY(info().state != TKSV_DEVICE_REGISTERED);
}

void ModemDeviceTest::aDisabledModemEndsTheCommand()
{
    useModem();
    QCOMPARE(request(u"*133#"), 0L);
    QVERIFY(fake().waitForCommand("AT+CUSD=1,"));
    QVERIFY(m_world->switchOff("one"));
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(received().responses.all()[0].type, int(TKSV_FAILURE_DISABLED));
    QVERIFY(waitForState(TKSV_DEVICE_DISABLED)); // the library does not enable the modem again
    QVERIFY(request(u"*100#") != 0);
    QCOMPARE(info().hasForeignSession, 0);
    QCOMPARE(TKSV_Device_Enable(), 0L);
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    // This command does not have to wait, because the first command has been cancelled.
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
}

void ModemDeviceTest::anUnpluggedModemEndsTheCommand()
{
    useModem();
    QCOMPARE(request(u"*133#"), 0L);
    QVERIFY(fake().waitForCommand("AT+CUSD=1,"));
    m_world->unplug("one");
    QVERIFY(received().deviceEvents.waitFor(1));
    QCOMPARE(received().deviceEvents.all(), std::vector<int>{TKSV_DEV_EVENT_GONE});
    QCOMPARE(int(lastFailure().reason), int(TKSV_FAILURE_DEVICE_LOST));
    QVERIFY(waitForState(TKSV_DEVICE_ABSENT));
    QCOMPARE(int(info().problem), int(TKSV_PROBLEM_MODEM_REMOVED));
    m_world->plugIn("one");
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    QCOMPARE(received().responses.all().size(), std::size_t(1));
}

void ModemDeviceTest::aDaemonThatDiesEndsTheCommand()
{
    useModem();
    QCOMPARE(request(u"*133#"), 0L);
    QVERIFY(fake().waitForCommand("AT+CUSD=1,"));
    m_world->killDaemon();
    QVERIFY(received().deviceEvents.waitFor(1));
    QCOMPARE(received().deviceEvents.all(), std::vector<int>{TKSV_DEV_EVENT_RESET});
    QCOMPARE(int(lastFailure().reason), int(TKSV_FAILURE_DEVICE_LOST));
    QVERIFY(waitForProblem(TKSV_PROBLEM_NO_SERVICE));
    QVERIFY(m_world->startDaemon());
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    QCOMPARE(received().responses.all().size(), std::size_t(1));
}

void ModemDeviceTest::aBusThatDiesEndsTheCommand()
{
    useModem();
    QCOMPARE(request(u"*133#"), 0L);
    QVERIFY(fake().waitForCommand("AT+CUSD=1,"));
    m_world.reset();
    QVERIFY(received().deviceEvents.waitFor(1));
    QCOMPARE(received().deviceEvents.all(), std::vector<int>{TKSV_DEV_EVENT_RESET});
    QVERIFY(waitForProblem(TKSV_PROBLEM_NO_BUS));
}

/* ---- messages from the network ----------------------------------------------------------- */

void ModemDeviceTest::theNetworkTellsSomething()
{
    useModem();
    const OnlyDashboard dashboard;
    fake().sayUssd(0, "Ваш бонус");
    QVERIFY(networkTexts().waitFor(1));
    QCOMPARE(networkTexts().all(), std::vector<std::string>{"Ваш бонус."});
    QVERIFY(request(u"*100#") == 0);
}

void ModemDeviceTest::theNetworkAsksSomething()
{
    useModem();
    {
        const OnlyDashboard dashboard;
        fake().sayUssd(1, "Continue?");
        QVERIFY(networkTexts().waitFor(1));
        QCOMPARE(networkTexts().all(), std::vector<std::string>{"Continue??"});
    }
}

/* ---- short messages ---------------------------------------------------------------------- */

void ModemDeviceTest::messagesTellTheirOutcome()
{
    useModem();
    QCOMPARE(sendSms(u"1200", u"Łódź €"), 0L);
    QCOMPARE(sendSms(u"28", u"refused"), 0L);
    QVERIFY(received().smsResults.waitFor(2));
    const std::vector<SmsResult> results = received().smsResults.all();
    QCOMPARE(results[0].result, 0);
    QCOMPARE(shown(results[0].number), QLatin1String("1200"));
    QCOMPARE(shown(results[0].text), QString::fromUtf8("Łódź €"));
    QVERIFY(results[1].result != 0);
    QCOMPARE(shown(results[1].number), QLatin1String("28"));
}

void ModemDeviceTest::messagesAreDeletedFromTheModem()
{
    useModem();
    FakeModems::MmClient client(m_world->busAddress());
    QVERIFY(client.use(m_world->stateOf("one").object));
    QCOMPARE(sendSms(u"1200", u"sent"), 0L);
    QCOMPARE(sendSms(u"28", u"refused"), 0L);
    QVERIFY(received().smsResults.waitFor(2));
    QVERIFY(waitUntil([&] { return client.storedMessages() == 0; }));
}

/// Tests that a message that has failed because the user has selected another device is never sent.
/// When the daemon creates the message later, the library deletes it.
void ModemDeviceTest::aMessageThatWasGivenUpIsNotSent()
{
    useModem();
    m_world->pauseDaemon();
    QCOMPARE(sendSms(u"1200", u"given up"), 0L);
    TKSV_Device_UseModem("350000000000025");
    QVERIFY(received().smsResults.waitFor(1));
    QVERIFY(received().smsResults.all()[0].result != 0);
    QCOMPARE(shown(received().smsResults.all()[0].text), QLatin1String("given up"));
    m_world->resumeDaemon();
    TKSV_Device_UseModem(nullptr);
    QVERIFY(waitUntil([] { return info().canSendSMS; }));
    QCOMPARE(sendSms(u"1200", u"sent"), 0L);
    QVERIFY(received().smsResults.waitFor(2));
    QCOMPARE(received().smsResults.all()[1].result, 0);
    QCOMPARE(fake().submitted().size(), std::size_t(1));
    FakeModems::MmClient client(m_world->busAddress());
    QVERIFY(client.use(m_world->stateOf("one").object));
    QVERIFY(waitUntil([&] { return client.storedMessages() == 0; }));
    QCOMPARE(received().smsResults.all().size(), std::size_t(2));
}

void ModemDeviceTest::readinessFollowsTheRegistration()
{
    useModem();
    fake().say("+CREG: 0");
    fake().say("+CGREG: 0");
    QVERIFY(waitUntil([] { return !info().canSendSMS; }));
    QVERIFY(waitUntil([] { // an earlier status 7 may arrive late, so checks only the last one
        const std::vector<int> told = received().smsStatus.all();
        return !told.empty() && told.back() == 8;
    }));
    QVERIFY(sendSms(u"1200", u"x") != 0);
}

/* ---- the SIM card and permissions -------------------------------------------------------- */

void ModemDeviceTest::thePinUnlocksTheSim()
{
    ModemSettings settings;
    settings.asksForPin = true;
    startWorld();
    const std::string network = std::string(NETWORK).insert(10, "PIN=4711\n");
    QCOMPARE(m_world->addModem("one", network, settings), std::string());
    QVERIFY(waitForState(TKSV_DEVICE_SIM_LOCKED));
    QVERIFY(waitUntil([] { return info().pinRetries == 3; }));
    QCOMPARE(TKSV_Device_SendPin("0000"), 0L);
    QVERIFY(waitForProblem(TKSV_PROBLEM_WRONG_PIN));
    QVERIFY(waitUntil([] { return info().pinRetries == 2; }));
    QCOMPARE(TKSV_Device_SendPin("4711"), 0L);
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    QVERIFY(waitForProblem(TKSV_PROBLEM_NONE));
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
}

void ModemDeviceTest::tooManyPinsNeedThePuk()
{
    ModemSettings settings;
    settings.asksForPin = true;
    startWorld();
    addModem("one", settings);
    QVERIFY(waitForState(TKSV_DEVICE_SIM_LOCKED));
    for (int left = 2; left > 0; --left) {
        QCOMPARE(TKSV_Device_SendPin("9999"), 0L);
        QVERIFY(waitUntil([left] { return info().pinRetries == left; }));
    }
    QCOMPARE(TKSV_Device_SendPin("9999"), 0L);
    QVERIFY(waitForProblem(TKSV_PROBLEM_PUK_NEEDED));
}

void ModemDeviceTest::aMissingSimIsSaid()
{
    startWorld();
    const std::string noSim = std::string(NETWORK).replace(0, 9, "[Network]\nState=sim-missing");
    QCOMPARE(m_world->addModem("one", noSim), std::string());
    QVERIFY(waitForState(TKSV_DEVICE_SIM_MISSING));
    QVERIFY(request(u"*100#") != 0);
}

void ModemDeviceTest::aPinFromElsewhereMakesGoodAWrongOne()
{
    ModemSettings settings;
    settings.asksForPin = true;
    startWorld();
    const std::string network = std::string(NETWORK).insert(10, "PIN=4711\n");
    QCOMPARE(m_world->addModem("one", network, settings), std::string());
    QVERIFY(waitForState(TKSV_DEVICE_SIM_LOCKED));
    QCOMPARE(TKSV_Device_SendPin("0000"), 0L);
    QVERIFY(waitForProblem(TKSV_PROBLEM_WRONG_PIN));
    FakeModems::MmClient other(m_world->busAddress());
    QVERIFY(other.use(m_world->stateOf("one").object));
    QCOMPARE(other.sendPin("4711"), std::string());
    // The library enables the modem only if the PIN was entered through the library.
    QVERIFY(waitForState(TKSV_DEVICE_DISABLED));
    QVERIFY(waitForProblem(TKSV_PROBLEM_NONE));
}

void ModemDeviceTest::aRefusalIsForgottenWhenItIsTakenBack()
{
    useModem();
    m_world->polkit().allow(false);
    QCOMPARE(ask(u"*100#").type, int(TKSV_FAILURE_NOT_PERMITTED));
    QCOMPARE(lastFailure().wasNotSent, 1);
    QCOMPARE(int(info().problem), int(TKSV_PROBLEM_NOT_PERMITTED));
    m_world->polkit().allow(true);
    QCOMPARE(ask(u"*100#").type, 0);
    QVERIFY(waitForProblem(TKSV_PROBLEM_NONE));
}

void ModemDeviceTest::whatPolkitRefusesIsSaid()
{
    startWorld();
    m_world->polkit().allow(false);
    addModem("one");
    QVERIFY(waitForState(TKSV_DEVICE_DISABLED));
    QCOMPARE(int(info().problem), int(TKSV_PROBLEM_NONE));
    QCOMPARE(TKSV_Device_Enable(), 0L);
    QVERIFY(waitForProblem(TKSV_PROBLEM_NOT_PERMITTED));
    QCOMPARE(int(info().state), int(TKSV_DEVICE_DISABLED));
    m_world->polkit().allow(true);
    QCOMPARE(TKSV_Device_Enable(), 0L);
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    QVERIFY(waitForProblem(TKSV_PROBLEM_NONE));
}

void ModemDeviceTest::aMissingPolkitIsSaid()
{
    useModem();
    m_world->polkit().fail(true);
    QCOMPARE(ask(u"*100#").type, int(TKSV_FAILURE_NOT_PERMITTED));
    QCOMPARE(lastFailure().wasNotSent, 1);
    QCOMPARE(int(info().problem), int(TKSV_PROBLEM_NOT_PERMITTED));
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 0);
    m_world->polkit().fail(false);
    QCOMPARE(ask(u"*100#").type, 0);
}

/* ---- the radio --------------------------------------------------------------------------- */

/// Tests that the library reports a failed change to the networks that the modem may use. The
/// daemon's generic plug-in cannot change these networks.
void ModemDeviceTest::aSettingThatTheModemRefusesIsReported()
{
    useModem();
    const auto modes = [] {
        TKSV_ModesInfo info = {};
        TKSV_Device_GetModes(&info);
        return info;
    };
    QCOMPARE(modes().hasFailed, 0);
    const unsigned allowed = modes().current.allowed;
    const TKSV_Modes only3G = {TKSV_MODE_3G, 0};
    QCOMPARE(TKSV_Device_SetModes(&only3G), 0L);
    QVERIFY(waitUntil([modes] { return modes().hasFailed == 1; }));
    QCOMPARE(modes().current.allowed, allowed);
    QCOMPARE(info().isRoaming, 0);
}

/// Tests that the library enables the modem only on request. The daemon queries polkit before it
/// enables a modem. By the time the library has read the SIM, it would already have tried to enable
/// the modem.
void ModemDeviceTest::theModemIsEnabledOnRequestOnly()
{
    startWorld();
    addModem("one");
    QVERIFY(waitUntil([] { return *info().imsi != 0; }));
    QVERIFY(request(u"*100#") != 0);
    QVERIFY(!m_world->polkit().isHolding()); // waits until the stub has processed earlier requests
    QCOMPARE(m_world->polkit().timesAsked(), 0);
    QCOMPARE(int(info().state), int(TKSV_DEVICE_DISABLED));
    QCOMPARE(info().hasForeignSession, 0);
    QCOMPARE(TKSV_Device_Enable(), 0L);
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    QVERIFY(TKSV_Device_Enable() != 0);
    QVERIFY(m_world->switchOff("one"));
    QVERIFY(waitForState(TKSV_DEVICE_DISABLED));
    const int before = m_world->polkit().timesAsked();
    TKSV_Device_UseModem(nullptr); // selecting the modem again does not enable it
    QVERIFY(waitUntil([] { return *info().imsi && info().state == TKSV_DEVICE_DISABLED; }));
    QVERIFY(!m_world->polkit().isHolding());
    QCOMPARE(m_world->polkit().timesAsked(), before);
}

void ModemDeviceTest::aModemDisabledAfterThePinStaysDisabled()
{
    ModemSettings settings;
    settings.asksForPin = true;
    startWorld();
    const std::string network = std::string(NETWORK).insert(10, "PIN=4711\n");
    QCOMPARE(m_world->addModem("one", network, settings), std::string());
    QVERIFY(waitForState(TKSV_DEVICE_SIM_LOCKED));
    QCOMPARE(TKSV_Device_SendPin("4711"), 0L);
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    QVERIFY(m_world->switchOff("one"));
    QVERIFY(waitForState(TKSV_DEVICE_DISABLED));
    const int before = m_world->polkit().timesAsked();
    for (int i = 0; i < 10; ++i) // enough time for the daemon to enable the modem
        QCOMPARE(m_world->stateOf("one").state, FakeModems::STATE_DISABLED);
    QCOMPARE(int(info().state), int(TKSV_DEVICE_DISABLED));
    QCOMPARE(m_world->polkit().timesAsked(), before);
}

void ModemDeviceTest::aDeniedRegistrationIsSaid()
{
    useModem();
    for (const char *line : {"+CREG: 3", "+CGREG: 3"})
        fake().say(line);
    QVERIFY(waitForProblem(TKSV_PROBLEM_REGISTRATION_DENIED));
    QCOMPARE(int(info().state), int(TKSV_DEVICE_SEARCHING));
    QVERIFY(request(u"*100#") != 0);
    for (const char *line : {"+CREG: 1,\"1234\",\"001122BB\"", "+CGREG: 1,\"1234\",\"001122BB\""})
        fake().say(line);
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    QCOMPARE(int(info().problem), int(TKSV_PROBLEM_NONE));
}

void ModemDeviceTest::aModemWithoutUssdIsSaid()
{
    startWorld();
    addModem("one");
    fake().misbehave(Misbehaviour{"AT+CUSD=?", Fault::Error, 0, FakeModems::ALWAYS});
    m_world->unplug("one");
    m_world->plugIn("one");
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    QVERIFY(waitForProblem(TKSV_PROBLEM_NO_USSD));
    QVERIFY(request(u"*100#") != 0);
}

/* ---- several modems ---------------------------------------------------------------------- */

void ModemDeviceTest::oneOfTwoModemsIsChosen()
{
    ModemSettings second;
    second.imei = "350000000000025";
    second.model = "Fake Two";
    useModem();
    addModem("two", second);
    FakeModem &other = m_world->modem("two");
    QVERIFY(waitUntil([] { return modems().size() == 2; }));
    QVERIFY(modems()[0].isInUse && !modems()[1].isInUse);
    QCOMPARE(modems()[1].name, "Example Fake Two");
    QVERIFY(!m_world->enable("two").empty());
    TKSV_Device_UseModem(modems()[1].equipmentId);
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
    QCOMPARE(info().equipmentId, "350000000000025");
    fake().forgetReceived();
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    QCOMPARE(other.timesReceived("AT+CUSD=1,"), 1);
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 0);
}

void ModemDeviceTest::theChosenModemIsWaitedFor()
{
    useModem();
    TKSV_Device_UseModem("350000000000025");
    QVERIFY(waitForProblem(TKSV_PROBLEM_CHOSEN_ABSENT));
    QVERIFY(request(u"*100#") != 0);
    ModemSettings second;
    second.imei = "350000000000025";
    addModem("two", second);
    QVERIFY(waitForState(TKSV_DEVICE_DISABLED));
    QCOMPARE(info().equipmentId, "350000000000025");
}

void ModemDeviceTest::anyModemMayTakeThePlaceOfAnother()
{
    ModemSettings second;
    second.imei = "350000000000025";
    useModem();
    addModem("two", second);
    QVERIFY(waitUntil([] { return modems().size() == 2; }));
    m_world->unplug("one");
    QVERIFY(waitUntil([] { return QByteArray(info().equipmentId) == "350000000000025"; }));
    QVERIFY(waitForState(TKSV_DEVICE_DISABLED));
    QCOMPARE(received().deviceEvents.all(), std::vector<int>{TKSV_DEV_EVENT_GONE});
}

USSD_TEST_MAIN(ModemDeviceTest)
#include "device_test.moc"
