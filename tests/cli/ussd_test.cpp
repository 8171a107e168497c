#include <csignal>

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "CliTest.h"
#include "ExitCodes.h"

using namespace Cli;

namespace
{

const char FAVOURITES[] =
    R"({"version":1,"networks":{"demonstration":{"favourites":[{"name":"Balance","code":"*100#"},
{"chain":"Way"},{"name":"Cold","code":"*124#"},{"name":"To","code":"*12%s#"}],"chains":[
{"name":"Way","code":"*125#","steps":[{"key":"2","text":"Second"},{"key":"1","text":"Deeper"}]},
{"name":"Changed","code":"*125#","steps":[{"key":"2","text":"Second"},{"key":"1","text":"Deep"}]},
{"name":"Moved","code":"*125#","steps":[{"key":"3","text":"Second"}]},
{"name":"Gone","code":"*100#","steps":[{"key":"1","text":"First"}]},
{"name":"Double","code":"*100#","steps":[{"key":"1","text":"First"}]},
{"name":"double","code":"*100#","steps":[{"key":"1","text":"First"}]}]},
"26201":{"favourites":[{"name":"Foreign","code":"*100#"}],"chains":[]},
"unknown":{"favourites":[{"name":"Unread","code":"*100#"}],"chains":[]}}})";

const char DEMONSTRATION[] = "Demonstration: the network is invented; nothing is sent.\n";

/// Returns a scenario in which the device has this state and the network replies to *100#.
QByteArray scenarioWithState(const QByteArray &state)
{
    return "[Network]\nOperator=O\nIMSI=001010000000007\nState=" + state +
           "\n[*100#]\nReply=Unexpected\n";
}

/// Returns a scenario in which the network replies to *100# with `reply`.
QByteArray scenarioWithReply(const QByteArray &reply)
{
    return "[Network]\nOperator=O\nIMSI=001010000000007\n[*100#]\nReply=" + reply + "\n";
}

} // namespace

/** Tests `ussd` with simulated networks, as a script would use it. */
class UssdProgramTest : public CliTest
{
    Q_OBJECT

protected:
    void setUp() override;

private slots:
    void helpAndVersionArePrinted();
    void mistakesEndWithUsage_data();
    void mistakesEndWithUsage();
    void aBadScenarioIsNamedByLine();

    void theReplyIsPrinted();
    void menusAreAnsweredInTurn();
    void anAnswerMayStartWithAHyphen();
    void anUnansweredMenuIsEnded();
    void answersWithoutAMenuAreNotSent();
    void answersAfterAFailureAreNotSent();
    void failuresHaveTheirExitCode_data();
    void failuresHaveTheirExitCode();
    void theClosingTextOfTheNetworkIsPrinted();
    void theTimeOutEndsTheRequest();
    void aDeviceThatIsNotReadyIsNamed_data();
    void aDeviceThatIsNotReadyIsNamed();
    void aDeviceThatRegistersIsAwaited();
    void noControlCharacterReachesTheTerminal();
    void everyDemonstrationIsCalledSo_data();
    void everyDemonstrationIsCalledSo();
    void withoutAModemNothingIsInvented_data();
    void withoutAModemNothingIsInvented();

    void repliesAreJson();
    void menusAreJson();
    void failuresAreJson();
    void jsonKeepsControlCharacters();

    void favouritesArePrinted();
    void withoutAFileThereAreNoFavourites();
    void aFavouriteIsRun_data();
    void aFavouriteIsRun();
    void aChainStopsAtAChangedMenu();
    void aChainStopsWithoutAMenu();
    void aStoppedChainIsJson();
    void aFavouriteThatCannotBeRun_data();
    void aFavouriteThatCannotBeRun();
    void aDamagedFileOfFavouritesIsReported();
    void aPipeInPlaceOfTheFavouritesDoesNotBlock();

    void codesAreReadFromStandardInput();
    void theFirstFailureEndsTheInput();
    void aLineThatIsNoCodeEndsTheInput();
    void aMenuInTheInputIsEnded();
    void anEndlessLineIsNoCode();

    void standardOutputThatFails_data();
    void standardOutputThatFails();
    void aClosedPipeIsAFailure();
    void aClosedStandardOutputIsAFailure();

    void signalsEndTheRequest_data();
    void signalsEndTheRequest();
    void anIgnoredSignalStaysIgnored();
    void aSignalEndsABlockedWrite();
    void afterASignalNothingIsSent_data();
    void afterASignalNothingIsSent();

    void aChatReadsAnswers();
    void aChatHasAPromptOnATerminal();
    void aChatSurvivesAFailure();
    void aChatAnswersTheNetwork();
    void aSignalEndsAChat();

    void theStatusIsPrinted();
    void messagesOfTheNetworkArePrinted();
    void changesOfTheModemAreNoticed();
    void aSimulatedDeviceIsNoModem();
    void withoutASessionThereIsNothingToCancel();

private:
    Run runWith(const QByteArray &scenario, const QStringList &arguments);
    void writeFavourites(const QByteArray &json);
};

/// Sets the environment for the programs. CTest itself sets TKSV_BACKEND=simulator.
void UssdProgramTest::setUp()
{
    qputenv("TKSV_SCENARIO", CLI_SCENARIO);
    qputenv("TKSV_BACKEND", "simulator");
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder()));
}

/// Writes the favourites file, as the dashboard would.
void UssdProgramTest::writeFavourites(const QByteArray &json)
{
    QVERIFY(QDir().mkpath(folder() + QLatin1String("/ussd-dashboard")));
    writeFile(QLatin1String("ussd-dashboard/favourites.json"), json);
}

Run UssdProgramTest::runWith(const QByteArray &scenario, const QStringList &arguments)
{
    const QString file = writeFile(QLatin1String("own.scenario"), scenario);
    return run(QStringList(arguments) << QLatin1String("--scenario") << file);
}

/* ---- command line ------------------------------------------------------------------------ */

void UssdProgramTest::helpAndVersionArePrinted()
{
    const Run help = run("--help");
    COMPARE_EXIT(help, EXIT_DONE);
    for (const char *word : {"send CODE", "--end-foreign-session", "--json", "Exit status"})
        QVERIFY2(help.out.contains(QLatin1String(word)), word);
    QVERIFY(!help.out.endsWith(QLatin1String("\n\n")));
    const Run version = run("--version");
    COMPARE_EXIT(version, EXIT_DONE);
    QVERIFY(version.out.startsWith(QLatin1String("ussd 0.")));
    QVERIFY(help.error.isEmpty() && version.error.isEmpty());
}

void UssdProgramTest::mistakesEndWithUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    const auto row = [](const char *name, const QStringList &arguments, const char *named) {
        QTest::newRow(name) << arguments << QString::fromUtf8(named);
    };
    row("no command", QStringList(), "command");
    row("unknown command", words("sned *100#"), "'sned'");
    row("unknown option", words("send --bogus *100#"), "--bogus");
    row("no code", words("send"), "'send'");
    row("empty code", QStringList() << latin1("send") << QString(), "''");
    row("quote", words("send *100\"#"), "quote");
    row("control character", QStringList() << latin1("send") << latin1("*1\n#"), "control");
    row("too long", QStringList() << latin1("send") << QString(185, QLatin1Char('1')), "184");
    row("no favourite", words("run"), "favourite");
    row("list with a favourite", words("run --list Balance"), "'Balance'");
    row("list of codes", words("send --list *100#"), "--list");
    row("code after a favourite", words("run Balance *100#"), "'*100#'");
    row("code as an answer", words("send *123# *100#"), "'*100#'");
    row("words beside standard input", words("send - 1"), "'-'");
    row("standard input as an answer", words("send *123# -"), "'-'");
    row("standard input for a chat", words("chat -"), "'-'");
    row("two codes for a chat", words("chat *123# 1"), "'1'");
    row("argument", words("status *100#"), "'*100#'");
    row("zero", words("send --timeout 0 *100#"), "--timeout '0'");
    row("not a number", words("send --timeout abc *100#"), "'abc'");
    row("number and more", words("send --timeout 1s *100#"), "'1s'");
    row("not finite", words("send --timeout nan *100#"), "'nan'");
    row("too long a time", words("send --timeout 3601 *100#"), "'3601'");
    row("empty modem", words("send --modem= *100#"), "--modem");
    row("empty scenario", words("send --scenario= *100#"), "--scenario");
    row("modem and demonstration", words("send --modem 1 --demo *100#"), "--modem");
    row("JSON for a chat", words("chat --json"), "--json");
    row("enable without use", words("modems --enable"), "--enable");
    row("end without use", words("watch --end-foreign-session"), "--end-foreign-session");
}

void UssdProgramTest::mistakesEndWithUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const Run result = run(arguments);
    COMPARE_EXIT(result, EXIT_WRONG_USAGE);
    QVERIFY2(result.error.contains(named), qPrintable(result.error));
    QVERIFY(result.error.contains(QLatin1String("--help")));
    QVERIFY(result.out.isEmpty());
}

void UssdProgramTest::aBadScenarioIsNamedByLine()
{
    const Run result = runWith("[Network]\nState=sleepy\n", words("send *100#"));
    COMPARE_EXIT(result, EXIT_WRONG_USAGE);
    QVERIFY2(result.error.contains(QLatin1String("own.scenario:2")), qPrintable(result.error));
}

/* ---- send -------------------------------------------------------------------------------- */

void UssdProgramTest::theReplyIsPrinted()
{
    const Run result = run("send *100#");
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(result.out, QLatin1String("Your balance is 7.00 EUR.\n"));
    QCOMPARE(run("send *101#").out, QString::fromUtf8("رصيدك 7,00 €\n"));
}

void UssdProgramTest::menusAreAnsweredInTurn()
{
    const Run result = run("send *123# 2 1");
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(result.out,
             QLatin1String("Menu\n1 First\n2 Second\n\nSecond\n1 Deeper\n\nDeep enough.\n"));
    QCOMPARE(result.error, QLatin1String(DEMONSTRATION));
}

void UssdProgramTest::anAnswerMayStartWithAHyphen()
{
    const Run result = run("send *124# -- -5 -");
    COMPARE_EXIT(result, EXIT_WRONG_USAGE); // "-" cannot be an answer
    QCOMPARE(run("send *124# -- -5").out, latin1("How cold?\n\nIt is -5.\n"));
}

void UssdProgramTest::anUnansweredMenuIsEnded()
{
    const Run result = run("send *123#");
    COMPARE_EXIT(result, EXIT_MENU_OPEN);
    QCOMPARE(result.out, QLatin1String("Menu\n1 First\n2 Second\n"));
    QVERIFY(result.error.contains(QLatin1String("The menu was not answered")));
}

void UssdProgramTest::answersWithoutAMenuAreNotSent()
{
    const Run result = run("send *123# 1 5 6");
    COMPARE_EXIT(result, EXIT_REFUSED);
    QVERIFY(result.out.endsWith(QLatin1String("You chose 1.\n")));
    QVERIFY2(result.error.contains(QLatin1String("There is no menu to answer. Not sent: 5 6\n")),
             qPrintable(result.error));
}

void UssdProgramTest::answersAfterAFailureAreNotSent()
{
    const Run result = run("send *130# 1");
    COMPARE_EXIT(result, EXIT_REFUSED);
    QVERIFY2(result.error.contains(QLatin1String("\nNot sent: 1\n")), qPrintable(result.error));
}

void UssdProgramTest::failuresHaveTheirExitCode_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("refused") << QByteArray("*130#") << int(EXIT_REFUSED) << QByteArray("network");
    QTest::newRow("not supported")
        << QByteArray("*132#") << int(EXIT_REFUSED) << QByteArray("does not support");
    QTest::newRow("network") << QByteArray("*133#") << int(EXIT_REFUSED)
                             << QByteArray("waited too long");
    QTest::newRow("lost") << QByteArray("*134#") << int(EXIT_NOT_READY)
                          << QByteArray("may have carried out");
}

void UssdProgramTest::failuresHaveTheirExitCode()
{
    QFETCH(QByteArray, code);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, message);
    const Run result = run("send " + code);
    COMPARE_EXIT(result, exitCode);
    QVERIFY(result.out.isEmpty());
    QVERIFY2(result.error.contains(QString::fromUtf8(message)), qPrintable(result.error));
}

void UssdProgramTest::theClosingTextOfTheNetworkIsPrinted()
{
    const Run result = run("send --json *135#");
    COMPARE_EXIT(result, EXIT_REFUSED);
    QCOMPARE(objectsIn(result.out).value(0).value(latin1("text")).toString(),
             latin1("This code has expired."));
    QVERIFY2(result.error.contains(latin1("It said: This code has expired.\n")),
             qPrintable(result.error));
}

void UssdProgramTest::theTimeOutEndsTheRequest()
{
    const Run result = run("send --timeout 0.2 *131#");
    COMPARE_EXIT(result, EXIT_NO_ANSWER);
    QVERIFY2(result.error.contains(QLatin1String("did not reply in time")),
             qPrintable(result.error));
    QVERIFY(!result.error.contains(QLatin1String("not carried out")));
}

void UssdProgramTest::aDeviceThatIsNotReadyIsNamed_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *state, const char *message) {
        QTest::newRow(state) << QByteArray(state) << QByteArray(message);
    };
    row("searching", "searching");
    row("disabled", "switched off");
    row("sim-locked", "locked with its PIN");
    row("sim-missing", "no SIM card");
    row("absent", "no modem");
}

void UssdProgramTest::aDeviceThatIsNotReadyIsNamed()
{
    QFETCH(QByteArray, state);
    QFETCH(QByteArray, message);
    const Run result = runWith(scenarioWithState(state), words("send --timeout 0.2 *100#"));
    COMPARE_EXIT(result, EXIT_NOT_READY);
    QVERIFY(result.out.isEmpty());
    QVERIFY2(result.error.contains(QString::fromUtf8(message)), qPrintable(result.error));
}

void UssdProgramTest::aDeviceThatRegistersIsAwaited()
{
    const QByteArray later = "[Event later]\nAfter=100\nState=registered\n";
    const Run result = runWith(scenarioWithState("searching") + later, words("send *100#"));
    COMPARE_EXIT(result, EXIT_DONE);
}

void UssdProgramTest::noControlCharacterReachesTheTerminal()
{
    const Run result = runWith(scenarioWithReply("a\x1b[31mb\x07\x7f\xc2\x9b"
                                                 "31m\xe2\x80\xaegfed\xe2\x80\xac\\tz"),
                               words("send *100#"));
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(result.out, QString::fromUtf8("a\xef\xbf\xbd[31mb\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"
                                           "31m\xef\xbf\xbdgfed\xef\xbf\xbd\tz\n"));
    const Run mistake = run(QStringList() << latin1("send") << latin1("*1\x1b[31m#"));
    QVERIFY(!mistake.error.contains(QChar(0x1b)));
}

/* ---- demonstrations ---------------------------------------------------------------------- */

void UssdProgramTest::everyDemonstrationIsCalledSo_data()
{
    QTest::addColumn<QByteArray>("backend");
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QByteArray>("option");
    const QByteArray file = CLI_SCENARIO;
    QTest::newRow("backend") << QByteArray("simulator") << QByteArray() << QByteArray();
    QTest::newRow("variable") << QByteArray() << file << QByteArray();
    QTest::newRow("--demo") << QByteArray() << QByteArray() << QByteArray("--demo");
    QTest::newRow("--scenario") << QByteArray() << QByteArray() << QByteArray("--scenario=" + file);
    QTest::newRow("--quiet") << QByteArray("simulator") << QByteArray() << QByteArray("--quiet");
}

void UssdProgramTest::everyDemonstrationIsCalledSo()
{
    QFETCH(QByteArray, backend);
    QFETCH(QByteArray, scenario);
    QFETCH(QByteArray, option);
    qputenv("TKSV_BACKEND", backend);
    qputenv("TKSV_SCENARIO", scenario);
    const Run result = run("send --json *100# " + option);
    COMPARE_EXIT(result, EXIT_DONE);
    QVERIFY2(result.error.startsWith(QLatin1String(DEMONSTRATION)), qPrintable(result.error));
    QVERIFY(objectsIn(result.out).value(0).value(latin1("demonstration")).toBool());
}

void UssdProgramTest::withoutAModemNothingIsInvented_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line : {"send *100#", "send --json *100#", "chat *100#", "status",
                             "status --json", "modems", "watch", "cancel"})
        QTest::newRow(line) << QByteArray(line);
}

/// Tests that the program never simulates a network on its own, even if there is no message bus.
void UssdProgramTest::withoutAModemNothingIsInvented()
{
    QFETCH(QByteArray, line);
    qunsetenv("TKSV_BACKEND");
    qunsetenv("TKSV_SCENARIO");
    const Run result = run(line.constData());
    COMPARE_EXIT(result, EXIT_NOT_READY);
    QVERIFY2(result.error.contains(QLatin1String("D-Bus")), qPrintable(result.error));
    QVERIFY(!result.error.contains(QLatin1String("Demonstration")));
    QVERIFY2(!result.out.contains(QLatin1String("reply")) &&
                 !result.out.contains(QLatin1String("balance")),
             qPrintable(result.out));
}

/* ---- JSON -------------------------------------------------------------------------------- */

void UssdProgramTest::repliesAreJson()
{
    const Run result = run("send --json *100#");
    COMPARE_EXIT(result, EXIT_DONE);
    const QJsonObject reply = objectsIn(result.out).value(0);
    QCOMPARE(reply.value(latin1("code")).toString(), latin1("*100#"));
    QCOMPARE(reply.value(latin1("reply")).toString(), latin1("Your balance is 7.00 EUR."));
    QCOMPARE(reply.value(latin1("state")).toString(), latin1("done"));
    QCOMPARE(reply.value(latin1("type")).toInt(-1), 0);
    QVERIFY(reply.contains(latin1("modem")));
    const double seconds = reply.value(latin1("seconds")).toDouble(-1);
    QVERIFY2(seconds >= 0.005 && seconds < 10, qPrintable(result.out));
}

void UssdProgramTest::menusAreJson()
{
    const QList<QJsonObject> replies = objectsIn(run("send --json *123# 1").out);
    QCOMPARE(replies.size(), 2);
    QCOMPARE(replies.at(0).value(latin1("state")).toString(), latin1("menu"));
    QCOMPARE(replies.at(0).value(latin1("type")).toInt(-1), 1);
    QCOMPARE(replies.at(1).value(latin1("code")).toString(), latin1("1"));
    QCOMPARE(replies.at(1).value(latin1("state")).toString(), latin1("done"));
}

void UssdProgramTest::failuresAreJson()
{
    const Run result = run("send --json --timeout 0.2 *131#");
    COMPARE_EXIT(result, EXIT_NO_ANSWER);
    const QJsonObject failure = objectsIn(result.out).value(0);
    QCOMPARE(failure.value(latin1("code")).toString(), latin1("*131#"));
    QCOMPARE(failure.value(latin1("state")).toString(), latin1("failed"));
    QCOMPARE(failure.value(latin1("reason")).toString(), latin1("no-answer"));
    QVERIFY(result.error.endsWith(failure.value(latin1("message")).toString() + latin1("\n")));
    QCOMPARE(failure.value(latin1("notSent")).toBool(true), false);
    const Run notReady = runWith(scenarioWithState("disabled"), words("send --json *100#"));
    const QJsonObject disabled = objectsIn(notReady.out).value(0);
    QCOMPARE(disabled.value(latin1("reason")).toString(), latin1("disabled"));
    QCOMPARE(disabled.value(latin1("notSent")).toBool(false), true);
}

/// Tests that the JSON object contains the complete reply, with control characters escaped so that
/// they cannot affect a terminal.
void UssdProgramTest::jsonKeepsControlCharacters()
{
    const QString text = QString::fromUtf8("a\x1b[31m\"\\\x7f\xc2\x9b\xe2\x80\xae\tz");
    const Run result = runWith(scenarioWithReply("a\x1b[31m\"\\\\\x7f\xc2\x9b\xe2\x80\xae\\tz"),
                               words("send --json *100#"));
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(objectsIn(result.out).value(0).value(latin1("reply")).toString(), text);
    for (const int unit : {0x1b, 0x7f, 0x9b, 0x202e, 0x09})
        QVERIFY2(!result.out.contains(QChar(unit)), qPrintable(result.out));
}

/* ---- standard input ---------------------------------------------------------------------- */

void UssdProgramTest::favouritesArePrinted()
{
    writeFavourites(FAVOURITES);
    const Run result = run("run --list");
    COMPARE_EXIT(result, EXIT_DONE);
    QVERIFY2(result.out.startsWith(QString::fromUtf8("Foreign\t*100#\t26201\n"
                                                     "Balance\t*100#\tdemonstration\n")),
             qPrintable(result.out));
    QVERIFY(result.out.contains(QString::fromUtf8("Way\t*125# › 2 › 1\tdemonstration\n")));
    QCOMPARE(result.error, QString()); // no device is used, so no demonstration is announced
    const QList<QJsonObject> objects = objectsIn(run("run --list --json").out);
    QCOMPARE(objects.size(), 11); // one object for each favourite and chain
    QCOMPARE(objects.first().value(latin1("name")).toString(), latin1("Foreign"));
    QCOMPARE(objects.first().value(latin1("network")).toString(), latin1("26201"));
}

void UssdProgramTest::withoutAFileThereAreNoFavourites()
{
    const Run result = run("run --list");
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(result.out + result.error, QString());
}

void UssdProgramTest::aFavouriteIsRun_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("out");
    QTest::newRow("code") << words("run Balance") << int(EXIT_DONE)
                          << latin1("Your balance is 7.00 EUR.\n");
    QTest::newRow("other case") << words("run BALANCE") << int(EXIT_DONE)
                                << latin1("Your balance is 7.00 EUR.\n");
    QTest::newRow("chain") << words("run Way") << int(EXIT_DONE)
                           << latin1("Menu\n1 First\n2 Second\n\nSecond\n1 Deeper\n2 Back\n\n"
                                     "Deep enough.\n");
    QTest::newRow("with an answer")
        << words("run Cold -- -5") << int(EXIT_DONE) << latin1("How cold?\n\nIt is -5.\n");
    QTest::newRow("menu left open")
        << words("run Cold") << int(EXIT_MENU_OPEN) << latin1("How cold?\n");
    QTest::newRow("with a number")
        << words("run To 4") << int(EXIT_MENU_OPEN) << latin1("How cold?\n");
    QTest::newRow("with a number and an answer")
        << words("run To 4 7") << int(EXIT_DONE) << latin1("How cold?\n\nIt is 7.\n");
}

void UssdProgramTest::aFavouriteIsRun()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, out);
    writeFavourites(FAVOURITES);
    const Run result = run(arguments);
    COMPARE_EXIT(result, code);
    QCOMPARE(result.out, out);
}

void UssdProgramTest::aChainStopsAtAChangedMenu()
{
    writeFavourites(FAVOURITES);
    Run result = run("run Changed");
    COMPARE_EXIT(result, EXIT_MENU_OPEN);
    QCOMPARE(result.out,
             latin1("Menu\n1 First\n2 Second\n\nSecond\n1 Deeper\n2 Back\n")); // step 3 is not sent
    QVERIFY2(result.error.contains(
                 latin1("Stopped at step 3 of 3: the menu no longer offers 'Deep' on key 1, but "
                        "'Deeper'. Nothing more was sent, and the session was ended.")),
             qPrintable(result.error));
    result = run("run Moved");
    COMPARE_EXIT(result, EXIT_MENU_OPEN);
    QVERIFY2(result.error.contains(
                 latin1("step 2 of 2: the menu no longer offers 'Second' on key 3. Nothing")),
             qPrintable(result.error));
}

void UssdProgramTest::aChainStopsWithoutAMenu()
{
    writeFavourites(FAVOURITES);
    const Run result = run("run Gone");
    COMPARE_EXIT(result, EXIT_REFUSED);
    QCOMPARE(result.out, latin1("Your balance is 7.00 EUR.\n"));
    QVERIFY(result.error.contains(latin1("there is no menu that offers 'First'")));
}

void UssdProgramTest::aStoppedChainIsJson()
{
    writeFavourites(FAVOURITES);
    const Run result = run("run --json Changed");
    COMPARE_EXIT(result, EXIT_MENU_OPEN);
    const QList<QJsonObject> objects = objectsIn(result.out);
    QCOMPARE(objects.size(), 3);
    const QJsonObject &stopped = objects.last();
    QCOMPARE(stopped.value(latin1("state")).toString(), latin1("stopped"));
    QCOMPARE(stopped.value(latin1("step")).toInt(), 3);
    QCOMPARE(stopped.value(latin1("key")).toString(), latin1("1"));
    QCOMPARE(stopped.value(latin1("expected")).toString(), latin1("Deep"));
    QCOMPARE(stopped.value(latin1("offered")).toString(), latin1("Deeper"));
}

void UssdProgramTest::aFavouriteThatCannotBeRun_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown") << words("run Bogus") << latin1("There is no favourite 'Bogus'.");
    QTest::newRow("not UTF-8") << QStringList{latin1("run"), QString(QChar(0xd800))}
                               << latin1("There is no favourite");
    QTest::newRow("another network")
        << words("run Foreign") << latin1("'Foreign' belongs to another home network.");
    QTest::newRow("SIM without a known network")
        << words("run Unread") << latin1("'Unread' belongs to another home network.");
    QTest::newRow("without its number") << words("run To") << latin1("'To' needs a number");
    QTest::newRow("number with letters") << words("run To 4a") << latin1("'To' needs a number");
    QTest::newRow("twice") << words("run Double") << latin1("several favourites 'Double'");
}

void UssdProgramTest::aFavouriteThatCannotBeRun()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    writeFavourites(FAVOURITES);
    const Run result = run(arguments);
    COMPARE_EXIT(result, EXIT_WRONG_USAGE);
    QVERIFY2(result.error.contains(message), qPrintable(result.error));
    QCOMPARE(result.out, QString());
}

void UssdProgramTest::aDamagedFileOfFavouritesIsReported()
{
    writeFavourites("{\"version\":1,\"networks\":{\"demonstration\":{\"favourites\":"
                    "[7,{\"name\":\"Balance\",\"code\":\"*100#\"}]}}}");
    const Run result = run("run Balance");
    COMPARE_EXIT(result, EXIT_DONE);
    QVERIFY(result.error.contains(latin1("favourites.json is damaged")));
}

void UssdProgramTest::aPipeInPlaceOfTheFavouritesDoesNotBlock()
{
    QVERIFY(QDir().mkpath(folder() + QLatin1String("/ussd-dashboard")));
    const QString pipe = folder() + QLatin1String("/ussd-dashboard/favourites.json");
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    const Run result = run("run Balance");
    COMPARE_EXIT(result, EXIT_WRONG_USAGE);
    QVERIFY(result.error.contains(latin1("it is not a file")));
}

void UssdProgramTest::codesAreReadFromStandardInput()
{
    const Run result = run(words("send -"), "*100#\n\n*101#\r\n*100#");
    COMPARE_EXIT(result, EXIT_DONE);
    const QString balance = latin1("Your balance is 7.00 EUR.\n");
    QCOMPARE(result.out, balance + QString::fromUtf8("\nرصيدك 7,00 €\n\n") + balance);
    COMPARE_EXIT(run(words("send -"), QByteArray()), EXIT_DONE);
}

void UssdProgramTest::theFirstFailureEndsTheInput()
{
    const Run result = run(words("send -"), "*100#\n*130#\n*100#\n");
    COMPARE_EXIT(result, EXIT_REFUSED);
    QCOMPARE(result.out.count(QLatin1String("balance")), 1);
    QVERIFY2(result.error.contains(QLatin1String("Line 2 ")), qPrintable(result.error));
}

void UssdProgramTest::aLineThatIsNoCodeEndsTheInput()
{
    const Run result = run(words("send -"), "*100\"#\n*100#\n");
    COMPARE_EXIT(result, EXIT_WRONG_USAGE);
    QVERIFY2(result.error.contains(QLatin1String("Line 1 cannot be sent")),
             qPrintable(result.error));
    QVERIFY(result.out.isEmpty());
}

void UssdProgramTest::aMenuInTheInputIsEnded()
{
    const Run result = run(words("send -"), "*123#\n*100#\n");
    COMPARE_EXIT(result, EXIT_MENU_OPEN);
    QVERIFY(!result.out.contains(QLatin1String("balance")));
}

/// Tests that the program rejects a line that is too long, without waiting for the end of the line.
void UssdProgramTest::anEndlessLineIsNoCode()
{
    UssdProcess process(words("send -"));
    process.start();
    process.write(QByteArray(100000, '1'));
    COMPARE_EXIT(process.finish(), EXIT_WRONG_USAGE); // standard input is still open
}

/* ---- standard output --------------------------------------------------------------------- */

void UssdProgramTest::standardOutputThatFails_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line : {"send *100#", "send --json *100#", "send *123#", "--help", "--version",
                             "status", "chat *100#"})
        QTest::newRow(line) << QByteArray(line);
}

void UssdProgramTest::standardOutputThatFails()
{
    QFETCH(QByteArray, line);
    UssdProcess process(words(line.constData()));
    process.setStandardOutputFile(QLatin1String("/dev/full"));
    process.start();
    const Run result = process.finish();
    COMPARE_EXIT(result, EXIT_NOT_WRITTEN);
    QVERIFY2(result.error.contains(QLatin1String("Standard output cannot be written")),
             qPrintable(result.error));
}

void UssdProgramTest::aClosedPipeIsAFailure()
{
    int ends[2];
    QCOMPARE(pipe2(ends, O_CLOEXEC), 0);
    close(ends[0]);
    UssdProcess process(words("send *100#"));
    process.replaceStream(STDOUT_FILENO, ends[1]);
    process.start();
    close(ends[1]);
    COMPARE_EXIT(process.finish(), EXIT_NOT_WRITTEN);
}

/// Tests that the program fails if standard output is closed. Another file that the program opens
/// must not get the descriptor of the closed stream.
void UssdProgramTest::aClosedStandardOutputIsAFailure()
{
    QProcess shell;
    shell.start(latin1("sh"), QStringList()
                                  << latin1("-c") << latin1("exec \"$0\" send '*100#' >&-")
                                  << latin1(USSD_PROGRAM));
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.exitCode(), int(EXIT_NOT_WRITTEN));
}

/* ---- signals ----------------------------------------------------------------------------- */

void UssdProgramTest::signalsEndTheRequest_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void UssdProgramTest::signalsEndTheRequest()
{
    QFETCH(int, signal);
    UssdProcess process(words("send *131#"));
    process.start();
    QVERIFY(process.waitForError(latin1("Demonstration")));
    process.sendSignal(signal);
    COMPARE_EXIT(process.finish(), EXIT_SIGNAL + signal);
}

void UssdProgramTest::anIgnoredSignalStaysIgnored()
{
    UssdProcess process(words("send --timeout 0.5 *131#"));
    process.ignoreSignal(SIGHUP);
    process.start();
    QVERIFY(process.waitForError(latin1("Demonstration")));
    process.sendSignal(SIGHUP);
    COMPARE_EXIT(process.finish(), EXIT_NO_ANSWER);
}

void UssdProgramTest::aSignalEndsABlockedWrite()
{
    const FullPipe pipe;
    UssdProcess process(words("send *100#"));
    process.replaceStream(STDOUT_FILENO, pipe.writeEnd());
    process.start();
    QVERIFY(process.waitForError(latin1("Demonstration")));
    // The reply arrives after 5 ms, so the program is now blocked by the full pipe.
    QVERIFY(!process.waitForFinished(300));
    process.sendSignal(SIGTERM);
    COMPARE_EXIT(process.finish(), EXIT_SIGNAL + SIGTERM);
}

void UssdProgramTest::afterASignalNothingIsSent_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("notSent");
    QTest::newRow("answer") << QByteArray("send *123# 2 1") << QByteArray()
                            << QByteArray("It was not carried out.\nNot sent: 1\n");
    QTest::newRow("line of the input") << QByteArray("send -") << QByteArray("*100#\n*101#\n")
                                       << QByteArray("It was not carried out.\n");
    QTest::newRow("chat") << QByteArray("chat *123#") << QByteArray("1\n") << QByteArray();
}

/// Tests that the program does not send the next code or answer if a signal arrives while it is
/// writing the first reply. The next code or answer might trigger a purchase.
void UssdProgramTest::afterASignalNothingIsSent()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, notSent);
    const FullPipe pipe;
    UssdProcess process(words(line.constData()));
    process.replaceStream(STDOUT_FILENO, pipe.writeEnd());
    process.start();
    process.write(input);
    QVERIFY(process.waitForError(latin1("Demonstration")));
    // The reply arrives after 5 ms, so the program is now blocked by the full pipe.
    QVERIFY(!process.waitForFinished(300));
    process.sendSignal(SIGINT);
    const Run result = process.finish();
    COMPARE_EXIT(result, EXIT_CANCELLED);
    QVERIFY2(result.error.endsWith(QString::fromUtf8(notSent)), qPrintable(result.error));
    QVERIFY2(!result.error.contains(latin1("may have carried out")), qPrintable(result.error));
}

/* ---- chat -------------------------------------------------------------------------------- */

void UssdProgramTest::aChatReadsAnswers()
{
    const Run result = run(words("chat *123#"), "2\n\n1\n*100#\n");
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(result.out, QLatin1String("Menu\n1 First\n2 Second\n\nSecond\n1 Deeper\n\n"
                                       "Deep enough.\n\nYour balance is 7.00 EUR.\n"));
    QCOMPARE(result.error, QLatin1String(DEMONSTRATION)); // no prompt without a terminal
}

void UssdProgramTest::aChatHasAPromptOnATerminal()
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    QVERIFY(grantpt(terminal) == 0 && unlockpt(terminal) == 0);
    const int program = open(ptsname(terminal), O_RDWR | O_NOCTTY | O_CLOEXEC);
    UssdProcess process(words("chat *123#"));
    process.replaceStream(STDIN_FILENO, program);
    process.start();
    QVERIFY(process.waitForError(latin1("answer> ")));
    QCOMPARE(write(terminal, "1\n", 2), ssize_t(2));
    QVERIFY(process.waitForError(latin1("code> ")));
    const char ctrlD = 4;
    QCOMPARE(write(terminal, &ctrlD, 1), ssize_t(1));
    const Run result = process.finish();
    COMPARE_EXIT(result, EXIT_DONE);
    QVERIFY2(result.out.endsWith(QLatin1String("You chose 1.\n")), qPrintable(result.out));
    close(program);
    close(terminal);
}

void UssdProgramTest::aChatSurvivesAFailure()
{
    const Run result = run(words("chat *130#"), "*1\"#\n*100#\n");
    COMPARE_EXIT(result, EXIT_DONE);
    QCOMPARE(result.out, QLatin1String("Your balance is 7.00 EUR.\n"));
    QVERIFY2(result.error.contains(QLatin1String("quote")), qPrintable(result.error));
}

/// Tests that a network-initiated message can be answered in a chat.
void UssdProgramTest::aChatAnswersTheNetwork()
{
    const QByteArray push = "[Push offer]\nAfter=100\nReply=A gigabyte for 1 EUR?\n"
                            "[Push offer/1]\nReply=Booked.\n";
    const QString file = writeFile(latin1("offer.scenario"), scenarioWithReply("x") + push);
    UssdProcess process(words("chat --scenario") << file);
    process.start();
    QVERIFY(process.waitForOutput(latin1("A gigabyte for 1 EUR?\n")));
    process.write("1\n");
    QVERIFY(process.waitForOutput(latin1("Booked.\n")));
    process.closeWriteChannel();
    COMPARE_EXIT(process.finish(), EXIT_DONE);
}

void UssdProgramTest::aSignalEndsAChat()
{
    UssdProcess process(words("chat *123#"));
    process.start();
    QVERIFY(process.waitForOutput(latin1("Menu")));
    process.sendSignal(SIGINT);
    COMPARE_EXIT(process.finish(), EXIT_CANCELLED);
}

/* ---- status, modems, watch, cancel ------------------------------------------------------- */

void UssdProgramTest::theStatusIsPrinted()
{
    const Run result = run("status");
    COMPARE_EXIT(result, EXIT_DONE);
    for (const char *word : {"registered", "Test Net", "64 %", "001010000000007"})
        QVERIFY2(result.out.contains(QLatin1String(word)), qPrintable(result.out));
    const Run json = run("status --json");
    const QJsonObject status = objectsIn(json.out).value(0);
    QCOMPARE(status.value(latin1("state")).toString(), latin1("registered"));
    QCOMPARE(status.value(latin1("network")).toString(), latin1("Test Net"));
    QCOMPARE(status.value(latin1("signal")).toInt(), 64);
    QCOMPARE(status.value(latin1("demonstration")).toBool(false), true);
    const Run searching = runWith(scenarioWithState("searching"), words("status"));
    COMPARE_EXIT(searching, EXIT_NOT_READY);
    QVERIFY(searching.out.contains(QLatin1String("searching")));
}

void UssdProgramTest::messagesOfTheNetworkArePrinted()
{
    const QByteArray scenario =
        scenarioWithReply("x") + "[Push bonus]\nAfter=100\nReply=A bonus\\nfor you\n";
    const QString file = writeFile(latin1("push.scenario"), scenario);
    UssdProcess process(words("watch --scenario") << file);
    process.start();
    QVERIFY(process.waitForOutput(latin1("for you\n")));
    process.sendSignal(SIGTERM);
    const Run result = process.finish();
    COMPARE_EXIT(result, EXIT_SIGNAL + SIGTERM);
    const QRegularExpression line(
        latin1("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d  A bonus\nfor you\n$"));
    QVERIFY2(line.match(result.out).hasMatch(), qPrintable(result.out));

    UssdProcess json(words("watch --json --scenario") << file);
    json.start();
    QVERIFY(json.waitForOutput(latin1("}\n")));
    json.sendSignal(SIGINT);
    const QJsonObject message = objectsIn(json.finish().out).value(0);
    QCOMPARE(message.value(latin1("text")).toString(), latin1("A bonus\nfor you"));
    QVERIFY(QDateTime::fromString(message.value(latin1("time")).toString(), Qt::ISODate).isValid());
    QCOMPARE(message.value(latin1("waitsForAnswer")).toBool(true), false);
}

void UssdProgramTest::changesOfTheModemAreNoticed()
{
    const QByteArray changes = "[Event gone]\nAfter=100\nState=searching\n"
                               "[Event back]\nAfter=200\nState=registered\n";
    const QString file = writeFile(latin1("changes.scenario"), scenarioWithReply("x") + changes);
    UssdProcess process(words("watch --scenario") << file);
    process.start();
    QVERIFY(process.waitForError(latin1("searching for a network.\n")));
    QVERIFY(process.waitForError(latin1("registered again.\n")));
}

void UssdProgramTest::aSimulatedDeviceIsNoModem()
{
    const Run result = run("modems");
    COMPARE_EXIT(result, EXIT_NOT_READY);
    QVERIFY(result.out.isEmpty());
    QVERIFY(result.error.contains(QLatin1String("There is no modem.")));
}

void UssdProgramTest::withoutASessionThereIsNothingToCancel()
{
    COMPARE_EXIT(run("cancel"), EXIT_DONE);
    QVERIFY(!run("cancel --quiet").error.contains(QLatin1String("session")));
    const Run json = run("cancel --json");
    QCOMPARE(objectsIn(json.out).value(0).value(latin1("session")).toString(), latin1("none"));
}

USSD_TEST_MAIN(UssdProgramTest)
#include "ussd_test.moc"
