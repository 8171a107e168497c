#include <QElapsedTimer>
#include <QProcess>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Arguments.h"
#include "base/SignalWatcher.h"
#include "device/DashboardSettings.h"
#include "device/DeviceWait.h"
#include "device/DeviceWatcher.h"
#include "device/Scenarios.h"
#include "ProgramRun.h"
#include "UssdTest.h"
#include "WantedDevice.h"

using namespace Dashboard;

/** Tests which device `--send` uses, its exit status, and how signals end the program. */
class SendTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override { QFile::remove(DashboardSettings().file()); }
    void tearDown() override { QFile::remove(DashboardSettings().file()); }

private slots:
    void everyDemonstrationIsAnnouncedFirst_data();
    void everyDemonstrationIsAnnouncedFirst();
    void aDemonstrationSpeaksTheLanguage();
    void withoutAModemNothingIsInvented_data();
    void withoutAModemNothingIsInvented();
    void aRememberedDemonstrationIsNotUsed();
    void aRememberedModemIsUsed();
    void aWindowUsesTheRememberedDemonstration();
    void aMenuThatIsLeftOpenEndsWithSeven();
    void anOutputThatCannotBeWrittenEndsWithEight();
    void aModemThatIsOffIsNotWaitedFor();
    void aSignalEndsTheCommand_data();
    void aSignalEndsTheCommand();
    void afterASignalNoAnswerIsSent();
    void aSignalEndsTheWaitForTheDevice();
    void aSignalClosesTheWindowInTheOrdinaryWay();
    void theSizeOfTheWindowSurvivesASignal();
    void anIgnoredSignalStaysIgnored();

private:
    Run runWithState(const char *state);
};

namespace
{

const char REGISTERING[] = "[Network]\nOperator=O\nIMSI=001010000000007\nState=searching\n";

QStringList words(const char *line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '));
}

void start(QProcess &process, const QStringList &arguments, const QProcessEnvironment &environment)
{
    process.setProcessEnvironment(environment);
    process.start(QLatin1String(PROGRAM_FILE), arguments);
}

/// Waits until the log file contains this string.
bool waitForLog(const QString &file, const QByteArray &part)
{
    return QTest::qWaitFor([&] { return contentOf(file).contains(part); }, 30000);
}

} // namespace

void SendTest::everyDemonstrationIsAnnouncedFirst_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QByteArray>("value");
    const QByteArray scenario = QByteArray("--scenario ") + QUICK_SCENARIO + " --send *100#";
    QTest::newRow("--demo") << QByteArray("--demo --send *100#") << QByteArray() << QByteArray();
    QTest::newRow("--scenario") << scenario << QByteArray() << QByteArray();
    QTest::newRow("backend") << QByteArray("--send *100#") << QByteArray("TKSV_BACKEND")
                             << QByteArray("simulator");
    QTest::newRow("scenario") << QByteArray("--send *100#") << QByteArray("TKSV_SCENARIO")
                              << QByteArray(QUICK_SCENARIO);
    QTest::newRow("verbose") << QByteArray("--demo --verbose --send *100#") << QByteArray()
                             << QByteArray();
}

void SendTest::everyDemonstrationIsAnnouncedFirst()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, variable);
    QFETCH(QByteArray, value);
    QProcessEnvironment environment = noModem();
    environment.remove(QLatin1String("USSD_REPLY_TIMEOUT_MS")); // uses the default time-out
    if (!variable.isEmpty())
        environment.insert(QString::fromUtf8(variable), QString::fromUtf8(value));
    const Run result = run(words(line.constData()), environment);
    QCOMPARE(result.code, 0);
    QVERIFY(result.isDemonstration);
    QVERIFY2(result.out.contains(QLatin1String("balance")), qPrintable(result.out));
}

void SendTest::aDemonstrationSpeaksTheLanguage()
{
    const Run result = run("--language de --send *100#");
    QVERIFY2(result.error.startsWith(QString::fromUtf8("Vorführung: ")), qPrintable(result.error));
}

void SendTest::withoutAModemNothingIsInvented_data()
{
    QTest::addColumn<QByteArray>("backend");
    QTest::newRow("unset") << QByteArray();
    QTest::newRow("modemmanager") << QByteArray("modemmanager");
}

void SendTest::withoutAModemNothingIsInvented()
{
    QFETCH(QByteArray, backend);
    QProcessEnvironment environment = noModem();
    environment.insert(QLatin1String("TKSV_BACKEND"), QString::fromUtf8(backend));
    const Run result = run(words("--send *100#"), environment);
    QCOMPARE(result.code, 3);
    QVERIFY(!result.isDemonstration);
    QVERIFY2(result.error.contains(QLatin1String("no modem")), qPrintable(result.error));
    QVERIFY2(result.out.isEmpty(), qPrintable(result.out));
}

void SendTest::aRememberedDemonstrationIsNotUsed()
{
    DashboardSettings().setDevice(DeviceChoice::simulated(QLatin1String(QUICK_SCENARIO)));
    const Run result = run(words("--send *100#"), noModem());
    QCOMPARE(result.code, 3);
    QVERIFY(result.out.isEmpty());
}

void SendTest::aRememberedModemIsUsed()
{
    DashboardSettings settings;
    settings.setDevice(DeviceChoice::modem(QLatin1String("353612345678901")));
    Arguments arguments;
    arguments.mode = Arguments::Send;
    qunsetenv("TKSV_BACKEND");
    const QByteArray scenario = qgetenv("TKSV_SCENARIO");
    qunsetenv("TKSV_SCENARIO");
    const DeviceChoice choice = wantedDevice(arguments, settings);
    qputenv("TKSV_BACKEND", "simulator");
    qputenv("TKSV_SCENARIO", scenario);
    QCOMPARE(choice.word(), QLatin1String("modem:353612345678901"));
    QVERIFY(!isDemonstration(choice));
}

void SendTest::aWindowUsesTheRememberedDemonstration()
{
    DashboardSettings settings;
    settings.setDevice(DeviceChoice::simulated(QLatin1String(QUICK_SCENARIO)));
    qunsetenv("TKSV_BACKEND");
    const QByteArray scenario = qgetenv("TKSV_SCENARIO");
    qunsetenv("TKSV_SCENARIO");
    const DeviceChoice choice = wantedDevice(Arguments(), settings);
    qputenv("TKSV_BACKEND", "simulator");
    qputenv("TKSV_SCENARIO", scenario);
    QVERIFY(isDemonstration(choice));
}

void SendTest::aMenuThatIsLeftOpenEndsWithSeven()
{
    const Run result = run("--send *123#");
    QCOMPARE(result.code, 7);
    QCOMPARE(result.out, QLatin1String("Menu\n1 First\n2 Second\n"));
    QVERIFY2(result.error.contains(QLatin1String("waited for an answer")),
             qPrintable(result.error));
}

void SendTest::anOutputThatCannotBeWrittenEndsWithEight()
{
    for (const char *line : {"--send *100#", "--help", "--version"}) {
        QProcess process;
        process.setProcessEnvironment(quickNetwork());
        process.setStandardOutputFile(QLatin1String("/dev/full"));
        process.start(QLatin1String(PROGRAM_FILE), words(line));
        const Run result = finished(process);
        QCOMPARE(result.code, 8);
        QVERIFY2(result.error.contains(QLatin1String("cannot be written")), line);
    }
}

Run SendTest::runWithState(const char *state)
{
    const QString file = writeFile(QLatin1String("own.scenario"),
                                   QByteArray("[Network]\nOperator=O\nIMSI=001010000000007\n") +
                                       state + "\n[*100#]\nReply=x\n");
    QProcessEnvironment environment = quickNetwork();
    environment.insert(QLatin1String("USSD_REPLY_TIMEOUT_MS"), QLatin1String("30000"));
    return run(QStringList() << QLatin1String("--scenario") << file << QLatin1String("--send")
                             << QLatin1String("*100#"),
               environment);
}

void SendTest::aModemThatIsOffIsNotWaitedFor()
{
    QElapsedTimer time;
    time.start();
    const Run result = runWithState("State=disabled");
    QCOMPARE(result.code, 3);
    QVERIFY2(result.error.contains(QLatin1String("switched off")), qPrintable(result.error));
    QVERIFY(time.elapsed() < 9000); // less than the 10 s wait for a device
}

void SendTest::aSignalEndsTheCommand_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void SendTest::aSignalEndsTheCommand()
{
    QFETCH(int, number);
    QProcessEnvironment environment = quickNetwork();
    environment.insert(QLatin1String("USSD_REPLY_TIMEOUT_MS"), QLatin1String("30000"));
    const QString log = folder() + QLatin1String("/a.log");
    QProcess process;
    start(process, words("--send *199# --log") << log, environment);
    QVERIFY(waitForLog(log, "TKSV_USSDSrv_Request Returned"));
    QElapsedTimer time;
    time.start();
    QCOMPARE(::kill(pid_t(process.processId()), number), 0);
    const Run result = finished(process);
    QVERIFY(time.elapsed() < 20000); // less than the 30 s wait for the reply
    QCOMPARE(result.code, 128 + number);
    QVERIFY2(result.error.contains(QLatin1String("The command was cancelled.")),
             qPrintable(result.error));
    QVERIFY(result.out.isEmpty());
}

/// Tests that the program does not send the answer if a signal arrives while the program is writing
/// the first reply to a full pipe. The answer might trigger a purchase.
void SendTest::afterASignalNoAnswerIsSent()
{
    const QString name = folder() + QLatin1String("/pipe");
    QCOMPARE(mkfifo(QFile::encodeName(name).constData(), S_IRWXU), 0);
    const int pipe = open(QFile::encodeName(name).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    QByteArray page(4096, 'x');
    while (write(pipe, page.constData(), size_t(page.size())) > 0) {
    }
    const QString log = folder() + QLatin1String("/a.log");
    QProcess process;
    process.setStandardOutputFile(name);
    start(process, words("--send *123# 2 --log") << log, quickNetwork());
    QVERIFY(waitForLog(log, "TKSV_USSDSrv_Request Returned"));
    // The reply arrives within milliseconds, so the program is now blocked by the full pipe.
    QVERIFY(!process.waitForFinished(500));
    QCOMPARE(::kill(pid_t(process.processId()), SIGINT), 0);
    while (read(pipe, page.data(), size_t(page.size())) > 0) {
    }
    const Run result = finished(process);
    close(pipe);
    QCOMPARE(result.code, 128 + SIGINT);
    QVERIFY2(result.error.contains(QLatin1String("It was not carried out.")),
             qPrintable(result.error));
}

void SendTest::aSignalEndsTheWaitForTheDevice()
{
    QCOMPARE(Scenarios::use(writeFile(QLatin1String("own.scenario"), REGISTERING)), QString());
    const DeviceWatcher device;
    const SignalWatcher interruption;
    QVERIFY(device.status().mayBecomeReady());
    QCOMPARE(raise(SIGTERM), 0);
    QElapsedTimer time;
    time.start();
    DeviceWait{device, interruption, 30000}.untilReady(DeviceChoice::automatic());
    QVERIFY(time.elapsed() < 20000);
    QCOMPARE(interruption.signalNumber(), SIGTERM);
}

/// Tests that the program restores the size at the start and stores it when a signal arrives. The
/// test removes the stored size in between, so that it cannot find the old value.
void SendTest::theSizeOfTheWindowSurvivesASignal()
{
    const QSize size(700, 590);
    QWidget like;
    like.resize(size);
    DashboardSettings().setGeometry(like.saveGeometry());
    QProcessEnvironment environment = quickNetwork();
    environment.insert(QLatin1String("QT_QPA_PLATFORM"), QLatin1String("offscreen"));
    const QString log = folder() + QLatin1String("/b.log");
    QProcess process;
    start(process, QStringList() << QLatin1String("--log") << log, environment);
    QVERIFY(waitForLog(log, "USSDGeneralDlg"));
    DashboardSettings().setGeometry(QByteArray());
    process.terminate();
    QCOMPARE(finished(process).code, 0);
    QWidget restored;
    QVERIFY(restored.restoreGeometry(DashboardSettings().geometry()));
    QCOMPARE(restored.size(), size);
}

void SendTest::aSignalClosesTheWindowInTheOrdinaryWay()
{
    QProcessEnvironment environment = quickNetwork();
    environment.insert(QLatin1String("QT_QPA_PLATFORM"), QLatin1String("offscreen"));
    const QString log = folder() + QLatin1String("/a.log");
    QProcess process;
    start(process, QStringList() << QLatin1String("--log") << log, environment);
    QVERIFY(waitForLog(log, "USSDGeneralDlg"));
    process.terminate();
    const Run result = finished(process);
    QCOMPARE(result.code, 0);
    QVERIFY(!DashboardSettings().geometry().isEmpty());
}

void SendTest::anIgnoredSignalStaysIgnored()
{
    const QString log = folder() + QLatin1String("/a.log");
    QProcess process;
    process.setProcessEnvironment(quickNetwork());
    process.start(
        QLatin1String("/bin/sh"),
        QStringList() << QLatin1String("-c")
                      << QLatin1String("trap '' HUP; exec \"$0\" --log \"$1\" --send '*199#'")
                      << QLatin1String(PROGRAM_FILE) << log);
    QVERIFY(waitForLog(log, "TKSV_USSDSrv_Request Returned"));
    QCOMPARE(::kill(pid_t(process.processId()), SIGHUP), 0);
    QCOMPARE(finished(process).code, 4); // the reply has timed out
}

USSD_TEST_MAIN(SendTest)
#include "send_test.moc"
