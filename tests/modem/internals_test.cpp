/*
 * Tests internal classes of the device SDK that require ModemManager or its library. The other
 * tests cannot cover them, because the time limits are too long or the errors too rare.
 */
// The GLib headers must come before the Qt headers, which define "signals" as a macro.
#include "modemmanager/ModemManagerBackend.h"
#include "modemmanager/ModemWatch.h"
#include "modemmanager/RadioModes.h"
#include "modemmanager/UssdErrors.h"
#include "ModemWorld.h"

#include <QtTest>

#include "UssdTest.h"

using namespace Tksv;

namespace
{

const std::chrono::milliseconds SILENCE_LIMIT(50);

class NoObserver : public BackendObserver
{
protected:
    void ussdReply(RequestToken, const UssdReply &) override {}
    void ussdText(const UssdReply &) override {}
    void deviceLost(int) override {}
    void smsStatusChanged(bool) override {}
    void smsFinished(const SmsMessage &, int) override {}
    void infoChanged() override {}
};

class ReplyObserver : public NoObserver
{
public:
    std::vector<std::pair<RequestToken, Failure>> failures; // read only after Backend::stop()

protected:
    void ussdReply(RequestToken token, const UssdReply &reply) override
    {
        failures.emplace_back(token, reply.failure);
    }
};

/// Creates a D-Bus error and returns the failure that the SDK reports for it.
Failure failureOf(GQuark domain, int code, const char *text, const UssdCallContext &context = {})
{
    const GErrorPtr error(g_error_new_literal(domain, code, text));
    return failureOfUssdError(*error, context);
}

} // namespace

class ModemInternalsTest : public UssdTest
{
    Q_OBJECT

private slots:
    void aSilentServiceIsNoticed();
    void aRequestThatWaitsForTheServiceFailsWithTheDevice();
    void errorsHaveAReason_data();
    void errorsHaveAReason();
    void unansweredCommandsAreNotRefused();
    void olderModesAreAddedToTheCurrentOnes();
};

void ModemInternalsTest::aSilentServiceIsNoticed()
{
    FakeModems::ModemWorld world;
    QCOMPARE(world.start(), std::string());
    std::shared_ptr<ModemManagerBackend> backend;
    ModemWatch watch([&backend] { backend->modemsChanged(); }, SILENCE_LIMIT);
    backend = std::make_shared<ModemManagerBackend>(watch, std::string());
    NoObserver observer;
    const auto problemIs = [&](TKSV_DeviceProblem problem) {
        return world.waitUntil([&] { return backend->info().problem == problem; });
    };
    QVERIFY(backend->info().isLooking);
    world.pauseDaemon();
    watch.start();
    backend->start(observer);
    QVERIFY(problemIs(TKSV_PROBLEM_SERVICE_SILENT));
    QVERIFY(backend->info().isLooking);
    world.resumeDaemon();
    QVERIFY(problemIs(TKSV_PROBLEM_NONE));
    QVERIFY(world.waitUntil([&] { return !backend->info().isLooking; }));
    world.pauseDaemon();
    watch.start(); // starts another search for modems
    QVERIFY(problemIs(TKSV_PROBLEM_SERVICE_SILENT));
    world.resumeDaemon();
    QVERIFY(problemIs(TKSV_PROBLEM_NONE));
    backend->stop();
    watch.stop();
}

/// Tests that a pending request fails if the user selects another device before ModemManager has
/// reported its modems.
void ModemInternalsTest::aRequestThatWaitsForTheServiceFailsWithTheDevice()
{
    FakeModems::ModemWorld world;
    QCOMPARE(world.start(), std::string());
    ModemWatch watch([] {}, SILENCE_LIMIT);
    const auto backend = std::make_shared<ModemManagerBackend>(watch, std::string());
    ReplyObserver observer;
    world.pauseDaemon();
    watch.start();
    backend->start(observer);
    QCOMPARE(backend->request(7, RequestKind::NewSession, "*100#").status, int(RequestAccepted));
    backend->stop();
    QCOMPARE(observer.failures.size(), std::size_t(1));
    QCOMPARE(observer.failures[0].first, RequestToken(7));
    QCOMPARE(int(observer.failures[0].second.reason), int(TKSV_FAILURE_DEVICE_LOST));
    QVERIFY(observer.failures[0].second.wasNotSent);
    watch.stop();
    world.resumeDaemon();
}

void ModemInternalsTest::errorsHaveAReason_data()
{
    QTest::addColumn<unsigned>("domain");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("reason");
    QTest::addColumn<bool>("wasNotSent");
    const auto row = [](const char *name, GQuark domain, int code, const char *text,
                        TKSV_Failure reason, bool wasNotSent) {
        QTest::newRow(name) << domain << code << QByteArray(text) << int(reason) << wasNotSent;
    };
    row("refused", MM_CORE_ERROR, MM_CORE_ERROR_FAILED, "Sending USSD command failed",
        TKSV_FAILURE_REFUSED, false);
    row("ended", MM_CORE_ERROR, MM_CORE_ERROR_ABORTED, "USSD terminated by network",
        TKSV_FAILURE_ENDED_BY_NETWORK, false);
    row("timed out", MM_CORE_ERROR, MM_CORE_ERROR_FAILED, "Unhandled USSD reply: 5 (5)",
        TKSV_FAILURE_NETWORK_TIMEOUT, false);
    row("session open", MM_CORE_ERROR, MM_CORE_ERROR_WRONG_STATE,
        "Cannot initiate USSD: a session is already active", TKSV_FAILURE_IN_USE, true);
    row("another answer", MM_CORE_ERROR, MM_CORE_ERROR_WRONG_STATE,
        "Cannot respond USSD: no response is expected", TKSV_FAILURE_IN_USE, true);
    row("late answer", MM_CORE_ERROR, MM_CORE_ERROR_WRONG_STATE,
        "Cannot respond USSD: no active session", TKSV_FAILURE_ENDED_BY_NETWORK, true);
    row("disabled", MM_CORE_ERROR, MM_CORE_ERROR_WRONG_STATE, "modem in disabled state",
        TKSV_FAILURE_DISABLED, true);
    row("in progress", MM_CORE_ERROR, MM_CORE_ERROR_IN_PROGRESS, "ongoing", TKSV_FAILURE_IN_USE,
        true);
    row("not permitted", MM_CORE_ERROR, MM_CORE_ERROR_UNAUTHORIZED, "denied",
        TKSV_FAILURE_NOT_PERMITTED, true);
    row("no polkit", MM_CORE_ERROR, MM_CORE_ERROR_FAILED,
        "PolicyKit authorization failed: 'The name is not activatable'", TKSV_FAILURE_NOT_PERMITTED,
        true);
    row("polkit missing since the start", MM_CORE_ERROR, MM_CORE_ERROR_FAILED,
        "PolicyKit authorization error: 'authority not found'", TKSV_FAILURE_NOT_PERMITTED, true);
    row("charset", G_CONVERT_ERROR, 1, "Couldn't convert from UTF-8 to IRA",
        TKSV_FAILURE_NOT_ENCODABLE, true);
    row("charset of the reply", G_CONVERT_ERROR, 1, "Couldn't convert from UCS2 to UTF-8",
        TKSV_FAILURE_UNDECODABLE, false);
    row("no charset", MM_CORE_ERROR, MM_CORE_ERROR_INVALID_ARGS, "unknown target charset",
        TKSV_FAILURE_NOT_ENCODABLE, false);
    row("no network", MM_MOBILE_EQUIPMENT_ERROR, MM_MOBILE_EQUIPMENT_ERROR_NO_NETWORK, "",
        TKSV_FAILURE_NOT_REGISTERED, false);
    row("serial port", MM_SERIAL_ERROR, MM_SERIAL_ERROR_RESPONSE_TIMEOUT, "",
        TKSV_FAILURE_NO_ANSWER, false);
    row("unknown", G_FILE_ERROR, 1, "", TKSV_FAILURE_REFUSED, false);
}

void ModemInternalsTest::errorsHaveAReason()
{
    QFETCH(unsigned, domain);
    QFETCH(int, code);
    QFETCH(QByteArray, text);
    QFETCH(int, reason);
    QFETCH(bool, wasNotSent);
    const Failure failure = failureOf(domain, code, text.constData());
    QCOMPARE(int(failure.reason), reason);
    QCOMPARE(failure.wasNotSent, wasNotSent);
}

/// Tests that an unanswered command is not reported as refused. The daemon reports the same error
/// in both cases, but for an unanswered command only after 20 s.
void ModemInternalsTest::unansweredCommandsAreNotRefused()
{
    UssdCallContext context;
    const auto reasonAfter = [&context](double seconds) {
        context.seconds = seconds;
        return int(
            failureOf(MM_CORE_ERROR, MM_CORE_ERROR_FAILED, "Sending USSD command failed", context)
                .reason);
    };
    QCOMPARE(reasonAfter(8.9), int(TKSV_FAILURE_REFUSED));
    QCOMPARE(reasonAfter(20), int(TKSV_FAILURE_NO_ANSWER));
    context.isOnlyOn4G = true;
    QCOMPARE(reasonAfter(0), int(TKSV_FAILURE_NOT_ON_4G));
    QCOMPARE(reasonAfter(20), int(TKSV_FAILURE_NO_ANSWER));
}

void ModemInternalsTest::olderModesAreAddedToTheCurrentOnes()
{
    const unsigned g2 = TKSV_MODE_2G, g3 = TKSV_MODE_3G, g4 = TKSV_MODE_4G, g5 = TKSV_MODE_5G;
    const std::vector<TKSV_Modes> supported = {
        {g2, 0}, {g2 | g3, 0}, {g4, 0}, {g3 | g4, g4}, {g2 | g3 | g4, g2}, {g2 | g3 | g4, g4}};
    const auto chosen = [&supported](const TKSV_Modes &current) {
        const TKSV_Modes modes = withOlderModes(current, supported);
        return QString::fromLatin1("%1,%2").arg(modes.allowed).arg(modes.preferred);
    };
    QCOMPARE(chosen({g4, 0}), QLatin1String("7,4"));
    QCOMPARE(chosen({g4 | g5, 0}), QLatin1String("7,4")); // no supported setting contains 5G
    QCOMPARE(chosen({g3 | g4, 0}), QLatin1String("0,0")); // 3G is already allowed
    QCOMPARE(chosen({0, 0}), QLatin1String("0,0"));       // the current setting is unknown
    QCOMPARE(withOlderModes({g4, 0}, {{g4, 0}, {g5, 0}}).allowed, 0U);
}

USSD_TEST_MAIN(ModemInternalsTest)
#include "internals_test.moc"
