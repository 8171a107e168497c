/*
 * Tests that several programs can share a modem: the library ends its own sessions, but not the
 * sessions of other programs, and the programs of one user take turns. The other program in these
 * tests is a simple client of ModemManager.
 */
#include "ModemTest.h"

#include <QProcess>
#include <QtTest>
#include <thread>

#include "base/SessionTurn.h"

using namespace SdkFixture;
using FakeModems::MmClient;
using Tksv::SessionTurn;

namespace
{

const char IMEI[] = "350000000000017";
// Values of the State property of a USSD session.
const char ACTIVE[] = "2";
const char USER_RESPONSE[] = "3";
const int AT_ONCE = 8;

/// Starts a session of the other program. The network never sends the reply for which this session
/// waits.
void startForeignSession(MmClient &other)
{
    other.initiate("*133#", 50); // the client stops waiting, but the session stays open
}

bool waitForForeignSession(bool isOpen)
{
    return waitUntil([isOpen] {
        TKSV_DeviceInfo info;
        TKSV_Device_GetInfo(&info);
        return (info.hasForeignSession != 0) == isOpen;
    });
}

/** Runs another program, which sends one command with the device SDK. */
class OneCommand
{
public:
    OneCommand(const char *code, const char *mode)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1("TKSV_BACKEND"),
                           QString::fromLatin1("modemmanager"));
        m_process.setProcessEnvironment(environment);
        m_process.start(QString::fromLatin1(ONE_COMMAND),
                        {QString::fromLatin1(code), QString::fromLatin1(mode)});
    }

    /// Returns the output of the program, or an error message.
    QByteArray output()
    {
        if (!m_process.waitForFinished() || m_process.exitCode() != 0)
            return "exit code " + QByteArray::number(m_process.exitCode()) +
                   m_process.readAllStandardError();
        return m_process.readAllStandardOutput().trimmed();
    }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

} // namespace

class ModemSharingTest : public ModemTest
{
    Q_OBJECT

private slots:
    void aForeignSessionIsLeftAlone();
    void aForeignSessionIsEndedOnRequest();
    void aForeignMenuIsShownAndNotAnswered();
    void aSessionFoundAtTheStartIsForeign();
    void aMenuThatAnotherProgramAnsweredIsNotAnsweredAgain();
    void anAnswerDoesNotReachTheMenuOfAnotherProgram();
    void theNetworksQuestionIsAnswered();
    void leavingTheModemLeavesTheNetworksQuestion();
    void cancelDoesNotEndAForeignSession();
    void aCommandThatPolkitHoldsUpIsCancelledLater();
    void polkitIsNotAskedDuringAForeignSession();
    void aCommandCancelledAtOnceSparesTheOtherProgram();

    void switchingTheDeviceEndsOurSession();
    void switchingTheDeviceEndsOurMenu();
    void aProgramThatEndsEndsItsSession();
    void aProgramThatEndsLeavesAForeignSession();
    void theSessionOfACrashedProgramIsForeign();

    void eightProgramsGetTheirOwnReplies();
    void aCommandWaitsForItsTurn();
    void aWaitingCommandIsCancelled();
    void aWaitingCommandFailsWithTheRegistration();
    void aCommandThatMissesItsTurnIsNeverSent();
    void anOpenMenuKeepsTheTurn();

private:
    bool isTurnFree();
};

/// Returns true if no program of this user has a session.
bool ModemSharingTest::isTurnFree()
{
    SessionTurn turn(IMEI);
    return turn.tryEnter();
}

/* ---- sessions of other programs ---------------------------------------------------------- */

void ModemSharingTest::aForeignSessionIsLeftAlone()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    startForeignSession(other);
    QVERIFY(waitForForeignSession(true));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(ask(u"*100#").type, int(TKSV_FAILURE_IN_USE));
        QCOMPARE(lastFailure().wasNotSent, 1);
        QCOMPARE(info().hasForeignSession, 1);
    }
    TKSV_USSDSrv_Release(nullptr);
    QVERIFY(other.waitForProperty("State", ACTIVE));
    QCOMPARE(fake().timesReceived("AT+CUSD=2"), 0);
    fake().sayUssd(0, "the reply for the other program");
    QVERIFY(waitForForeignSession(false));
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    QCOMPARE(received().responses.all().size(), std::size_t(4));
}

void ModemSharingTest::aForeignSessionIsEndedOnRequest()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    QVERIFY(TKSV_Device_EndForeignSession() != 0);
    startForeignSession(other);
    QCOMPARE(ask(u"*100#").type, int(TKSV_FAILURE_IN_USE));
    QCOMPARE(TKSV_Device_EndForeignSession(), 0L);
    QVERIFY(waitForForeignSession(false));
    QVERIFY(other.waitUntilIdle());
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    QVERIFY(TKSV_Device_EndForeignSession() != 0);
}

void ModemSharingTest::aForeignMenuIsShownAndNotAnswered()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    QCOMPARE(other.initiate("*120#").text, std::string("Menu"));
    QVERIFY(waitForForeignSession(true));
    QCOMPARE(ask(u"1").type, int(TKSV_FAILURE_IN_USE));
    TKSV_USSDSrv_Release(nullptr);
    QCOMPARE(TKSV_Device_CancelRequest() != 0, true);
    QCOMPARE(other.respond("1").text, std::string("One"));
    QVERIFY(waitForForeignSession(false));
    // The other program's menu was not delivered.
    QCOMPARE(received().responses.all().size(), std::size_t(1));
}

void ModemSharingTest::aSessionFoundAtTheStartIsForeign()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    QCOMPARE(TKSV_Device_UseScenario(nullptr, nullptr, 0), 0L);
    QCOMPARE(other.initiate("*120#").text, std::string("Menu"));
    received().clear();
    TKSV_Device_UseModem(nullptr);
    QVERIFY(waitForForeignSession(true));
    TKSV_Device_UseModem(IMEI); // stops using the modem and selects it again
    QVERIFY(waitForForeignSession(true));
    QCOMPARE(other.respond("1").text, std::string("One"));
    QVERIFY(waitForForeignSession(false));
    QVERIFY(received().responses.all().empty());
}

void ModemSharingTest::aMenuThatAnotherProgramAnsweredIsNotAnsweredAgain()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    QCOMPARE(shown(ask(u"*120#").text), QLatin1String("Menu"));
    QCOMPARE(other.respond("1").text, std::string("One"));
    QVERIFY(waitUntil([this] { return isTurnFree(); })); // the library has noticed the answer
    QVERIFY(waitForForeignSession(false));               // the session has ended
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 2);
    QCOMPARE(ask(u"1").type, int(TKSV_FAILURE_ENDED_BY_NETWORK));
    QCOMPARE(lastFailure().wasNotSent, 1);
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 2);
}

void ModemSharingTest::anAnswerDoesNotReachTheMenuOfAnotherProgram()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    QCOMPARE(shown(ask(u"*120#").text), QLatin1String("Menu"));
    QVERIFY(other.cancel());
    QCOMPARE(other.initiate("*120#").text, std::string("Menu"));
    QVERIFY(waitForForeignSession(true));
    QCOMPARE(ask(u"1").type, int(TKSV_FAILURE_IN_USE));
    QCOMPARE(other.respond("1").text, std::string("One"));
}

void ModemSharingTest::theNetworksQuestionIsAnswered()
{
    useModem();
    fake().sayUssd(1, "Continue?");
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(received().responses.all()[0].type, 1);
    QCOMPARE(info().hasForeignSession, 0);
    const int before = fake().timesReceived("AT+CUSD=1,");
    QCOMPARE(request(u"1"), 0L);
    QVERIFY(fake().waitForCommand("AT+CUSD=1,", before + 1));
    QVERIFY(received().responses.waitFor(2));
    QVERIFY(waitUntil([this] { return isTurnFree(); }));
}

/// Tests that a network-initiated session stays open when the library stops using the modem.
/// Another program may be about to answer the network's question.
void ModemSharingTest::leavingTheModemLeavesTheNetworksQuestion()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    fake().sayUssd(1, "Continue?");
    QVERIFY(received().responses.waitFor(1));
    // When this call returns, the library no longer uses the modem.
    QCOMPARE(TKSV_Device_UseScenario(nullptr, nullptr, 0), 0L);
    QCOMPARE(fake().timesReceived("AT+CUSD=2"), 0);
    QVERIFY(other.waitForProperty("State", USER_RESPONSE));
    QVERIFY(isTurnFree());
    TKSV_Device_UseModem(nullptr);
    QVERIFY(waitForForeignSession(true));
}

/// Tests that a command is not cancelled before the daemon has accepted or refused it. If the
/// daemon refuses the command, a cancellation would end the other program's session.
void ModemSharingTest::cancelDoesNotEndAForeignSession()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(other.initiate("*120#").text, std::string("Menu"));
        QCOMPARE(request(u"*133#"), 0L);
        if (i % 2 == 0)
            TKSV_USSDSrv_Release(nullptr);
        else if (TKSV_Device_CancelRequest() == 0)
            QVERIFY(received().responses.waitFor(1));
        TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd);
        received().clear();
        TKSV_USSDSrv_RegisterUSSDCallback(onUssd);
        // By now, the daemon must have accepted or refused *133#.
        QCOMPARE(ask(u"*100#").type, int(TKSV_FAILURE_IN_USE));
        received().clear();
        QVERIFY(other.waitForProperty("State", USER_RESPONSE));
        QCOMPARE(other.respond("1").text, std::string("One"));
    }
    QCOMPARE(fake().timesReceived("AT+CUSD=2"), 0);
}

/// Tests that a command that is cancelled while polkit is waiting for a password is cancelled on
/// the modem only after polkit has answered.
void ModemSharingTest::aCommandThatPolkitHoldsUpIsCancelledLater()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    m_world->polkit().holdNext();
    QCOMPARE(request(u"*133#"), 0L);
    QVERIFY(waitUntil([this] { return m_world->polkit().isHolding(); }));
    QCOMPARE(TKSV_Device_CancelRequest(), 0L);
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(received().responses.all()[0].type, int(TKSV_FAILURE_CANCELLED));
    QCOMPARE(TKSV_USSDSrv_Release(nullptr), 0L);
    for (int i = 0; i < 10; ++i)
        QVERIFY(other.waitUntilIdle()); // gives a premature cancellation enough time
    QVERIFY(!isTurnFree());             // the library is still waiting for the daemon
    QCOMPARE(fake().timesReceived("AT+CUSD=2"), 0);
    m_world->polkit().answerHeld();
    QVERIFY(fake().waitForCommand("AT+CUSD=2"));
    QVERIFY(other.waitUntilIdle());
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    QCOMPARE(received().responses.all().size(), std::size_t(2));
}

/// Tests that the user does not have to enter a password for a call that would fail anyway.
void ModemSharingTest::polkitIsNotAskedDuringAForeignSession()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    QCOMPARE(other.initiate("*120#").text, std::string("Menu"));
    QVERIFY(waitForForeignSession(true));
    const int before = m_world->polkit().timesAsked();
    QCOMPARE(ask(u"*100#").type, int(TKSV_FAILURE_IN_USE));
    QCOMPARE(m_world->polkit().timesAsked(), before);
}

/// Tests that cancelling our command never ends the other program's session, even if both programs
/// start a session at the same time. The daemon refuses one of the sessions.
void ModemSharingTest::aCommandCancelledAtOnceSparesTheOtherProgram()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    int served = 0;
    for (int i = 0; i < 40; ++i) {
        FakeModems::UssdResult result;
        std::thread otherProgram([&] { result = other.initiate("*101#"); });
        QCOMPARE(request(u"*133#"), 0L);
        if (i % 2 == 0)
            TKSV_Device_CancelRequest();
        else
            TKSV_USSDSrv_Release(nullptr);
        otherProgram.join();
        const bool isRefused = result.code == MM_CORE_ERROR_WRONG_STATE;
        QVERIFY2(result.text == "Late" || isRefused, qPrintable(QString::number(result.code)));
        served += isRefused ? 0 : 1;
        QVERIFY(other.waitUntilIdle());
        QVERIFY(waitUntil([this] { return isTurnFree(); }));
    }
    QVERIFY(served > 0);
}

/* ---- the end of our sessions ------------------------------------------------------------- */

void ModemSharingTest::switchingTheDeviceEndsOurSession()
{
    useModem();
    MmClient observer(m_world->busAddress());
    QVERIFY(connect(observer));
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(request(u"*133#"), 0L);
        TKSV_Device_UseModem(nullptr);
        QVERIFY(observer.waitUntilIdle());
        QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
        QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    }
}

void ModemSharingTest::switchingTheDeviceEndsOurMenu()
{
    useModem();
    MmClient observer(m_world->busAddress());
    QVERIFY(connect(observer));
    QCOMPARE(shown(ask(u"*120#").text), QLatin1String("Menu"));
    QCOMPARE(TKSV_Device_UseScenario(nullptr, nullptr, 0), 0L);
    QVERIFY(observer.waitUntilIdle());
    QVERIFY(isTurnFree());
    TKSV_Device_UseModem(nullptr);
    QVERIFY(waitForState(TKSV_DEVICE_REGISTERED));
}

void ModemSharingTest::aProgramThatEndsEndsItsSession()
{
    useModem();
    MmClient observer(m_world->busAddress());
    QVERIFY(connect(observer));
    for (int i = 0; i < 5; ++i) {
        OneCommand program("*133#", "exit");
        QCOMPARE(program.output(), QByteArray());
        QVERIFY(observer.waitUntilIdle());
        QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
    }
}

void ModemSharingTest::aProgramThatEndsLeavesAForeignSession()
{
    useModem();
    MmClient other(m_world->busAddress());
    QVERIFY(connect(other));
    QCOMPARE(other.initiate("*120#").text, std::string("Menu"));
    OneCommand program("*133#", "exit");
    QCOMPARE(program.output(), QByteArray());
    QCOMPARE(other.respond("1").text, std::string("One"));
    QCOMPARE(fake().timesReceived("AT+CUSD=2"), 0);
}

/// Tests that the session that a crashed program has left open is treated as foreign. The library
/// cannot know whether another program has opened a new session since then.
void ModemSharingTest::theSessionOfACrashedProgramIsForeign()
{
    useModem();
    OneCommand program("*133#", "reply");
    QVERIFY(fake().waitForCommand("AT+CUSD=1,"));
    QVERIFY(!isTurnFree());
    program.kill();
    QVERIFY(isTurnFree());
    QCOMPARE(ask(u"*100#").type, int(TKSV_FAILURE_IN_USE));
    QCOMPARE(TKSV_Device_EndForeignSession(), 0L);
    QVERIFY(waitForForeignSession(false));
    QCOMPARE(shown(ask(u"*100#").text), QLatin1String("Balance"));
}

/* ---- turns ------------------------------------------------------------------------------- */

void ModemSharingTest::eightProgramsGetTheirOwnReplies()
{
    useModem();
    for (int round = 0; round < 3; ++round) {
        std::vector<std::unique_ptr<OneCommand>> programs;
        for (int i = 0; i < AT_ONCE; ++i) {
            const QByteArray code = "*16" + QByteArray::number(i) + "#";
            programs.push_back(std::make_unique<OneCommand>(code.constData(), "reply"));
        }
        for (int i = 0; i < AT_ONCE; ++i)
            QCOMPARE(programs[std::size_t(i)]->output(), "0 Reply " + QByteArray::number(i));
    }
    QVERIFY(isTurnFree());
}

void ModemSharingTest::aCommandWaitsForItsTurn()
{
    useModem();
    SessionTurn another(IMEI);
    QVERIFY(another.tryEnter());
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(waitUntil([] { return info().waitsForTurn == 1; }));
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 0);
    another.leave();
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(shown(received().responses.all()[0].text), QLatin1String("Balance"));
    QVERIFY(waitUntil([] { return info().waitsForTurn == 0; }));
    QVERIFY(waitUntil([this] { return isTurnFree(); }));
}

void ModemSharingTest::aWaitingCommandIsCancelled()
{
    useModem();
    SessionTurn another(IMEI);
    QVERIFY(another.tryEnter());
    for (const bool cancels : {true, false}) {
        QCOMPARE(request(u"*100#"), 0L);
        QVERIFY(waitUntil([] { return info().waitsForTurn == 1; }));
        cancels ? TKSV_Device_CancelRequest() : TKSV_USSDSrv_Release(nullptr);
        QVERIFY(waitUntil([] { return info().waitsForTurn == 0; }));
        QVERIFY(received().responses.waitFor(1)); // waits for the response to the cancelled command
    }
    another.leave();
    QVERIFY(isTurnFree()); // the command is no longer in the queue
    QCOMPARE(shown(ask(u"*120#").text), QLatin1String("Menu"));
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 1);
    QCOMPARE(received().responses.all()[0].type, int(TKSV_FAILURE_CANCELLED));
    QCOMPARE(received().responses.all().size(), std::size_t(2));
}

void ModemSharingTest::aWaitingCommandFailsWithTheRegistration()
{
    useModem();
    SessionTurn another(IMEI);
    QVERIFY(another.tryEnter());
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(waitUntil([] { return info().waitsForTurn == 1; }));
    fake().say("+CREG: 0");
    fake().say("+CGREG: 0");
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(received().responses.all()[0].type, int(TKSV_FAILURE_NOT_REGISTERED));
    QCOMPARE(lastFailure().wasNotSent, 1);
    QVERIFY(waitUntil([] { return info().waitsForTurn == 0; }));
}

/// Tests that a command whose turn does not come in time fails and is never sent. A late command
/// might trigger a purchase long after its client has stopped waiting.
void ModemSharingTest::aCommandThatMissesItsTurnIsNeverSent()
{
    useModem();
    SessionTurn another(IMEI);
    QVERIFY(another.tryEnter());
    QCOMPARE(TKSV_Device_SetTurnLimit(50), 0L);
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(TKSV_Device_SetTurnLimit(29000), 0L);
    QCOMPARE(received().responses.all()[0].type, int(TKSV_FAILURE_IN_USE));
    QCOMPARE(lastFailure().wasNotSent, 1);
    QCOMPARE(info().waitsForTurn, 0);
    another.leave();
    QVERIFY(isTurnFree()); // the command is no longer in the queue
    QCOMPARE(shown(ask(u"*120#").text), QLatin1String("Menu"));
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 1);
}

void ModemSharingTest::anOpenMenuKeepsTheTurn()
{
    useModem();
    QCOMPARE(shown(ask(u"*120#").text), QLatin1String("Menu"));
    OneCommand program("*160#", "reply");
    QVERIFY(!isTurnFree());
    QCOMPARE(shown(ask(u"1").text), QLatin1String("One"));
    QCOMPARE(program.output(), QByteArray("0 Reply 0"));
}

USSD_TEST_MAIN(ModemSharingTest)
#include "sharing_test.moc"
