// The GLib headers must come before the Qt headers, which define "signals" as a macro.
#include "MmClient.h"
#include "ModemWorld.h"

#include <csignal>
#include <memory>
#include <vector>

#include <unistd.h>

#include "CliTest.h"
#include "ExitCodes.h"

using namespace Cli;

using FakeModems::Fault;
using FakeModems::Misbehaviour;
using FakeModems::MmClient;

namespace
{

const char NETWORK[] = R"([Network]
Operator=Test Net
IMSI=001010000000001
[*100#]
Reply=Your balance is 12.50 EUR.
[*101#]
Reply=رصيدك ١٢٫٥٠
[*123#]
Reply=Menu\n1 Data
[*123#/1]
Reply=You chose 1.
[*126#]
Reply=Menu\n1 Account\n2 Internet
[*126#/2]
Reply=Internet\n1 1 GB for 2 EUR\n2 Back
[*126#/2/1]
Reply=You have bought 1 GB.
[*130#]
Outcome=refuse
[*131#]
Outcome=silence
[*132#]
Outcome=unsupported
[*133#]
Outcome=network-timeout
)";

const char SECOND_NETWORK[] = R"([Network]
Operator=Second Net
IMSI=001010000000002
[*100#]
Reply=The second modem.
)";

const char SEARCHING_NETWORK[] = "[Network]\nOperator=Test Net\nIMSI=001010000000001\n"
                                 "State=searching\n[*100#]\nReply=Unexpected\n";

const char INITIATE[] = "AT+CUSD=1,";
const char CANCEL[] = "AT+CUSD=2";
const char FIRST_IMEI[] = "350000000000017";
const char SECOND_IMEI[] = "350000000000025";

/// Returns a scenario with a separate code for each program. The network replies to each code after
/// a short delay.
std::string networkFor(int programs)
{
    std::string network = "[Network]\nOperator=Test Net\nIMSI=001010000000001\nDelay=20\n";
    for (int i = 0; i < programs; ++i) {
        network += "[*10" + std::to_string(i);
        network += "#]\nReply=Reply " + std::to_string(i) + "\n";
    }
    return network;
}

} // namespace

/**
 * Tests `ussd` with a real ModemManager and a fake AT modem. The tests check the commands that the
 * modem has received.
 */
class UssdModemTest : public CliTest
{
    Q_OBJECT

protected:
    void setUpClass() override;
    void setUp() override;
    void tearDown() override;
    void tearDownClass() override;

private slots:
    void repliesAndMenus();
    void jsonNamesTheModem();
    void anUnansweredMenuIsEndedOnTheModem();
    void aChainIsRunThroughTheMenus();
    void aChainStopsAtAChangedMenu();
    void aFavouriteOfAnotherNetworkIsNotSent();
    void aChatEndsItsMenu();
    void failuresHaveTheirExitCode_data();
    void failuresHaveTheirExitCode();
    void theTimeOutEndsTheSession();
    void signalsEndTheSession_data();
    void signalsEndTheSession();
    void aSignalEndsTheMenuOfAChat();
    void afterASignalNoAnswerIsSent();

    void aDisabledModemStaysDisabled();
    void aDisabledModemIsEnabledOnRequest();
    void aMissingPermissionIsSaid();
    void aModemThatSearchesIsNamed();
    void aModemThatGoesAwayIsLost();
    void anotherModemGetsNoFurtherCode();
    void aDaemonThatHangsIsSaid();
    void aDaemonThatIsNotRunningIsSaid();

    void theSessionOfAnotherProgramIsLeftAlone();
    void theSessionOfAnotherProgramIsEndedOnRequest();
    void cancelEndsTheSessionOfAnotherProgram();
    void twoProgramsGetTheirOwnReplies();
    void eightProgramsGetTheirOwnReplies();
    void aProgramWaitsForItsTurn();
    void theTimeOutStartsWithTheTurn();
    void theWaitForATurnEnds();

    void modemsAreListedAndSelected();
    void anAbsentModemIsSaid();
    void withoutAModemNothingIsSent();
    void theStatusIsPrinted();
    void messagesOfTheNetworkArePrinted();

private:
    FakeModems::FakeModem &modem(const char *id = "one") { return m_world->modem(id); }
    bool isIdle();
    std::unique_ptr<MmClient> otherProgram();
    void compareManyPrograms(int count);
    void writeChain(const QByteArray &network, const QByteArray &lastChoice);

    std::unique_ptr<FakeModems::ModemWorld> m_world;
};

/* ---- set-up ------------------------------------------------------------------------------ */

void UssdModemTest::setUpClass()
{
    qunsetenv("TKSV_BACKEND");
    m_world = std::make_unique<FakeModems::ModemWorld>();
    QCOMPARE(m_world->start(), std::string());
    QCOMPARE(m_world->addModem("one", NETWORK), std::string());
}

void UssdModemTest::tearDownClass()
{
    m_world.reset();
}

void UssdModemTest::setUp()
{
    m_world->polkit().allow(true);
    QCOMPARE(m_world->useScenario("one", NETWORK), std::string());
    modem().behave();
    QVERIFY(!m_world->enable("one").empty());
    modem().forgetReceived();
}

void UssdModemTest::tearDown()
{
    if (QTest::currentTestFailed())
        fprintf(stderr, "%s\n", m_world->logTail().c_str());
}

/// Returns true if ModemManager has no USSD session.
bool UssdModemTest::isIdle()
{
    const std::unique_ptr<MmClient> client = otherProgram();
    return client && client->waitUntilIdle();
}

std::unique_ptr<MmClient> UssdModemTest::otherProgram()
{
    auto client = std::make_unique<MmClient>(m_world->busAddress());
    return client->use(m_world->stateOf("one").object) ? std::move(client) : nullptr;
}

/* ---- send and chat ----------------------------------------------------------------------- */

void UssdModemTest::repliesAndMenus()
{
    const Run reply = run("send *100#");
    COMPARE_EXIT(reply, EXIT_DONE);
    QCOMPARE(reply.out, latin1("Your balance is 12.50 EUR.\n"));
    QCOMPARE(reply.error, QString()); // no announcement of a demonstration
    QCOMPARE(run("send *101#").out, QString::fromUtf8("رصيدك ١٢٫٥٠\n"));
    const Run menu = run("send *123# 1");
    COMPARE_EXIT(menu, EXIT_DONE);
    QCOMPARE(menu.out, latin1("Menu\n1 Data\n\nYou chose 1.\n"));
    QCOMPARE(modem().timesReceived(INITIATE), 4);
    QCOMPARE(modem().timesReceived(CANCEL), 0);
}

void UssdModemTest::jsonNamesTheModem()
{
    const Run result = run("send --json *100#");
    COMPARE_EXIT(result, EXIT_DONE);
    const QJsonObject reply = objectsIn(result.out).value(0);
    QCOMPARE(reply.value(latin1("reply")).toString(), latin1("Your balance is 12.50 EUR."));
    QCOMPARE(reply.value(latin1("modem")).toString(), latin1(FIRST_IMEI));
    QVERIFY(!reply.contains(latin1("demonstration")));
}

void UssdModemTest::anUnansweredMenuIsEndedOnTheModem()
{
    const Run result = run("send *123#");
    COMPARE_EXIT(result, EXIT_MENU_OPEN);
    QCOMPARE(result.out, latin1("Menu\n1 Data\n"));
    QVERIFY(modem().waitForCommand(CANCEL));
    QVERIFY(isIdle());
}

/// Writes a favourites file with one chain, as the dashboard would.
void UssdModemTest::writeChain(const QByteArray &network, const QByteArray &lastChoice)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder()));
    QVERIFY(QDir().mkpath(folder() + QLatin1String("/ussd-dashboard")));
    writeFile(QLatin1String("ussd-dashboard/favourites.json"),
              "{\"version\":1,\"networks\":{\"" + network +
                  "\":{\"chains\":[{\"name\":\"Pack\",\"code\":\"*126#\",\"steps\":["
                  "{\"key\":\"2\",\"text\":\"Internet\"},{\"key\":\"1\",\"text\":\"" +
                  lastChoice + "\"}]}]}}}");
}

void UssdModemTest::aChainIsRunThroughTheMenus()
{
    writeChain("00101", "1 GB for 2 EUR");
    const Run result = run("run Pack");
    COMPARE_EXIT(result, EXIT_DONE);
    QVERIFY2(result.out.endsWith(latin1("\n\nYou have bought 1 GB.\n")), qPrintable(result.out));
    QCOMPARE(modem().timesReceived(INITIATE), 3);
    QCOMPARE(modem().timesReceived(CANCEL), 0);
}

void UssdModemTest::aChainStopsAtAChangedMenu()
{
    writeChain("00101", "1 GB for 1 EUR");
    const Run result = run("run Pack");
    COMPARE_EXIT(result, EXIT_MENU_OPEN);
    QVERIFY2(result.error.contains(latin1("Stopped at step 3 of 3")), qPrintable(result.error));
    QCOMPARE(modem().timesReceived(INITIATE), 2); // the choice that triggers a purchase is not sent
    QVERIFY(modem().waitForCommand(CANCEL));
    QVERIFY(isIdle());
}

void UssdModemTest::aFavouriteOfAnotherNetworkIsNotSent()
{
    writeChain("26201", "1 GB for 2 EUR");
    const Run result = run("run Pack");
    COMPARE_EXIT(result, EXIT_WRONG_USAGE);
    QVERIFY2(result.error.contains(latin1("another home network")), qPrintable(result.error));
    QCOMPARE(modem().timesReceived(INITIATE), 0);
}

void UssdModemTest::aChatEndsItsMenu()
{
    const Run result = run(words("chat *123#"), "1\n*123#\n");
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(result.out, latin1("Menu\n1 Data\n\nYou chose 1.\n\nMenu\n1 Data\n"));
    QVERIFY(isIdle());
}

void UssdModemTest::failuresHaveTheirExitCode_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("refused") << QByteArray("*130#") << QByteArray("ended-by-network");
    QTest::newRow("not supported") << QByteArray("*132#") << QByteArray("not-supported");
    QTest::newRow("network waited") << QByteArray("*133#") << QByteArray("network-timeout");
}

void UssdModemTest::failuresHaveTheirExitCode()
{
    QFETCH(QByteArray, code);
    QFETCH(QByteArray, reason);
    const Run result = run("send --json " + code);
    COMPARE_EXIT(result, EXIT_REFUSED);
    const QJsonObject failure = objectsIn(result.out).value(0);
    QCOMPARE(failure.value(latin1("reason")).toString(), QString::fromLatin1(reason));
    QVERIFY(isIdle());
}

void UssdModemTest::theTimeOutEndsTheSession()
{
    const Run result = run("send --timeout 0.5 *131#");
    COMPARE_EXIT(result, EXIT_NO_ANSWER);
    QVERIFY(isIdle());
    COMPARE_EXIT(run("send *100#"), EXIT_DONE);
}

void UssdModemTest::signalsEndTheSession_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void UssdModemTest::signalsEndTheSession()
{
    QFETCH(int, signal);
    UssdProcess process(words("send *131#"));
    process.start();
    QVERIFY(modem().waitForCommand(INITIATE));
    process.sendSignal(signal);
    const Run result = process.finish();
    COMPARE_EXIT(result, EXIT_SIGNAL + signal);
    QVERIFY2(result.error.contains(latin1("may have carried out")), qPrintable(result.error));
    QVERIFY(isIdle());
}

void UssdModemTest::aSignalEndsTheMenuOfAChat()
{
    UssdProcess process(words("chat *123#"));
    process.start();
    QVERIFY(process.waitForOutput(latin1("Menu")));
    process.sendSignal(SIGTERM);
    COMPARE_EXIT(process.finish(), EXIT_SIGNAL + SIGTERM);
    QVERIFY(isIdle());
}

/// Tests that `ussd` does not send the answer if a signal arrives while it is writing the menu. The
/// answer might trigger a purchase.
void UssdModemTest::afterASignalNoAnswerIsSent()
{
    const FullPipe pipe;
    UssdProcess process(words("send *123# 1"));
    process.replaceStream(STDOUT_FILENO, pipe.writeEnd());
    process.start();
    QVERIFY(modem().waitForCommand(INITIATE));
    // The menu arrives within milliseconds, so the program is now blocked by the full pipe.
    QVERIFY(!process.waitForFinished(500));
    process.sendSignal(SIGINT);
    const Run result = process.finish();
    COMPARE_EXIT(result, EXIT_CANCELLED);
    QVERIFY2(result.error.contains(latin1("It was not carried out.")), qPrintable(result.error));
    QCOMPARE(modem().timesReceived(INITIATE), 1);
    QVERIFY(isIdle());
}

/* ---- modems that are not ready ----------------------------------------------------------- */

void UssdModemTest::aDisabledModemStaysDisabled()
{
    QVERIFY(m_world->switchOff("one"));
    const Run result = run("send *100#");
    COMPARE_EXIT(result, EXIT_NOT_READY);
    QVERIFY2(result.error.contains(latin1("--enable")), qPrintable(result.error));
    QVERIFY(result.out.isEmpty());
    QCOMPARE(m_world->stateOf("one").state, FakeModems::STATE_DISABLED);
    QCOMPARE(modem().timesReceived(INITIATE), 0);
}

void UssdModemTest::aDisabledModemIsEnabledOnRequest()
{
    QVERIFY(m_world->switchOff("one"));
    const Run result = run("send --enable *100#");
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(result.out, latin1("Your balance is 12.50 EUR.\n"));
    QVERIFY(m_world->switchOff("one"));
    modem().misbehave(Misbehaviour{"AT", Fault::Error, 0, FakeModems::ALWAYS});
    const Run stuck = run("send --enable --timeout 1 *100#");
    COMPARE_EXIT(stuck, EXIT_NOT_READY);
    QVERIFY2(stuck.error.contains(latin1("could not be switched on")), qPrintable(stuck.error));
}

void UssdModemTest::aMissingPermissionIsSaid()
{
    m_world->polkit().allow(false);
    const Run result = run("send --json *100#");
    COMPARE_EXIT(result, EXIT_NOT_PERMITTED);
    QCOMPARE(objectsIn(result.out).value(0).value(latin1("reason")).toString(),
             latin1("not-permitted"));
    QCOMPARE(modem().timesReceived(INITIATE), 0);
    m_world->polkit().allow(true);
    QVERIFY(m_world->switchOff("one"));
    m_world->polkit().allow(false);
    COMPARE_EXIT(run("send --enable *100#"), EXIT_NOT_PERMITTED);
}

void UssdModemTest::aModemThatSearchesIsNamed()
{
    QCOMPARE(m_world->useScenario("one", SEARCHING_NETWORK), std::string());
    QVERIFY(!m_world->switchOn("one").empty());
    const Run result = run("send --timeout 0.3 *100#");
    COMPARE_EXIT(result, EXIT_NOT_READY);
    QVERIFY2(result.error.contains(latin1("searching")), qPrintable(result.error));
}

void UssdModemTest::aModemThatGoesAwayIsLost()
{
    UssdProcess process(words("send --json *131#"));
    process.start();
    QVERIFY(modem().waitForCommand(INITIATE));
    m_world->unplug("one");
    const Run result = process.finish();
    m_world->plugIn("one");
    COMPARE_EXIT(result, EXIT_NOT_READY);
    const QJsonObject failure = objectsIn(result.out).value(0);
    QCOMPARE(failure.value(latin1("reason")).toString(), latin1("device-lost"));
    QCOMPARE(failure.value(latin1("notSent")).toBool(true), false);
}

/// Tests that `ussd` does not send the next code through another modem, where another subscriber
/// would be charged.
void UssdModemTest::anotherModemGetsNoFurtherCode()
{
    UssdProcess process(words("send -"));
    process.start();
    process.write("*100#\n");
    QVERIFY(process.waitForOutput(latin1("Your balance is 12.50 EUR.")));
    FakeModems::ModemSettings settings;
    settings.imei = SECOND_IMEI;
    QCOMPARE(m_world->addModem("two", SECOND_NETWORK, settings), std::string());
    QVERIFY(!m_world->enable("two").empty());
    m_world->unplug("one");
    process.write("*100#\n");
    process.closeWriteChannel();
    const Run result = process.finish();
    const int sentBySecond = modem("two").timesReceived(INITIATE);
    m_world->unplug("two");
    m_world->plugIn("one");
    COMPARE_EXIT(result, EXIT_NOT_READY);
    QCOMPARE(sentBySecond, 0);
    QVERIFY2(result.error.contains(latin1("was not carried out")), qPrintable(result.error));
}

void UssdModemTest::aDaemonThatHangsIsSaid()
{
    m_world->pauseDaemon();
    const Run result = run("send *100#");
    const Run status = run("status --timeout 1");
    const Run modems = run("modems --timeout 1");
    m_world->resumeDaemon();
    COMPARE_EXIT(result, EXIT_NOT_READY);
    QVERIFY2(result.error.contains(latin1("does not answer")), qPrintable(result.error));
    for (const Run &other : {status, modems}) {
        COMPARE_EXIT(other, EXIT_NOT_READY);
        QVERIFY2(other.error.contains(latin1("does not answer")), qPrintable(other.error));
    }
}

void UssdModemTest::aDaemonThatIsNotRunningIsSaid()
{
    m_world->stopDaemon();
    const Run result = run("send *100#");
    QVERIFY(m_world->startDaemon());
    COMPARE_EXIT(result, EXIT_NOT_READY);
    QVERIFY2(result.error.contains(latin1("systemctl start")), qPrintable(result.error));
}

/* ---- other programs ---------------------------------------------------------------------- */

void UssdModemTest::theSessionOfAnotherProgramIsLeftAlone()
{
    const std::unique_ptr<MmClient> other = otherProgram();
    QVERIFY(!other->initiate("*123#").text.empty());
    const Run result = run("send --json *100#");
    COMPARE_EXIT(result, EXIT_IN_USE);
    const QJsonObject failure = objectsIn(result.out).value(0);
    QCOMPARE(failure.value(latin1("reason")).toString(), latin1("in-use"));
    QCOMPARE(failure.value(latin1("notSent")).toBool(false), true);
    QVERIFY2(result.error.contains(latin1("--end-foreign-session")), qPrintable(result.error));
    QCOMPARE(modem().timesReceived(INITIATE), 1);
    QCOMPARE(modem().timesReceived(CANCEL), 0);
    QCOMPARE(other->respond("1").text, std::string("You chose 1.")); // the session still exists
}

void UssdModemTest::theSessionOfAnotherProgramIsEndedOnRequest()
{
    const std::unique_ptr<MmClient> other = otherProgram();
    QVERIFY(!other->initiate("*123#").text.empty());
    const Run result = run("send --end-foreign-session *100#");
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(result.out, latin1("Your balance is 12.50 EUR.\n"));
    QVERIFY(isIdle());
}

void UssdModemTest::cancelEndsTheSessionOfAnotherProgram()
{
    const std::unique_ptr<MmClient> other = otherProgram();
    QVERIFY(!other->initiate("*123#").text.empty());
    const Run status = run("status --json");
    QCOMPARE(objectsIn(status.out).value(0).value(latin1("foreignSession")).toBool(false), true);
    const Run result = run("cancel --json");
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(objectsIn(result.out).value(0).value(latin1("session")).toString(), latin1("ended"));
    QVERIFY(isIdle());
}

/// Starts several programs at the same time. Each program must print the reply to the code that it
/// sent.
void UssdModemTest::compareManyPrograms(int count)
{
    QCOMPARE(m_world->useScenario("one", networkFor(count)), std::string());
    QVERIFY(!m_world->enable("one").empty());
    std::vector<std::unique_ptr<UssdProcess>> programs;
    for (int i = 0; i < count; ++i) {
        programs.push_back(std::make_unique<UssdProcess>(QStringList() << latin1("send")
                                                                       << latin1("*10%1#").arg(i)));
        programs.back()->start();
    }
    for (int i = 0; i < count; ++i) {
        const Run result = programs[std::size_t(i)]->finish();
        COMPARE_EXIT(result, EXIT_DONE);
        QCOMPARE(result.out, latin1("Reply %1\n").arg(i));
    }
}

void UssdModemTest::twoProgramsGetTheirOwnReplies()
{
    compareManyPrograms(2);
}

void UssdModemTest::eightProgramsGetTheirOwnReplies()
{
    compareManyPrograms(8);
}

/// Tests that the second program waits while the first program uses the modem. A signal ends the
/// first program.
void UssdModemTest::aProgramWaitsForItsTurn()
{
    UssdProcess first(words("send *131#"));
    first.start();
    QVERIFY(modem().waitForCommand(INITIATE));
    UssdProcess second(words("send *100#"));
    second.start();
    QVERIFY(second.waitForError(latin1("Waiting for another program of yours")));
    QCOMPARE(modem().timesReceived(INITIATE), 1);
    first.sendSignal(SIGTERM);
    COMPARE_EXIT(first.finish(), EXIT_SIGNAL + SIGTERM);
    const Run result = second.finish();
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(result.out, latin1("Your balance is 12.50 EUR.\n"));
    QCOMPARE(result.error.count(latin1("Waiting")), 1);
}

/// Tests that the second program restarts its time-out when it detects that it has to wait. The
/// detection takes at least 100 ms, so the program must end at least 100 ms later than without the
/// restart.
void UssdModemTest::theTimeOutStartsWithTheTurn()
{
    UssdProcess first(words("send *131#"));
    first.start();
    QVERIFY(modem().waitForCommand(INITIATE));
    UssdProcess second(words("send --json --timeout 0.6 *131#"));
    second.start();
    QVERIFY(second.waitForError(latin1("Waiting")));
    first.sendSignal(SIGTERM);
    const Run result = second.finish();
    COMPARE_EXIT(result, EXIT_NO_ANSWER);
    QVERIFY2(objectsIn(result.out).value(0).value(latin1("seconds")).toDouble() > 0.69,
             qPrintable(result.out));
    QVERIFY(isIdle());
}

void UssdModemTest::theWaitForATurnEnds()
{
    UssdProcess first(words("send *131#"));
    first.start();
    QVERIFY(modem().waitForCommand(INITIATE));
    const Run result = run("send --quiet --timeout 0.3 *100#");
    COMPARE_EXIT(result, EXIT_IN_USE);
    QVERIFY2(!result.error.contains(latin1("Waiting")), qPrintable(result.error));
    QVERIFY2(!result.error.contains(latin1("--end-foreign-session")), qPrintable(result.error));
    QCOMPARE(modem().timesReceived(INITIATE), 1);
    QCOMPARE(modem().timesReceived(CANCEL), 0);
    first.sendSignal(SIGTERM);
    COMPARE_EXIT(first.finish(), EXIT_SIGNAL + SIGTERM);
}

/* ---- modems, status, watch --------------------------------------------------------------- */

void UssdModemTest::modemsAreListedAndSelected()
{
    FakeModems::ModemSettings settings;
    settings.imei = SECOND_IMEI;
    settings.model = "Fake Two";
    QCOMPARE(m_world->addModem("two", SECOND_NETWORK, settings), std::string());
    QVERIFY(!m_world->enable("two").empty());
    const Run list = run("modems");
    const Run json = run("modems --json");
    const Run reply = run(QStringList() << words("send *100# --modem") << latin1(SECOND_IMEI));
    m_world->unplug("two");

    COMPARE_EXIT(list, EXIT_DONE);
    QVERIFY2(list.out.contains(latin1(SECOND_IMEI) + latin1("\tExample Fake Two\tregistered\n")),
             qPrintable(list.out));
    QCOMPARE(list.out.count(latin1("\tin use\n")), 1);
    QCOMPARE(objectsIn(json.out).size(), 2);
    COMPARE_EXIT(reply, EXIT_DONE);
    QCOMPARE(reply.out, latin1("The second modem.\n"));
}

void UssdModemTest::anAbsentModemIsSaid()
{
    const Run result = run("send --modem 123456 *100#");
    COMPARE_EXIT(result, EXIT_NOT_READY);
    QVERIFY2(result.error.contains(latin1("ussd modems")), qPrintable(result.error));
    QCOMPARE(modem().timesReceived(INITIATE), 0);
}

void UssdModemTest::withoutAModemNothingIsSent()
{
    m_world->unplug("one");
    const Run result = run("send *100#");
    const Run list = run("modems");
    m_world->plugIn("one");
    COMPARE_EXIT(result, EXIT_NOT_READY);
    QCOMPARE(result.error, latin1("There is no modem.\n"));
    QVERIFY(result.out.isEmpty());
    COMPARE_EXIT(list, EXIT_NOT_READY);
    QVERIFY(list.out.isEmpty());
    QCOMPARE(list.error, latin1("There is no modem.\n"));
}

void UssdModemTest::theStatusIsPrinted()
{
    const Run result = run("status");
    COMPARE_EXIT(result, EXIT_DONE);
    for (const char *word : {FIRST_IMEI, "registered", "Test Net", "001010000000001"})
        QVERIFY2(result.out.contains(latin1(word)), qPrintable(result.out));
    QCOMPARE(modem().timesReceived("AT+CUSD=1"), 0);
}

void UssdModemTest::messagesOfTheNetworkArePrinted()
{
    UssdProcess process(words("watch --json"));
    process.start();
    QVERIFY(process.waitForError(latin1("Watching")));
    modem().sayUssd(0, "A bonus for you.");
    QVERIFY(process.waitForOutput(latin1("bonus")));
    process.sendSignal(SIGTERM);
    const Run result = process.finish();
    COMPARE_EXIT(result, EXIT_SIGNAL + SIGTERM);
    const QJsonObject message = objectsIn(result.out).value(0);
    QCOMPARE(message.value(latin1("text")).toString(), latin1("A bonus for you."));
    QCOMPARE(message.value(latin1("modem")).toString(), latin1(FIRST_IMEI));
}

USSD_TEST_MAIN(UssdModemTest)
#include "ussd_modem_test.moc"
