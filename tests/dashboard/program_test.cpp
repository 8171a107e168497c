#include <QDir>
#include <QDirIterator>
#include <QImage>

#include <unistd.h>

#include "ProgramRun.h"
#include "UssdTest.h"

namespace
{

const QFile::Permissions OWNER =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;

/** A run of the program with --tour in one language. The program runs only once, and several tests
    check the pictures. */
class TakenTour
{
public:
    TakenTour();

    QDir folder() const { return QDir(m_folder.path() + QLatin1String("/tour")); }
    QString dataFolder() const { return m_folder.path() + QLatin1String("/data"); }
    QString temporaryFolder() const { return m_folder.path() + QLatin1String("/tmp"); }
    QString transcript() const
    {
        return QString::fromUtf8(contentOf(folder().filePath(QLatin1String("transcript.txt"))));
    }

    Run run;

private:
    QTemporaryDir m_folder;
};

TakenTour::TakenTour()
{
    QDir().mkpath(temporaryFolder());
    QProcessEnvironment environment = quickNetwork();
    environment.insert(QLatin1String("XDG_DATA_HOME"), dataFolder());
    environment.insert(QLatin1String("TMPDIR"), temporaryFolder());
    run = ::run({QLatin1String("--tour"), folder().path(), QLatin1String("--language=de")},
                environment);
}

const TakenTour &takenTour()
{
    static const TakenTour tour;
    return tour;
}

int differentPixels(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 0; y < qMin(a.height(), b.height()); ++y) {
        for (int x = 0; x < qMin(a.width(), b.width()); ++x)
            count += a.pixel(x, y) != b.pixel(x, y);
    }
    return count;
}

} // namespace

/** Tests the program as a user would start it, but without a display. */
class ProgramTest : public UssdTest
{
    Q_OBJECT
private slots:
    void helpAndVersionArePrinted();
    void mistakesEndWithTwo_data();
    void mistakesEndWithTwo();
    void withoutADisplayItSaysSo();

    void aReplyIsPrintedAsItIs();
    void aReplyInOtherLettersIsWhole();
    void theMenuIsAnsweredInTurn();
    void answersNobodyAskedForAreNotSent();
    void aRefusalEndsWithOneAndItsText();
    void aTimeOutEndsWithFourAndItsText();
    void aFailureSpeaksTheLanguage();
    void aTooLongCodeFails();
    void aDeviceThatIsNotReadyIsNamed();
    void aDeviceThatIsStillRegisteringIsWaitedFor();
    void theWaitForADeviceEndsInWords();
    void theDeviceInUseIsToldWhenAskedFor();
    void aModemThatIsNotThereIsSaid();
    void aDeviceThatGoesAwayFails();
    void noControlCharacterReachesTheTerminal();
    void theLogIsSilentUnlessAskedFor();
    void theLogSaysWhatItHolds();
    void theLogFileIsTheUsersAlone();
    void aLogFileOfEarlierIsMadePrivate();
    void aLogIsNotWrittenThroughALink();
    void noLogIsWrittenUnlessAskedFor();
    void aBadScenarioIsNamedByLine();
    void aMissingPluginIsSaid();
    void theShippedNetworkTellsTheBalance();
    void nothingIsLeftBehind();

    void theTourLeavesPicturesAndTranscript_data();
    void theTourLeavesPicturesAndTranscript();
    void theTourSaysInItsLanguageThatItIsOver();
    void eachPictureOfTheTourIsNamedAndAnother();
    void theTourTellsWhatEachPictureShows();
    void theTourChangesNobodysFiles();
    void whatTheProgramWritesIsItsUsersAlone();
    void aTourThatCannotWriteSaysSo();

private:
    Run runWith(const QByteArray &scenario, const char *line);
};

Run ProgramTest::runWith(const QByteArray &scenario, const char *line)
{
    const QString file = writeFile(QLatin1String("own.scenario"), scenario);
    QStringList arguments = QString::fromUtf8(line).split(QLatin1Char(' '));
    arguments << QLatin1String("--scenario") << file;
    return run(arguments, quickNetwork());
}

void ProgramTest::helpAndVersionArePrinted()
{
    const Run help = run("--help");
    QCOMPARE(help.code, 0);
    QVERIFY(help.out.contains(QLatin1String("--send CODE [ANSWER...]")));
    const Run version = run("--version");
    QCOMPARE(version.code, 0);
    QVERIFY(version.out.startsWith(QLatin1String("ussd-dashboard 0.")));
    QVERIFY(version.error.isEmpty());
}

void ProgramTest::mistakesEndWithTwo_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("words");
    QTest::newRow("option") << QByteArray("--bogus") << QByteArray("--bogus");
    QTest::newRow("language") << QByteArray("--language xx --send *100#") << QByteArray("en de fr");
    QTest::newRow("word") << QByteArray("hello") << QByteArray("hello");
    QTest::newRow("no code") << QByteArray("--send") << QByteArray("--send");
}

void ProgramTest::mistakesEndWithTwo()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, words);
    const Run result = run(line.constData());
    QCOMPARE(result.code, 2);
    QVERIFY2(result.error.contains(QString::fromLatin1(words)), qPrintable(result.error));
    QVERIFY(result.error.contains(QLatin1String("--help")));
    QVERIFY(result.out.isEmpty());
}

void ProgramTest::withoutADisplayItSaysSo()
{
    const Run result = run("");
    QCOMPARE(result.code, 1);
    QVERIFY2(result.error.contains(QLatin1String("no display")), qPrintable(result.error));
}

void ProgramTest::aReplyIsPrintedAsItIs()
{
    const Run result = run("--send *101#");
    QCOMPARE(result.code, 0);
    QCOMPARE(result.out, QLatin1String("two  blanks\n\nand <b>no</b> &amp; markup\n"));
    QVERIFY2(result.error.isEmpty(), qPrintable(result.error));
}

void ProgramTest::aReplyInOtherLettersIsWhole()
{
    QCOMPARE(run("--send *197#").out, QString::fromUtf8("رصيدك 7.00، اطلب *100#\n"));
}

void ProgramTest::theMenuIsAnsweredInTurn()
{
    const Run result = run("--send *123# 2 1");
    QCOMPARE(result.out,
             QLatin1String("Menu\n1 First\n2 Second\n\nSecond\n1 Deeper\n\nDeep enough\n"));
    QCOMPARE(result.code, 0);
}

void ProgramTest::answersNobodyAskedForAreNotSent()
{
    const Run result = run("--send *123# 1 8 9");
    QCOMPARE(result.code, 1);
    QVERIFY(result.out.endsWith(QLatin1String("You chose 1\n")));
    QVERIFY2(result.error.contains(QLatin1String("8 9")), qPrintable(result.error));
}

void ProgramTest::aRefusalEndsWithOneAndItsText()
{
    const Run result = run("--send *198#");
    QCOMPARE(result.code, 1);
    QVERIFY2(result.error.startsWith(QLatin1String("The network ")), qPrintable(result.error));
    QVERIFY(result.out.isEmpty());
}

void ProgramTest::aTimeOutEndsWithFourAndItsText()
{
    const Run result = run("--send *199#");
    QCOMPARE(result.code, 4);
    QCOMPARE(result.error, QLatin1String("The network did not reply in time. The network may have "
                                         "carried out the command all the same.\n"));
}

void ProgramTest::aFailureSpeaksTheLanguage()
{
    const Run result = run("--language de --send *199#");
    QCOMPARE(result.code, 4);
    QVERIFY2(result.error.contains(QLatin1String("Netz")), qPrintable(result.error));
}

void ProgramTest::aTooLongCodeFails()
{
    const QString code = QLatin1Char('*') + QString(91, QLatin1Char('1')) + QLatin1Char('#');
    const Run result = run(QStringList() << QLatin1String("--send") << code, quickNetwork());
    QCOMPARE(result.code, 1);
    QVERIFY(!result.error.isEmpty());
}

void ProgramTest::aDeviceThatIsNotReadyIsNamed()
{
    const Run result = runWith("[Network]\nOperator=O\nIMSI=001010000000007\nState=sim-locked\n"
                               "[*100#]\nReply=x\n",
                               "--send *100#");
    QCOMPARE(result.code, 3);
    QVERIFY2(result.error.contains(QLatin1String("PIN")), qPrintable(result.error));
}

void ProgramTest::aDeviceThatIsStillRegisteringIsWaitedFor()
{
    const Run result = runWith("[Network]\nOperator=O\nIMSI=001010000000007\nState=searching\n"
                               "[*100#]\nReply=x\n[Event found]\nAfter=100\nState=registered\n",
                               "--send *100#");
    QVERIFY2(result.error.isEmpty(), qPrintable(result.error));
    QCOMPARE(result.out, QLatin1String("x\n"));
    QCOMPARE(result.code, 0);
}

void ProgramTest::theWaitForADeviceEndsInWords()
{
    const Run result = runWith("[Network]\nOperator=O\nIMSI=001010000000007\nState=searching\n"
                               "[*100#]\nReply=x\n",
                               "--send *100#");
    QCOMPARE(result.code, 3);
    QCOMPARE(result.error,
             QLatin1String("Looking for a network. This can take a minute. Codes can be "
                           "sent as soon as the network is found.\n"));
}

void ProgramTest::theDeviceInUseIsToldWhenAskedFor()
{
    const QString source = QLatin1String("Demonstration: invented network (quick.scenario)\n");
    QVERIFY(run("--verbose --send *100#").error.contains(source));
    QVERIFY(!run("--send *100#").error.contains(source));
}

// Tests that the program reports a modem that is not available. The tests run without a message
// bus, so the program cannot find any modem.
void ProgramTest::aModemThatIsNotThereIsSaid()
{
    const Run result = run("--modem 353612345678901 --verbose --send *100#");
    QCOMPARE(result.code, 3);
    QVERIFY2(result.error.contains(QLatin1String("D-Bus")), qPrintable(result.error));
    QVERIFY(result.error.contains(QLatin1String("Source: modem (none)")));
    QVERIFY(result.out.isEmpty());
}

void ProgramTest::aDeviceThatGoesAwayFails()
{
    const Run result = run("--send *194#");
    QCOMPARE(result.code, 3);
    QVERIFY2(result.error.contains(QLatin1String("was removed")), qPrintable(result.error));
}

void ProgramTest::noControlCharacterReachesTheTerminal()
{
    const QByteArray reply = "a\x1b[31mb\x07\x7f\xc2\x9b"
                             "31m\xe2\x80\xaegfed\xe2\x80\xac\\tz";
    const QByteArray scenario =
        "[Network]\nOperator=O\nIMSI=001010000000007\n[*100#]\nReply=" + reply + "\n";
    const Run result = runWith(scenario, "--verbose --send *100#");
    QCOMPARE(result.code, 0);
    QCOMPARE(result.out, QString::fromUtf8("a\xef\xbf\xbd[31mb\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"
                                           "31m\xef\xbf\xbdgfed\xef\xbf\xbd\tz\n"));
    QVERIFY(result.error.contains(QLatin1String("[31mb"))); // the log also contains the reply
    QVERIFY(!result.error.contains(QChar(0x1b)));
    QVERIFY(!result.error.contains(QChar(0x9b)));
}

void ProgramTest::theLogIsSilentUnlessAskedFor()
{
    QVERIFY(run("--send *100#").error.isEmpty());
    QVERIFY(run("--verbose --send *100#").error.contains(QLatin1String("Enter")));
}

void ProgramTest::theLogSaysWhatItHolds()
{
    const QString file = folder() + QLatin1String("/a.log");
    const Run result = run(QStringList() << QLatin1String("--log") << file
                                         << QLatin1String("--send") << QLatin1String("*100#"),
                           quickNetwork());
    QCOMPARE(result.code, 0);
    QVERIFY(result.error.isEmpty());
    const QByteArray log = contentOf(file);
    QVERIFY2(log.startsWith("This log holds the codes"), log.constData());
    QVERIFY(log.contains("*100#"));
    const Run verbose = run("--verbose --send *100#");
    QVERIFY(verbose.error.startsWith(QLatin1String("This log holds the codes")));
}

void ProgramTest::theLogFileIsTheUsersAlone()
{
    const QString file = folder() + QLatin1String("/a.log");
    run(QStringList() << QLatin1String("--log") << file << QLatin1String("--send")
                      << QLatin1String("*100#"),
        quickNetwork());
    QCOMPARE(QFileInfo(file).permissions(), OWNER);
}

void ProgramTest::aLogFileOfEarlierIsMadePrivate()
{
    const QString file = writeFile(QLatin1String("a.log"), "earlier");
    QVERIFY(QFile::setPermissions(file, OWNER | QFile::ReadOther | QFile::ReadGroup));
    run(QStringList() << QLatin1String("--log") << file << QLatin1String("--send")
                      << QLatin1String("*100#"),
        quickNetwork());
    QCOMPARE(QFileInfo(file).permissions(), OWNER);
    QVERIFY(contentOf(file).startsWith("This log"));
}

void ProgramTest::aLogIsNotWrittenThroughALink()
{
    const QString target = writeFile(QLatin1String("target"), "untouched");
    const QString link = folder() + QLatin1String("/link");
    const QString other = folder() + QLatin1String("/other");
    QVERIFY(QFile::link(target, link));
    QCOMPARE(::link(QFile::encodeName(target).constData(), QFile::encodeName(other).constData()),
             0);
    for (const QString &file : {link, other, folder()}) {
        const Run result = run(QStringList() << QLatin1String("--log") << file
                                             << QLatin1String("--send") << QLatin1String("*100#"),
                               quickNetwork());
        QCOMPARE(result.code, 2);
        QVERIFY2(result.error.contains(file), qPrintable(result.error));
        QVERIFY(result.out.isEmpty());
        QCOMPARE(contentOf(target), QByteArray("untouched"));
    }
}

void ProgramTest::noLogIsWrittenUnlessAskedFor()
{
    QProcessEnvironment environment = quickNetwork();
    for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                                 "TMPDIR", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(variable), folder());
    run(QStringList() << QLatin1String("--verbose") << QLatin1String("--send")
                      << QLatin1String("*100#"),
        environment);
    QDirIterator files(folder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext())
        QVERIFY2(!contentOf(files.next()).contains("*100#"), qPrintable(files.filePath()));
}

void ProgramTest::aBadScenarioIsNamedByLine()
{
    const Run result = runWith("[Network]\nOperator=O\nIMSI=1\n", "--send *100#");
    QCOMPARE(result.code, 2);
    QVERIFY2(result.error.contains(QLatin1String("own.scenario:3")), qPrintable(result.error));
}

void ProgramTest::aMissingPluginIsSaid()
{
    QProcessEnvironment environment = quickNetwork();
    environment.insert(QLatin1String("USSD_PLUGIN_LIBRARY_PATH"), folder());
    const Run result =
        run(QStringList() << QLatin1String("--send") << QLatin1String("*100#"), environment);
    QCOMPARE(result.code, 1);
    QVERIFY(result.error.contains(folder() + QLatin1String("/plugins/USSDUIPlugin/")));
}

void ProgramTest::theShippedNetworkTellsTheBalance()
{
    QProcessEnvironment environment = quickNetwork();
    environment.remove(QLatin1String("TKSV_SCENARIO"));
    environment.remove(QLatin1String("USSD_REPLY_TIMEOUT_MS"));
    const Run result =
        run(QStringList() << QLatin1String("--send") << QLatin1String("*100#"), environment);
    QCOMPARE(result.code, 0);
    QVERIFY2(result.out.contains(QLatin1String("balance")), qPrintable(result.out));
}

void ProgramTest::nothingIsLeftBehind()
{
    QProcessEnvironment environment = quickNetwork();
    environment.insert(QLatin1String("XDG_CONFIG_HOME"), folder());
    run(QStringList() << QLatin1String("--send") << QLatin1String("*100#"), environment);
    QVERIFY(QDir(folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}

void ProgramTest::theTourLeavesPicturesAndTranscript_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("pictures");
    const struct {
        const char *pattern;
        int pictures;
    } rows[] = {
        {"*-home-*.png", 22},
        {"*-codes-*.png", 14},
        {"*-messages-*.png", 6},
        {"*-settings-*.png", 6},
        {"*-services-page-*.png", 6},
        {"*-overview.png", 5},
        {"*-overview-dark.png", 5},
        {"*-page-idle.png", 1},
        {"*-window-waiting.png", 1},
        {"*-page-answered.png", 1},
        {"*-window-menu.png", 1},
        {"*-page-timed-out.png", 1},
        {"*-window-refused.png", 1},
        {"*-page-confirm.png", 1},
        {"*-window-cleared.png", 1},
        {"*-dashboard-other-sim.png", 1},
        {"*-prepaid-opening.png", 1},
        {"*-prepaid-waiting*.png", 2},
        {"*-prepaid-answered.png", 1},
        {"*-prepaid-failed.png", 1},
        {"*-prepaid-topped-up-box.png", 1},
        {"*-prepaid-topped-up-inside.png", 1},
        {"*-prepaid-without-*.png", 4},
        {"*-postpaid-all-in-one.png", 1},
        {"*-editor-empty.png", 1},
        {"*-editor-full.png", 1},
        {"*-editor-duplicate.png", 1},
        {"*-editor-read-only.png", 1},
        {"*-services-sms-not-ready.png", 1},
        {"*-services-*-waiting.png", 4},
        {"*-services-*-answered.png", 2},
        {"*-services-*sent.png", 2},
        {"*-services-sms-failed.png", 1},
        {"*-services-code-refused.png", 1},
        {"*-dashboard-no-modem.png", 1},
        {"*-dashboard-no-service.png", 1},
        {"*-dashboard-not-permitted.png", 1},
        {"*-dashboard-switched-off.png", 1},
        {"*-dashboard-two-modems.png", 1},
        {"*-dashboard-no-codes.png", 1},
        {"*-dashboard-foreign-session.png", 1},
        {"*-dashboard-locked-sim.png", 1},
        {"*-dashboard-pin.png", 1},
        {"*-dashboard-wrong-pin.png", 1},
        {"*-dashboard-last-try.png", 1},
        {"*-dashboard-network-message.png", 1},
        {"*-dashboard-network-question.png", 1},
        {"*-dashboard-operator-*.png", 3},
        {"*-walk-*.png", 4},
        {"*-keep-*.png", 4},
        {"*-history-*.png", 4},
        {"*-stopped-*.png", 4},
        {"*-find-*.png", 4},
        {"*-search-*.png", 4},
        {"*-held-on-4g-*.png", 4},
        {"*-back-to-4g-*.png", 4},
        {"contact-de.png", 1},
        {"*-de-*.png", 169},
        {"*.png", 170},
    };
    for (const auto &row : rows)
        QTest::newRow(row.pattern) << QString::fromLatin1(row.pattern) << row.pictures;
}

void ProgramTest::theTourLeavesPicturesAndTranscript()
{
    QFETCH(QString, pattern);
    QFETCH(int, pictures);
    QVERIFY2(takenTour().run.code == 0, qPrintable(takenTour().run.error));
    QVERIFY(takenTour().run.error.startsWith(QString::fromUtf8("Vorführung: ")));
    QCOMPARE(takenTour().folder().entryList(QStringList(pattern)).size(), pictures);
}

void ProgramTest::theTourSaysInItsLanguageThatItIsOver()
{
    QVERIFY2(takenTour().run.out.contains(QLatin1String("169 Bilder und transcript.txt liegen in")),
             qPrintable(takenTour().run.out));
}

void ProgramTest::eachPictureOfTheTourIsNamedAndAnother()
{
    const QDir tour = takenTour().folder();
    const QStringList pictures = tour.entryList(QStringList(QLatin1String("*.png")));
    for (const QString &picture : pictures)
        QVERIFY(takenTour().run.out.contains(picture));
    for (int i = 1; i < pictures.size(); ++i) {
        const QImage picture(tour.filePath(pictures.at(i)));
        const QImage before(tour.filePath(pictures.at(i - 1)));
        QVERIFY2(picture.size() != before.size() || differentPixels(picture, before) > 50,
                 qPrintable(pictures.at(i)));
    }
}

void ProgramTest::theTourTellsWhatEachPictureShows()
{
    const QString text = takenTour().transcript();
    QCOMPARE(text.count(QLatin1String("== ")), 169);
    for (const char *part :
         {"Deutsch, just opened: balance and number are being fetched", "Your balance is 12.50 EUR",
          "Your balance is 22.50 EUR", "Das Netz hat nicht rechtzeitig geantwortet.",
          "Dieser Eintrag steht schon in der Liste.", "My code 100 | *800#",
          "Senden fehlgeschlagen.", "Auflade-PIN",
          "ModemManager ist nicht installiert oder wurde angehalten.", "A gigabyte for 1.00 EUR?",
          "Deutsch, the wide window in the dark theme"})
        QVERIFY2(text.contains(QString::fromUtf8(part)), part);
    QVERIFY(!text.contains(QLatin1String("1357"))); // the PIN that is entered during the tour
}

void ProgramTest::theTourChangesNobodysFiles()
{
    QVERIFY(takenTour().run.code == 0);
    QCOMPARE(contentOf(QLatin1String(INSTALLED_PROFILES)), contentOf(QLatin1String(PROFILES)));
    QVERIFY(!QFile::exists(takenTour().dataFolder() + QLatin1String("/ussd-dashboard")));
    QCOMPARE(QDir(takenTour().temporaryFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList());
}

void ProgramTest::whatTheProgramWritesIsItsUsersAlone()
{
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    const QDir tour = takenTour().folder();
    QVERIFY(tour.entryList(QDir::Files).size() > 1);
    QVERIFY(!(QFileInfo(tour.path()).permissions() & others));
    for (const QFileInfo &file : tour.entryInfoList(QDir::Files))
        QVERIFY2(!(file.permissions() & others), qPrintable(file.filePath()));
}

void ProgramTest::aTourThatCannotWriteSaysSo()
{
    const QString file = writeFile(QLatin1String("file"), "x");
    const Run result = run(QStringList() << QLatin1String("--tour") << file + QLatin1String("/sub"),
                           quickNetwork());
    QCOMPARE(result.code, 1);
    QVERIFY2(result.error.contains(file), qPrintable(result.error));
}

USSD_TEST_MAIN(ProgramTest)
#include "program_test.moc"
