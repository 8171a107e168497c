#include "Arguments.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

/// Parses a command line. The arguments are separated by single spaces.
Arguments parse(const char *line)
{
    return parseArguments(QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

QStringList words(const char *line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '));
}

} // namespace

class ArgumentsTest : public UssdTest
{
    Q_OBJECT
private slots:
    void noArgumentsOpenTheWindow();
    void sendTakesCodeAndAnswers();
    void sendStopsAtTheNextOption();
    void behindTwoHyphensEverythingIsAnAnswer();
    void aModemAndALogAreNamed();
    void switchesOfSendAreTaken();
    void valuesMayStandBehindAnEqualsSign();
    void exportTakesAFile();
    void helpAndVersionWin();
    void mistakesAreNamed_data();
    void mistakesAreNamed();
    void controlCharactersAreNoCode_data();
    void controlCharactersAreNoCode();
};

void ArgumentsTest::noArgumentsOpenTheWindow()
{
    const Arguments arguments = parse("");
    QVERIFY(!arguments.errorKey);
    QCOMPARE(arguments.mode, Arguments::Window);
    QVERIFY(!arguments.verbose);
}

void ArgumentsTest::sendTakesCodeAndAnswers()
{
    const Arguments arguments = parse("--send *123# 2 -1 0");
    QVERIFY(!arguments.errorKey);
    QCOMPARE(arguments.mode, Arguments::Send);
    QCOMPARE(arguments.commands, words("*123# 2 -1 0"));
}

void ArgumentsTest::sendStopsAtTheNextOption()
{
    const Arguments arguments =
        parse("--verbose --send *123# 2 --scenario a.scenario --language de");
    QVERIFY(!arguments.errorKey);
    QCOMPARE(arguments.commands, words("*123# 2"));
    QCOMPARE(arguments.scenario, QLatin1String("a.scenario"));
    QCOMPARE(arguments.language, QLatin1String("de"));
    QVERIFY(arguments.verbose);
}

void ArgumentsTest::behindTwoHyphensEverythingIsAnAnswer()
{
    const Arguments arguments = parse("--send *123# -- --help --");
    QVERIFY(!arguments.errorKey);
    QCOMPARE(arguments.mode, Arguments::Send);
    QCOMPARE(arguments.commands, words("*123# --help --"));
}

void ArgumentsTest::aModemAndALogAreNamed()
{
    const Arguments arguments = parse("--modem 353612345678901 --log=/tmp/a.log");
    QVERIFY(!arguments.errorKey);
    QCOMPARE(arguments.modem, QLatin1String("353612345678901"));
    QCOMPARE(arguments.logFile, QLatin1String("/tmp/a.log"));
}

void ArgumentsTest::switchesOfSendAreTaken()
{
    const Arguments arguments = parse("--demo --send *1# --enable --end-foreign-session");
    QVERIFY(!arguments.errorKey);
    QVERIFY(arguments.demo && arguments.enable && arguments.endForeignSession);
    const Arguments without = parse("--send *1#");
    QVERIFY(!without.demo && !without.enable && !without.endForeignSession);
}

void ArgumentsTest::valuesMayStandBehindAnEqualsSign()
{
    const Arguments arguments = parse("--tour=/tmp/a=b --language=ar");
    QVERIFY(!arguments.errorKey);
    QCOMPARE(arguments.mode, Arguments::Tour);
    QCOMPARE(arguments.tourFolder, QLatin1String("/tmp/a=b"));
    QCOMPARE(arguments.language, QLatin1String("ar"));
}

void ArgumentsTest::exportTakesAFile()
{
    for (const char *line : {"--export /tmp/a.csv", "--export=/tmp/a.csv"}) {
        const Arguments arguments = parse(line);
        QVERIFY(!arguments.errorKey);
        QCOMPARE(arguments.mode, Arguments::Export);
        QCOMPARE(arguments.exportFile, QLatin1String("/tmp/a.csv"));
    }
    QVERIFY(parse("--verbose").exportFile.isEmpty());
}

void ArgumentsTest::helpAndVersionWin()
{
    QCOMPARE(parse("--help").mode, Arguments::Help);
    QCOMPARE(parse("-h").mode, Arguments::Help);
    QCOMPARE(parse("--version").mode, Arguments::Version);
    QCOMPARE(parse("--help --send *1#").mode, Arguments::Help);
    QCOMPARE(parse("--send *1# --help").mode, Arguments::Help);
}

void ArgumentsTest::mistakesAreNamed_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("subject");
    const auto row = [](const char *line, const char *key, const char *subject) {
        QTest::newRow(line) << QByteArray(line) << QByteArray(key) << QString::fromUtf8(subject);
    };
    row("--bogus", "CLI_UNKNOWN_OPTION", "--bogus");
    row("--export", "CLI_MISSING_VALUE", "--export");
    row("--export=", "CLI_MISSING_VALUE", "--export");
    row("--export --verbose", "CLI_MISSING_VALUE", "--export");
    row("--export a.csv b.csv", "CLI_UNEXPECTED", "b.csv");
    row("--export a.csv --send *1#", "CLI_CONFLICT", "");
    row("--tour a --export a.csv", "CLI_CONFLICT", "");
    row("--bogus value", "CLI_UNKNOWN_OPTION", "--bogus");
    row("--help=yes", "CLI_UNKNOWN_OPTION", "--help=yes");
    row("-x", "CLI_UNKNOWN_OPTION", "-x");
    row("*100#", "CLI_UNEXPECTED", "*100#");
    row("-- *100#", "CLI_UNEXPECTED", "*100#");
    row("--send", "CLI_MISSING_VALUE", "--send");
    row("--send --verbose", "CLI_MISSING_VALUE", "--send");
    row("--tour", "CLI_MISSING_VALUE", "--tour");
    row("--tour --verbose", "CLI_MISSING_VALUE", "--tour");
    row("--scenario=", "CLI_MISSING_VALUE", "--scenario");
    row("--language", "CLI_MISSING_VALUE", "--language");
    row("--send *1# --tour x", "CLI_CONFLICT", "");
    row("--tour x --send *1#", "CLI_CONFLICT", "");
    row("--tour x --scenario y", "CLI_TOUR_SCENARIO", "");
    row("--modem 1 --tour x", "CLI_TOUR_SCENARIO", "");
    row("--modem 1 --scenario y", "CLI_MODEM_SCENARIO", "");
    row("--modem 1 --demo", "CLI_MODEM_SCENARIO", "");
    row("--tour x --demo", "CLI_TOUR_SCENARIO", "");
    row("--enable", "CLI_ONLY_SEND", "--enable");
    row("--tour x --end-foreign-session", "CLI_ONLY_SEND", "--end-foreign-session");
    row("--demo=yes", "CLI_UNKNOWN_OPTION", "--demo=yes");
    row("--modem", "CLI_MISSING_VALUE", "--modem");
    row("--log=", "CLI_MISSING_VALUE", "--log");
}

void ArgumentsTest::mistakesAreNamed()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, key);
    QFETCH(QString, subject);
    const Arguments arguments = parse(line.constData());
    QCOMPARE(QByteArray(arguments.errorKey), key);
    QCOMPARE(arguments.errorSubject, subject);
}

void ArgumentsTest::controlCharactersAreNoCode_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("empty") << QString();
    QTest::newRow("escape") << QString(QChar(0x1b));
    QTest::newRow("line feed") << QString::fromLatin1("*1\n#");
    QTest::newRow("C1") << QString(QChar(0x9b));
}

void ArgumentsTest::controlCharactersAreNoCode()
{
    QFETCH(QString, command);
    const QStringList line = QStringList()
                             << QLatin1String("--send") << QLatin1String("*1#") << command;
    QCOMPARE(QByteArray(parseArguments(line).errorKey), QByteArray("CLI_BAD_COMMAND"));
}

USSD_TEST_MAIN(ArgumentsTest)
#include "arguments_test.moc"
