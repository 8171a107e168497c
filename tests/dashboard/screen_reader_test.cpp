// The GLib headers must come before the Qt headers, which define "signals" as a macro.
#include "ModemWorld.h"

#include <QElapsedTimer>
#include <QProcess>

#include "AccessibleTree.h"
#include "PrivateDesktop.h"
#include "UssdTest.h"

namespace
{

const int SCREEN_WIDTH = 1400; // pixels
const int SCREEN_HEIGHT = 900;
const int LIMIT = 15000; // ms
const int STEADY_TIME = 1000;
const char ACCEPT_VARIABLE[] = "USSD_ACCEPT_LISTS";
const char MODEM[] = "one";
const int ASKS_FOR_ANSWER = 1; // value of <m> in +CUSD, 3GPP TS 27.007

// A network whose replies are the same in every run.
const char NETWORK[] = R"([Network]
Operator=Meridian Mobile
IMSI=001010123456789
Signal=78
Balance=12.50
Currency=EUR
[*100#]
Reply=Your balance is {balance}.
[*102#]
Reply=Your number is +999 55 0123456.
[*104#]
Outcome=silence
[*105#]
Outcome=refuse
[*123#]
Reply=Meridian Mobile\n1 My account\n2 Data packs\n3 Help
[*123#/2]
Reply=Data packs
)";

/// Replaces dates and times with placeholders, because they differ between runs. Makes the
/// invisible isolate characters visible as < and >.
QString steady(QString line)
{
    static const QRegularExpression time(latin1("\\b\\d{1,2}:\\d{2}\\b"));
    static const QRegularExpression seconds(latin1("\\b\\d+ (of 30 )?(?=seconds|s\\b)"));
    static const QRegularExpression date(latin1("\\b\\d{1,2} [A-Z][a-z]+ 20\\d{2}\\b"));
    line.replace(date, latin1("D MMMM YYYY"));
    line.replace(QChar(0x2066), QLatin1Char('<'));
    line.replace(QChar(0x2069), QLatin1Char('>'));
    line.replace(time, latin1("hh:mm"));
    line.replace(seconds, latin1("N \\1"));
    return line;
}

/// Returns the lines that only one of the lists contains. Missing lines start with "-", unexpected
/// lines with "+".
QString difference(const QStringList &expected, const QStringList &found)
{
    QStringList result;
    for (const QString &line : expected) {
        if (expected.count(line) > found.count(line))
            result << QLatin1String("- ") + line;
    }
    for (const QString &line : found) {
        if (found.count(line) > expected.count(line))
            result << QLatin1String("+ ") + line;
    }
    if (result.isEmpty() && expected != found)
        result << latin1("the order differs");
    return result.join(QLatin1Char('\n'));
}

} // namespace

/**
 * Tests what a screen reader finds in the complete program. The program runs on a private X server,
 * with a real ModemManager and a fake modem. For each page and state, a list contains the expected
 * role, name and description of each visible widget.
 */
class ScreenReaderTest : public UssdTest
{
    Q_OBJECT
private slots:
    void firstRun();
    void pagesOfAReadyModem();
    void theCourseOfACode();
    void everyChangeIsAnnounced();
    void aQuestionOverTheAccountWindow();
    void demonstration();
    void noModem();
    void lockedSim();

protected:
    void setUpClass() override;
    void setUp() override;
    void tearDown() override;
    void tearDownClass() override;

private:
    void startProgram(const QStringList &arguments, bool hasCodes);
    void startWithModem();
    void showPage(const char *page);
    bool waitFor(const QString &line);
    bool press(const QString &line);
    /// Waits until the screen reader has been notified of a widget name that starts with this
    /// string.
    bool isAnnounced(const char *name);
    QStringList steadyLines() const;
    void compare(const char *list);
    void accept(const QString &file);

    QScopedPointer<FakeModems::ModemWorld> m_world;
    QScopedPointer<PrivateDesktop> m_desktop;
    QScopedPointer<AccessibleTree> m_tree;
    QProcess m_program;
};

/* ---- set-up ------------------------------------------------------------------------------ */

void ScreenReaderTest::setUpClass()
{
    const QStringList missing = PrivateDesktop::missingPrograms();
    if (!missing.isEmpty())
        QSKIP(qPrintable(latin1("not installed: ") + missing.join(QLatin1Char(' '))));
    m_world.reset(new FakeModems::ModemWorld);
    QCOMPARE(m_world->start(), std::string());
}

void ScreenReaderTest::setUp()
{
    m_desktop.reset(new PrivateDesktop);
    QCOMPARE(m_desktop->start(folder(), SCREEN_WIDTH, SCREEN_HEIGHT), QString());
    m_tree.reset(new AccessibleTree(m_desktop->accessibilityBus()));
    QVERIFY(m_tree->listen());
}

void ScreenReaderTest::tearDown()
{
    m_program.terminate();
    if (m_program.state() != QProcess::NotRunning)
        QVERIFY(m_program.waitForFinished(LIMIT));
    if (QTest::currentTestFailed())
        qInfo("%s", m_program.readAll().constData());
    m_tree.reset();
    m_desktop.reset();
}

void ScreenReaderTest::tearDownClass()
{
    m_world.reset();
}

/// Starts the program. If `hasCodes` is true, the sample codes are used as the operator's codes.
void ScreenReaderTest::startProgram(const QStringList &arguments, bool hasCodes)
{
    QProcessEnvironment values = m_desktop->environment();
    values.insert(latin1("TKSV_BACKEND"), latin1("modemmanager"));
    values.remove(latin1("TKSV_SCENARIO"));
    // With the default time-out, the code stays pending until it is cancelled.
    values.remove(latin1("USSD_REPLY_TIMEOUT_MS"));
    if (hasCodes)
        values.insert(latin1("USSD_PLUGIN_LIBRARY_PATH"), latin1(PLUGIN_FOLDER));
    m_program.setProcessEnvironment(values);
    m_program.setProcessChannelMode(QProcess::MergedChannels);
    m_program.start(latin1(PROGRAM_FILE), arguments);
    QVERIFY(m_program.waitForStarted(LIMIT));
}

void ScreenReaderTest::startWithModem()
{
    QCOMPARE(m_world->addModem(MODEM, NETWORK), std::string());
    QVERIFY(!m_world->enable(MODEM).empty());
    startProgram(QStringList(), true);
}

/* ---- steps ------------------------------------------------------------------------------- */

bool ScreenReaderTest::waitFor(const QString &line)
{
    const QRegularExpression expression(line);
    const bool isThere =
        QTest::qWaitFor([&] { return !m_tree->find(expression).path.isEmpty(); }, LIMIT);
    if (!isThere)
        qInfo("%s", qUtf8Printable(m_tree->lines().join(QLatin1Char('\n'))));
    return isThere;
}

bool ScreenReaderTest::press(const QString &line)
{
    return waitFor(line) && m_tree->press(m_tree->find(QRegularExpression(line)));
}

bool ScreenReaderTest::isAnnounced(const char *name)
{
    const QRegularExpression event(latin1("^PropertyChange accessible-name .*") + latin1(name));
    return QTest::qWaitFor([&] { return !m_tree->events().filter(event).isEmpty(); }, LIMIT);
}

void ScreenReaderTest::showPage(const char *page)
{
    const QString tab = latin1("^page tab \"%1\"").arg(latin1(page));
    QVERIFY(press(tab));
    QVERIFY(waitFor(tab + latin1(".*\\[selected\\]")));
}

QStringList ScreenReaderTest::steadyLines() const
{
    QStringList result;
    for (const QString &line : m_tree->lines())
        result << steady(line);
    return result;
}

/// Compares the visible widgets with the list. Always fails if a control has no name.
void ScreenReaderTest::compare(const char *list)
{
    const QString name = latin1(LISTS "/%1.txt").arg(latin1(list));
    if (qEnvironmentVariableIsSet(ACCEPT_VARIABLE))
        return accept(name);
    const QStringList expected =
        QString::fromUtf8(contentOf(name)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QString differs;
    const bool isEqual = QTest::qWaitFor(
        [&] { return (differs = difference(expected, steadyLines())).isEmpty(); }, LIMIT);
    QVERIFY2(isEqual, qPrintable(latin1("%1.txt:\n%2").arg(latin1(list), differs)));
    for (const Accessible &object : m_tree->visible())
        QVERIFY2(!object.isControl() || !object.name.isEmpty(), qPrintable(object.line()));
}

/// Writes the current list to the file after the widgets have stopped changing.
void ScreenReaderTest::accept(const QString &file)
{
    QStringList lines;
    QElapsedTimer steadyFor;
    steadyFor.start();
    QVERIFY(QTest::qWaitFor(
        [&] {
            const QStringList now = steadyLines();
            if (std::exchange(lines, now) != now)
                steadyFor.restart();
            return !now.isEmpty() && steadyFor.elapsed() > STEADY_TIME;
        },
        LIMIT));
    QFile list(file);
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write((lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8());
}

/* ---- tests ------------------------------------------------------------------------------- */

void ScreenReaderTest::firstRun()
{
    QCOMPARE(m_world->addModem(MODEM, NETWORK), std::string());
    QVERIFY(!m_world->enable(MODEM).empty());
    startProgram(QStringList(), false);
    compare("first-run");
}

void ScreenReaderTest::pagesOfAReadyModem()
{
    startWithModem();
    for (const char *page : {"Home", "Codes", "Services", "Messages", "Settings"}) {
        showPage(page);
        compare(qPrintable(latin1(page).toLower() + latin1("-ready")));
    }
}

void ScreenReaderTest::theCourseOfACode()
{
    startWithModem();
    showPage("Codes");
    QVERIFY(press(latin1("^push button \"Data left\"")));
    QVERIFY(waitFor(latin1("^status bar \"Waiting for the reply")));
    compare("codes-waiting");
    QVERIFY(m_tree->value(m_tree->find(QRegularExpression(latin1("^progress bar")))) >= 0);
    QVERIFY(press(latin1("^push button \"Cancel\"")));
    compare("codes-cancelled");
    QVERIFY(press(latin1("^push button \"Validity\"")));
    compare("codes-failed");
    QVERIFY(press(latin1("^push button \"Main menu\"")));
    QVERIFY(waitFor(latin1("^push button \"2, Data packs\"")));
    compare("codes-menu");
    QVERIFY(press(latin1("^push button \"End menu\"")));
    compare("codes-menu-ended");
}

// Tests that a screen reader can announce each state. Qt 5 does not send alerts over the
// accessibility bus, so screen readers announce the changed name of a status bar instead.
void ScreenReaderTest::everyChangeIsAnnounced()
{
    startWithModem();
    showPage("Codes");
    QVERIFY(waitFor(latin1("^status bar \"Ready\"")));
    m_tree->forgetEvents();
    QVERIFY(press(latin1("^push button \"Data left\"")));
    QVERIFY(isAnnounced("Waiting for the reply to"));
    QVERIFY(press(latin1("^push button \"Cancel\"")));
    QVERIFY(isAnnounced("Cancelled"));
}

void ScreenReaderTest::aQuestionOverTheAccountWindow()
{
    startWithModem();
    QVERIFY(press(latin1("^push button \"Top up\"")));
    QVERIFY(waitFor(latin1("^dialog")));
    compare("account-window");
    m_world->modem(MODEM).sayUssd(ASKS_FOR_ANSWER, "A gigabyte for 1.00 EUR?\n1 Yes\n2 No");
    QVERIFY(waitFor(latin1("^push button \"1, Yes\"")));
    compare("question");
}

void ScreenReaderTest::demonstration()
{
    startProgram({latin1("--demo")}, false);
    compare("home-demonstration");
}

void ScreenReaderTest::noModem()
{
    m_world->unplug(MODEM);
    startProgram(QStringList(), true);
    compare("home-no-modem");
    showPage("Codes");
    compare("codes-no-modem");
}

void ScreenReaderTest::lockedSim()
{
    QByteArray network(NETWORK);
    network.replace("Signal=78", "State=sim-locked");
    QCOMPARE(m_world->addModem(MODEM, network.toStdString()), std::string());
    QVERIFY(!m_world->waitForState(MODEM, FakeModems::STATE_LOCKED).empty());
    startProgram(QStringList(), true);
    compare("home-locked");
}

USSD_TEST_MAIN(ScreenReaderTest)

#include "screen_reader_test.moc"
