/* Tests the fake modem with the real daemon, through the client library that mmcli uses. */
#include <libmm-glib.h>

#include <QtTest>

#include "MmClient.h"
#include "ModemWorld.h"
#include "UssdTest.h"

using namespace FakeModems;

namespace
{

const char NETWORK[] = R"([Network]
Operator=Example Telecom
IMSI=001010123456789
Signal=64
Balance=10.00

[*100#]
Reply=Balance {balance}
[*110#]
Reply=late
Delay=20
[*120#]
Reply=Menu\n1 One
[*120#/1]
Reply=Answer one
[*130#]
Outcome=refuse
[*131#]
Outcome=unsupported
[*132#]
Outcome=network-timeout
[*133#]
Outcome=silence
[*150#]
Reply=€ رصيدك 余额 Баланс\nline two
[SMS 28]
Result=28
)";

} // namespace

class ModemWorldTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void registersWithItsNetwork();
    void repliesToACode();
    void answersContinueAMenu();
    void textOfAllLettersArrives();
    void cancelReachesTheModem();
    void networkStartsASession();
    void refusals_data();
    void refusals();
    void trickledBytesAreRead();
    void lateReplyArrives();
    void garbledReplyIsAFailure();
    void errorOnBothTriesIsAFailure();
    void silenceEndsByTheClientsLimit();
    void hungUpPortIsAFailure();
    void submittedMessageIsDecoded_data();
    void submittedMessageIsDecoded();
    void longMessageComesInParts();
    void failedMessageTellsItsError();
    void incomingMessageIsRead();
    void pinUnlocksTheSim();
    void wrongPinsLeadToThePuk();
    void simMissingIsAFailedModem();
    void deviceThatIsOffDoesNotRegister();
    void modemWithoutSmsHasNoMessaging();
    void registrationIsLostAndFound();
    void scenarioTakesTheModemAwayAndBack();
    void unpluggedModemIsGone();
    void twoModemsAreTwoObjects();
    void killedDaemonComesBackWithItsModems();
    void refusedPermissionIsToldSo();
    void otherCharsetsWork_data();
    void otherCharsetsWork();

private:
    FakeModem &modem() { return m_world->modem("m1"); }
    void addModem(const ModemSettings &settings = ModemSettings(), const char *network = NETWORK);
    void enable();

    std::unique_ptr<ModemWorld> m_world;
    std::unique_ptr<MmClient> m_client;
};

void ModemWorldTest::setUp()
{
    m_world = std::make_unique<ModemWorld>();
    QCOMPARE(m_world->start(), std::string());
    m_client = std::make_unique<MmClient>(m_world->busAddress());
}

void ModemWorldTest::tearDown()
{
    if (QTest::currentTestFailed() && m_world)
        std::fprintf(stderr, "%s\n", m_world->logTail().c_str());
    m_client.reset();
    m_world.reset();
}

void ModemWorldTest::addModem(const ModemSettings &settings, const char *network)
{
    QCOMPARE(m_world->addModem("m1", network, settings), std::string());
}

void ModemWorldTest::enable()
{
    const std::string object = m_world->enable("m1");
    QVERIFY(!object.empty());
    QVERIFY(m_client->use(object));
}

void ModemWorldTest::registersWithItsNetwork()
{
    addModem();
    enable();
    QCOMPARE(m_client->operatorName(), std::string("Example Telecom"));
    QCOMPARE(m_client->operatorCode(), std::string("00101"));
    QCOMPARE(m_client->imei(), std::string("350000000000017"));
    QCOMPARE(m_client->sim("Imsi"), std::string("001010123456789"));
    QCOMPARE(m_client->sim("SimIdentifier"), std::string("8949000000000000017"));
    QCOMPARE(m_client->sim("OperatorIdentifier"), std::string("00101"));
    QCOMPARE(m_client->sim("OperatorName"), std::string("Example Telecom"));
    QCOMPARE(m_client->signalPercent(), 64);
}

void ModemWorldTest::repliesToACode()
{
    addModem();
    enable();
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
    QCOMPARE(modem().timesReceived("AT+CUSD=1,\"002A0031003000300023\",15"), 1);
}

void ModemWorldTest::answersContinueAMenu()
{
    addModem();
    enable();
    QCOMPARE(m_client->initiate("*120#").text, std::string("Menu\n1 One"));
    QCOMPARE(m_client->respond("1").text, std::string("Answer one"));
}

void ModemWorldTest::textOfAllLettersArrives()
{
    addModem();
    enable();
    QCOMPARE(QString::fromStdString(m_client->initiate("*150#").text),
             QString::fromUtf8("€ رصيدك 余额 Баланс\nline two"));
}

void ModemWorldTest::cancelReachesTheModem()
{
    addModem();
    enable();
    QCOMPARE(m_client->initiate("*120#").text, std::string("Menu\n1 One"));
    QVERIFY(m_client->cancel());
    QCOMPARE(modem().timesReceived("AT+CUSD=2"), 1);
    // The session has ended, so no reply can arrive.
    QCOMPARE(m_client->initiate("1").code, int(MM_CORE_ERROR_ABORTED));
}

void ModemWorldTest::networkStartsASession()
{
    addModem();
    enable();
    modem().sayUssd(0, "News");
    QVERIFY(m_client->waitForProperty("NetworkNotification", "News"));
    modem().sayUssd(1, "Yes or no?");
    QVERIFY(m_client->waitForProperty("NetworkRequest", "Yes or no?"));
}

void ModemWorldTest::refusals_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<int>("error");
    QTest::newRow("refused") << QByteArray("*130#") << int(MM_CORE_ERROR_ABORTED);
    QTest::newRow("unknown") << QByteArray("*999#") << int(MM_CORE_ERROR_ABORTED);
    QTest::newRow("unsupported") << QByteArray("*131#")
                                 << int(MM_MOBILE_EQUIPMENT_ERROR_NOT_SUPPORTED);
    QTest::newRow("time-out") << QByteArray("*132#") << int(MM_CORE_ERROR_FAILED);
}

void ModemWorldTest::refusals()
{
    QFETCH(QByteArray, code);
    QFETCH(int, error);
    addModem();
    enable();
    const UssdResult result = m_client->initiate(code.toStdString());
    QVERIFY(result.text.empty());
    QCOMPARE(result.code, error);
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
}

/// Tests that a reply is complete even if it arrives in several pieces, provided that they arrive
/// after the OK. If the pieces arrived together with the OK, the daemon would use only those that
/// have arrived when it reads the OK.
void ModemWorldTest::trickledBytesAreRead()
{
    addModem();
    enable();
    modem().setPieces(true);
    QCOMPARE(m_client->initiate("*110#").text, std::string("late"));
}

void ModemWorldTest::lateReplyArrives()
{
    addModem();
    enable();
    modem().misbehave({"+CUSD:", Fault::Late, 30});
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
    modem().misbehave({"AT+CUSD=1", Fault::Late, 30});
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
}

void ModemWorldTest::garbledReplyIsAFailure()
{
    addModem();
    enable();
    modem().misbehave({"+CUSD:", Fault::Garbled});
    const UssdResult result = m_client->initiate("*100#", 300);
    QVERIFY(result.text != "Balance 10.00");
    QVERIFY(m_client->cancel());
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
}

void ModemWorldTest::errorOnBothTriesIsAFailure()
{
    addModem();
    enable();
    modem().forgetReceived();
    modem().misbehave({"AT+CUSD=1", Fault::EquipmentError, 100, 2});
    QCOMPARE(m_client->initiate("*100#").code, int(MM_CORE_ERROR_FAILED));
    QCOMPARE(modem().timesReceived("AT+CUSD=1"), 2);
    // The second attempt sends plain text.
    QCOMPARE(modem().timesReceived("AT+CUSD=1,\"*100#\""), 1);
}

void ModemWorldTest::silenceEndsByTheClientsLimit()
{
    addModem();
    enable();
    QCOMPARE(m_client->initiate("*133#", 100).code, int(G_IO_ERROR_TIMED_OUT));
    QCOMPARE(m_client->initiate("*100#").code, int(MM_CORE_ERROR_WRONG_STATE));
    QVERIFY(m_client->cancel());
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
}

void ModemWorldTest::hungUpPortIsAFailure()
{
    addModem();
    enable();
    modem().misbehave({"AT+CUSD=1", Fault::HangUp});
    QVERIFY(m_client->initiate("*100#", 300).code >= 0);
    // Closing the port of a virtual modem does not delete the object.
    QVERIFY(!m_world->stateOf("m1").object.empty());
}

void ModemWorldTest::submittedMessageIsDecoded_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("default alphabet") << "+4915112345"
                                      << "Hello @ {world} €";
    QTest::newRow("short number") << "1200"
                                  << "BAL";
    QTest::newRow("UCS2") << "+79161234567" << QString::fromUtf8("Баланс 余额");
    QTest::newRow("full") << "1200" << QString(160, QLatin1Char('x'));
}

void ModemWorldTest::submittedMessageIsDecoded()
{
    QFETCH(QString, number);
    QFETCH(QString, text);
    addModem();
    enable();
    QCOMPARE(m_client->sendSms(number.toStdString(), text.toStdString()), std::string());
    QCOMPARE(modem().submitted().size(), std::size_t(1));
    QCOMPARE(QString::fromStdString(modem().submitted()[0].number), number);
    QCOMPARE(QString::fromStdString(modem().submitted()[0].text), text);
}

void ModemWorldTest::longMessageComesInParts()
{
    addModem();
    enable();
    const std::string text = std::string(200, 'a') + std::string(200, 'b');
    QCOMPARE(m_client->sendSms("1200", text), std::string());
    const std::vector<SubmittedSms> parts = modem().submitted();
    QCOMPARE(parts.size(), std::size_t(3));
    QCOMPARE(parts[0].text + parts[1].text + parts[2].text, text);
    QCOMPARE(parts[2].part, 3);
    QCOMPARE(parts[2].parts, 3);
    QCOMPARE(parts[2].reference, parts[0].reference);
}

void ModemWorldTest::failedMessageTellsItsError()
{
    addModem();
    enable();
    QVERIFY(!m_client->sendSms("28", "text").empty());
    QCOMPARE(m_client->sendSms("1", "text"), std::string());
    modem().misbehave({"PDU", Fault::MessageError, 302});
    QVERIFY(!m_client->sendSms("1", "text").empty());
}

void ModemWorldTest::incomingMessageIsRead()
{
    addModem();
    enable();
    // The message "Hi" from +1234, in the default alphabet.
    modem().receiveSms("0004049121430000621102112233000248"
                       "3400");
    QVERIFY(modem().waitForCommand("AT+CMGR=1"));
}

void ModemWorldTest::pinUnlocksTheSim()
{
    ModemSettings settings;
    settings.asksForPin = true;
    addModem(settings);
    const std::string object = m_world->waitForState("m1", STATE_LOCKED);
    QVERIFY(!object.empty());
    QVERIFY(m_client->use(object));
    QVERIFY(!m_world->stateOf("m1").hasUssd);
    QCOMPARE(m_client->sendPin("0000"), std::string());
    QVERIFY(!m_world->enable("m1").empty());
    QVERIFY(m_world->stateOf("m1").hasUssd);
}

void ModemWorldTest::wrongPinsLeadToThePuk()
{
    ModemSettings settings;
    settings.asksForPin = true;
    addModem(settings);
    QVERIFY(m_client->use(m_world->waitForState("m1", STATE_LOCKED)));
    for (int i = 0; i < 3; ++i)
        QVERIFY(!m_client->sendPin("9999").empty());
    QVERIFY(
        m_world->waitUntil([&] { return m_world->stateOf("m1").lock == MM_MODEM_LOCK_SIM_PUK; }));
    QVERIFY(m_client->use(m_world->stateOf("m1").object)); // the daemon has created a new object
    QCOMPARE(QString::fromStdString(m_client->sendPuk("12345678", "4321")), QString());
    QVERIFY(!m_world->enable("m1").empty());
}

void ModemWorldTest::simMissingIsAFailedModem()
{
    addModem(ModemSettings(), "[Network]\nOperator=O\nIMSI=001010000000001\nState=sim-missing\n");
    QVERIFY(m_world->waitUntil([&] { return !m_world->stateOf("m1").object.empty(); }));
    QVERIFY(m_world->waitUntil([&] { return m_world->stateOf("m1").state == STATE_FAILED; }));
}

void ModemWorldTest::deviceThatIsOffDoesNotRegister()
{
    addModem(ModemSettings(), "[Network]\nOperator=O\nIMSI=001010000000001\nState=disabled\n");
    QVERIFY(!m_world->switchOn("m1").empty());
    QCOMPARE(modem().timesReceived("AT+CFUN=1"), 1);
    QVERIFY(modem().waitForCommand("AT+CGREG?"));
    QVERIFY(m_world->stateOf("m1").state < STATE_REGISTERED);
}

void ModemWorldTest::modemWithoutSmsHasNoMessaging()
{
    addModem(ModemSettings(), "[Network]\nOperator=O\nIMSI=001010000000001\nSMS=not-ready\n");
    enable();
    QVERIFY(m_world->stateOf("m1").hasUssd);
    QVERIFY(!m_world->stateOf("m1").hasMessaging);
}

void ModemWorldTest::registrationIsLostAndFound()
{
    addModem();
    enable();
    m_world->useScenario("m1",
                         "[Network]\nOperator=O\nIMSI=001010000000001\n"
                         "[Event off]\nAfter=1\nState=searching\n"
                         "[Event on]\nAfter=50\nState=registered\n",
                         FakeModem::Clock::Stopped);
    enable();
    modem().startClock();
    QVERIFY(m_world->waitUntil([&] { return m_world->stateOf("m1").state < STATE_REGISTERED; }));
    QVERIFY(!m_world->waitForState("m1", STATE_REGISTERED).empty());
}

void ModemWorldTest::scenarioTakesTheModemAwayAndBack()
{
    addModem(ModemSettings(), "[Network]\nOperator=O\nIMSI=001010000000001\n"
                              "[*140#]\nDeviceEvent=6016\nAway=20\n"
                              "[*100#]\nReply=back\n");
    enable();
    const std::string before = m_world->stateOf("m1").object;
    QVERIFY(m_client->initiate("*140#", 300).code >= 0);
    QVERIFY(m_world->waitUntil([&] {
        const std::string now = m_world->stateOf("m1").object;
        return !now.empty() && now != before;
    }));
    enable();
    QCOMPARE(m_client->initiate("*100#").text, std::string("back"));
}

void ModemWorldTest::unpluggedModemIsGone()
{
    addModem();
    enable();
    m_world->unplug("m1");
    QVERIFY(m_world->stateOf("m1").object.empty());
    m_world->plugIn("m1");
    enable();
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
}

void ModemWorldTest::twoModemsAreTwoObjects()
{
    addModem();
    ModemSettings other;
    other.imei = "350000000000025";
    m_world->addModem("m2", "[Network]\nOperator=Two\nIMSI=001020000000001\n[*100#]\nReply=two\n",
                      other);
    enable();
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
    QVERIFY(m_client->use(m_world->enable("m2")));
    QCOMPARE(m_client->initiate("*100#").text, std::string("two"));
    QCOMPARE(m_client->imei(), std::string("350000000000025"));
}

void ModemWorldTest::killedDaemonComesBackWithItsModems()
{
    addModem();
    enable();
    m_world->killDaemon();
    const int code = m_client->initiate("*100#").code;
    QVERIFY(code == G_DBUS_ERROR_SERVICE_UNKNOWN || code == G_DBUS_ERROR_NO_REPLY);
    QVERIFY(m_world->startDaemon());
    enable();
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
}

void ModemWorldTest::refusedPermissionIsToldSo()
{
    addModem();
    enable();
    m_world->polkit().allow(false);
    const UssdResult result = m_client->initiate("*100#");
    QCOMPARE(result.code, int(MM_CORE_ERROR_UNAUTHORIZED));
    QVERIFY(m_world->polkit().timesAsked() > 0);
    m_world->polkit().allow(true);
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
}

void ModemWorldTest::otherCharsetsWork_data()
{
    QTest::addColumn<int>("charset");
    QTest::addColumn<QByteArray>("code");
    QTest::newRow("IRA") << int(Charset::Ira) << QByteArray("AT+CUSD=1,\"2A31303023\"");
    QTest::newRow("GSM") << int(Charset::Gsm) << QByteArray("AT+CUSD=1,\"");
}

void ModemWorldTest::otherCharsetsWork()
{
    QFETCH(int, charset);
    QFETCH(QByteArray, code);
    ModemSettings settings;
    settings.charsets = {static_cast<Charset>(charset)};
    addModem(settings);
    enable();
    QCOMPARE(m_client->initiate("*100#").text, std::string("Balance 10.00"));
    QCOMPARE(modem().timesReceived(code.toStdString()), 1);
}

USSD_TEST_MAIN(ModemWorldTest)
#include "modem_world_test.moc"
