// The GLib headers must come before the Qt headers, which define "signals" as a macro.
#include "ModemWorld.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QTextEdit>
#include <QTreeWidget>

#include "base/DashboardText.h"
#include "base/SessionTurn.h"
#include "IUSSD.h"
#include "Languages.h"
#include "MessageHelper.h"
#include "pages/MessagesPage.h"
#include "pages/StateStrip.h"
#include "sim/PaidTypeFinder.h"
#include "SimTest.h"
#include "tksv_device.h"
#include "window/MessageParts.h"

#include <csignal>

using namespace Dashboard;

using FakeModems::Fault;
using FakeModems::Misbehaviour;
using FakeModems::SubmittedSms;

namespace
{

const char NETWORK[] = R"([Network]
Operator=Test Net
IMSI=001010000000001
Balance=12.50
Currency=EUR
[*100#]
Reply=Your balance is {balance}.
[*101*%s#]
Digits=12-16
Credit=10.00
Reply=Voucher accepted.
[*102#]
Reply=0123 456
[*103#]
Reply=Account 1
[*123#]
Reply=Menu\n1 Data\n2 Other
[*123#/1]
Reply=Data\n1 Day\n2 Week
[*123#/1/2]
Reply=A week booked.
[*130#]
Outcome=refuse
[*131#]
Outcome=silence
[*140#]
Reply=رصيدك ١٢٫٥٠
[*141#]
Reply=Ваш баланс 12,50
[*142#]
Reply=Noch 12,50 € übrig
[*150#]
Reply=Wie heißt du?
[*150#/%s]
Reply=Du heißt {answer}.
[SMS 1200]
Result=0
[SMS 1201]
Result=28
)";

const unsigned MODE_2G = 2; // MMModemMode flags
const unsigned MODE_3G = 4;
const unsigned MODE_4G = 8;

const int WEATHER = 9; // row numbers in the service tree
const int TARIFF = 10;
const int ALERT = 11;

/// Returns the texts of all labels in the window.
QString shownText(const QWidget *window)
{
    QStringList texts;
    for (const QLabel *label : window->findChildren<QLabel *>())
        texts << label->text();
    for (const QTextEdit *box : window->findChildren<QTextEdit *>())
        texts << box->toPlainText();
    for (const QPlainTextEdit *box : window->findChildren<QPlainTextEdit *>())
        texts << box->toPlainText();
    return texts.join(QLatin1Char('\n'));
}

/// Starts `ussd-dashboard --send` with these arguments.
void startSend(QProcess &process, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("USSD_REPLY_TIMEOUT_MS"), QLatin1String("10000"));
    process.setProcessEnvironment(environment);
    process.start(QLatin1String(PROGRAM_FILE), QStringList(QLatin1String("--send")) + arguments);
}

/** The output and the exit code of `ussd-dashboard --send`. */
struct SendRun {
    int code = -1;
    QString out;
    QString error;
};

SendRun endOf(QProcess &process)
{
    SendRun run;
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return run;
    run.code = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.error = QString::fromUtf8(process.readAllStandardError());
    return run;
}

SendRun sendRun(const char *arguments)
{
    QProcess process;
    startSend(process, QString::fromUtf8(arguments).split(QLatin1Char(' ')));
    return endOf(process);
}

const char USSD_FAILED[] = "There is no reply.";
const char USSD_TIMED_OUT[] = "The network did not reply in time.";

} // namespace

/**
 * Tests the dashboard and the plug-in with the device SDK, a real ModemManager and a fake AT modem.
 * The tests operate the dashboard as a user would, and check which commands the modem receives.
 */
class EndToEndTest : public SimTest
{
    Q_OBJECT
private slots:
    void balanceFromTheGeneralDialog();
    void aMenuOfThreeSteps();
    void closingTheDashboardEndsTheSession();
    void theAccountWindowEndsTheSession();
    void aNetworkThatIsSilent();
    void theNetworksRefusal();
    void topUpIsFollowedByTheBalance();
    void theKindOfAccountIsDetected();
    void aServiceIsOrdered();
    void aServiceIsRefused();
    void theModemIsPulledOutWhileAMessageIsSent();
    void theModemIsPulledOutWhileACommandIsOut();
    void theDaemonCrashesWhileACommandIsOut();
    void aMessageOfTheNetworkIsShown();
    void aQuestionOfTheNetworkIsAnswered();
    void aModemHeldOn4GIsAllowedOlderNetworks();
    void textInOtherScripts_data();
    void textInOtherScripts();
    void aReplyInThreeScriptsIsAnswered();
    void theLongestCommand();
    void aCommandThatIsTooLong();
    void aQuoteNeverReachesTheModem();

    void openingTheWindowSendsNothing();
    void theWindowLeavesTheSessionOfAnotherProgramAlone();
    void theRadioStaysOff();
    void closingTheDashboardEndsTheCommand();
    void aRefusedDetectionLeavesTheKindUnknown();
    void sendPrintsTheReply();
    void sendDoesNotSwitchTheModemOn();
    void sendSwitchesTheModemOnIfTold();
    void aSignalEndsTheSessionOfSend_data();
    void aSignalEndsTheSessionOfSend();
    void aMenuThatSendLeavesOpenIsEnded();
    void theSessionOfAnotherProgramIsLeftAlone();
    void severalProgramsGetTheirOwnReplies();
    void aProgramThatWaitsForItsTurnSaysSo();
    void aProgramThatMissesItsTurnClaimsNothing();

protected:
    void setUpClass() override;
    void setUp() override;
    void tearDown() override;
    void tearDownClass() override;

private:
    FakeModems::FakeModem &fake() { return m_world->modem("one"); }
    void useModem(const FakeModems::ModemSettings &settings);
    bool waitForRegistration();
    void openPage();
    QString ask(const QString &command);
    QWidget *openDialog(PAID_TYPE type, const char *name);
    Message newestMessage();
    /// Returns the visible button with this name, or null if there is none.
    QPushButton *shownButton(const QString &name);
    QPushButton *shownRemedy(Remedy remedy);
    template <typename T>
    T *part(const QWidget *dialog, const char *role);
    QPushButton *openService(int row);
    bool sendWhenReady(QPushButton *button);
    bool openSessionOfAnotherProgram();

    QScopedPointer<FakeModems::ModemWorld> m_world;
};

/* ---- set-up ------------------------------------------------------------------------------ */

void EndToEndTest::setUpClass()
{
    m_world.reset(new FakeModems::ModemWorld);
    QCOMPARE(m_world->start(), std::string());
}

void EndToEndTest::tearDownClass()
{
    m_world.reset();
}

void EndToEndTest::setUp()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    makeLibrary();
    qputenv("USSD_DETECT_PAID_TYPE", "1");
    useModem(FakeModems::ModemSettings());
}

void EndToEndTest::tearDown()
{
    closeDashboard();
    qunsetenv("USSD_DETECT_PAID_TYPE");
    if (QTest::currentTestFailed())
        fprintf(stderr, "%s\n", m_world->logTail().c_str());
}

/// Replaces the modem, and waits until the new modem is registered.
void EndToEndTest::useModem(const FakeModems::ModemSettings &settings)
{
    QCOMPARE(m_world->addModem("one", NETWORK, settings), std::string());
    QVERIFY(!m_world->enable("one").empty());
    fake().forgetReceived();
}

bool EndToEndTest::waitForRegistration()
{
    return QTest::qWaitFor(
        [] {
            TKSV_DeviceInfo info;
            TKSV_Device_GetInfo(&info);
            return info.state == TKSV_DEVICE_REGISTERED && info.canSendSMS;
        },
        10000);
}

/// Opens the page and waits until the prepaid detection has finished, so that no command is
/// pending.
void EndToEndTest::openPage()
{
    openDashboard();
    QVERIFY(waitForRegistration());
    QTRY_VERIFY(fake().timesReceived("AT+CUSD=1,\"002A0031003000330023\"") == 1);
    QTRY_COMPARE(paidType(), QLatin1String("Prepaid"));
}

/// Waits until the window accepts commands, sends the command and returns the reply. The window may
/// start to accept commands only after waitForRegistration() has returned.
QString EndToEndTest::ask(const QString &command)
{
    const GeneralWindow general = page();
    if (!QTest::qWaitFor([&] { return general.commandEdit()->isEnabled(); }, 10000))
        return QLatin1String("(the window accepts no command)");
    if (!general.send(command) || !QTest::qWaitFor([&] { return !general.isWaiting(); }, 10000))
        return QLatin1String("(not sent, or still waiting)");
    return general.lastReceived();
}

QWidget *EndToEndTest::openDialog(PAID_TYPE type, const char *name)
{
    window().openFrame(type);
    QWidget *dialog = nullptr;
    const bool isOpen = QTest::qWaitFor([&] {
        dialog = frame() ? frame()->findChild<QWidget *>(QLatin1String(name)) : nullptr;
        return dialog != nullptr;
    });
    return isOpen ? dialog : nullptr;
}

template <typename T>
T *EndToEndTest::part(const QWidget *dialog, const char *role)
{
    T *found = dialog->findChild<T *>(QLatin1String("USSDUIPlugin_") + QLatin1String(role));
    if (!found)
        qFatal("the window has no %s", role);
    return found;
}

/// Selects a service, fills in its input field if there is one, and returns the send button.
QPushButton *EndToEndTest::openService(int row)
{
    // The plug-in logs this as a warning although it means success.
    allowWarning("TKSV_SMSSrv_CreateSMSRecord = 0");
    const QWidget *dialog = openDialog(PAID_TYPE_USSD_SMS, "USSDUIPlugin_SMSDialog");
    if (!dialog)
        return nullptr;
    QTreeWidget *tree = part<QTreeWidget>(dialog, "SMSDialog_ServiceTree");
    tree->setCurrentItem(tree->topLevelItem(0)->child(row));
    QLineEdit *input = part<QLineEdit>(dialog, "SMSDialog_InputEdit");
    if (input->isVisible())
        typeInto(input, QString::fromUtf8("Łódź €"));
    return part<QPushButton>(dialog, "SMSDialog_SendButton");
}

/// Presses the button as soon as it is enabled. In a new window, messages cannot be sent
/// immediately.
bool EndToEndTest::sendWhenReady(QPushButton *button)
{
    if (!button || !QTest::qWaitFor([button] { return button->isEnabled(); }))
        return false;
    button->click();
    return true;
}

/* ---- the general dialog ------------------------------------------------------------------ */

void EndToEndTest::balanceFromTheGeneralDialog()
{
    openPage();
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String("Your balance is 12.50 EUR."));
}

void EndToEndTest::aMenuOfThreeSteps()
{
    openPage();
    QCOMPARE(ask(QLatin1String("*123#")), QLatin1String("Menu\n1 Data\n2 Other"));
    QCOMPARE(ask(QLatin1String("1")), QLatin1String("Data\n1 Day\n2 Week"));
    QCOMPARE(ask(QLatin1String("2")), QLatin1String("A week booked."));
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 4); // the detection code and the three commands
    QCOMPARE(fake().timesReceived("AT+CUSD=2"), 0);
}

void EndToEndTest::closingTheDashboardEndsTheSession()
{
    openPage();
    QVERIFY(ask(QLatin1String("*123#")).startsWith(QLatin1String("Menu")));
    QCOMPARE(fake().timesReceived("AT+CUSD=2"), 0);
    closeDashboard();
    QVERIFY(fake().waitForCommand("AT+CUSD=2"));
}

/// Tests that the session of a menu stays open when its window closes, and ends when the next
/// window opens.
void EndToEndTest::theAccountWindowEndsTheSession()
{
    openPage();
    QVERIFY(ask(QLatin1String("*123#")).startsWith(QLatin1String("Menu")));
    const QWidget *dialog = openDialog(PAID_TYPE_PREPAID, "USSDUIPlugin_Pre_PostPaid");
    QVERIFY(dialog);
    QVERIFY(fake().waitForCommand("AT+CUSD=2"));
    const QTextEdit *balance = part<QTextEdit>(dialog, "BalanceStatusTextEdit");
    QTRY_COMPARE(balance->toPlainText(), QLatin1String("Your balance is 12.50 EUR."));
}

void EndToEndTest::aNetworkThatIsSilent()
{
    openPage();
    QCOMPARE(ask(QLatin1String("*131#")), QLatin1String(USSD_TIMED_OUT));
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String("Your balance is 12.50 EUR."));
    // This time, the daemon does not send a cancellation to the modem, because it sends only the
    // first one.
    QCOMPARE(ask(QLatin1String("*131#")), QLatin1String(USSD_TIMED_OUT));
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String("Your balance is 12.50 EUR."));
}

void EndToEndTest::theNetworksRefusal()
{
    openPage();
    QCOMPARE(ask(QLatin1String("*130#")), QLatin1String(USSD_FAILED));
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String("Your balance is 12.50 EUR."));
}

Message EndToEndTest::newestMessage()
{
    return window().findChild<MessageParts *>()->store().newest();
}

QPushButton *EndToEndTest::shownButton(const QString &name)
{
    for (QPushButton *button : window().findChildren<QPushButton *>(name)) {
        if (button->isVisible())
            return button;
    }
    return nullptr;
}

QPushButton *EndToEndTest::shownRemedy(Remedy remedy)
{
    return shownButton(QString::fromLatin1("Dashboard_Remedy_%1").arg(int(remedy)));
}

void EndToEndTest::aMessageOfTheNetworkIsShown()
{
    openPage();
    const QPushButton *messages = button("Dashboard_NavMessages");
    const QString before = messages->accessibleDescription();
    fake().sayUssd(0, "Your <b>bonus</b> is here.");
    QTRY_VERIFY(messages->accessibleDescription() != before);
    QVERIFY(messages->accessibleDescription().contains(QLatin1String("unread")));
    window().showPage(PageId::Messages);
    window().findChild<MessagesPage *>()->open(newestMessage().id);
    const QWidget *reader = window().findChild<QWidget *>(QLatin1String("Dashboard_MessageReader"));
    QVERIFY(reader->isVisible());
    QVERIFY(shownText(reader).contains(QLatin1String("Your <b>bonus</b> is here.")));
    window().showPage(PageId::Codes);
    QCOMPARE(page().lastReceived(), QString());
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String("Your balance is 12.50 EUR."));
}

void EndToEndTest::aQuestionOfTheNetworkIsAnswered()
{
    openPage();
    fake().sayUssd(1, "A gigabyte for 1 EUR?");
    QTRY_COMPARE(newestMessage().text, QLatin1String("A gigabyte for 1 EUR?"));
    QTRY_VERIFY(page().isComplete());
    QVERIFY(page().send(QLatin1String("1")));
    QVERIFY(fake().waitForCommand("AT+CUSD=1,\"0031\""));
    QCOMPARE(fake().timesReceived("AT+CUSD=2"), 0);
}

/// Tests the buttons that allow 2G and 3G and that restore the previous setting. Codes work only
/// while 2G and 3G are allowed. The daemon's plug-in for this modem changes the setting with +WS46.
void EndToEndTest::aModemHeldOn4GIsAllowedOlderNetworks()
{
    FakeModems::ModemSettings held;
    held.plugin = "telit";
    held.allowedNetworks = FakeModems::ONLY_4G;
    useModem(held);
    const FakeModems::ModemState before = m_world->stateOf("one");
    QCOMPARE(before.allowedModes, MODE_4G);

    qunsetenv("USSD_DETECT_PAID_TYPE");
    openDashboard();
    window().showPage(PageId::Codes);
    QVERIFY(waitForRegistration());
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String(USSD_FAILED));
    const StateStrip *strip = window().findChild<StateStrip *>();
    QTRY_COMPARE(strip->text(), dashboardText("FAILURE_ON_LTE"));
    QCOMPARE(m_world->stateOf("one").allowedModes, before.allowedModes); // not changed yet
    QVERIFY(!shownButton(QLatin1String("Dashboard_Only4G")));
    QTRY_VERIFY(shownButton(QLatin1String("Dashboard_AllowOlder")));
    shownButton(QLatin1String("Dashboard_AllowOlder"))->click();
    QTRY_COMPARE(m_world->stateOf("one").allowedModes, MODE_2G | MODE_3G | MODE_4G);
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String("Your balance is 12.50 EUR."));

    QTRY_VERIFY(shownButton(QLatin1String("Dashboard_Only4G")));
    QVERIFY(!shownButton(QLatin1String("Dashboard_AllowOlder")));
    shownButton(QLatin1String("Dashboard_Only4G"))->click();
    QTRY_COMPARE(m_world->stateOf("one").allowedModes, before.allowedModes);
    QCOMPARE(m_world->stateOf("one").preferredModes, before.preferredModes);
    QTRY_VERIFY(!shownButton(QLatin1String("Dashboard_Only4G")));
    QCOMPARE(fake().timesReceived("AT+WS46=28"), 1);
}

void EndToEndTest::textInOtherScripts_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("reply");
    QTest::newRow("Arabic") << QString::fromLatin1("*140#") << QString::fromUtf8("رصيدك ١٢٫٥٠");
    QTest::newRow("Cyrillic") << QString::fromLatin1("*141#")
                              << QString::fromUtf8("Ваш баланс 12,50");
    QTest::newRow("euro") << QString::fromLatin1("*142#")
                          << QString::fromUtf8("Noch 12,50 € übrig");
}

void EndToEndTest::textInOtherScripts()
{
    QFETCH(QString, code);
    QFETCH(QString, reply);
    openPage();
    QCOMPARE(ask(code), reply);
}

void EndToEndTest::aReplyInThreeScriptsIsAnswered()
{
    openPage();
    const QString name = QString::fromUtf8("Zoë علي Иван €");
    QCOMPARE(ask(QLatin1String("*150#")), QString::fromUtf8("Wie heißt du?"));
    QCOMPARE(ask(name), QString::fromUtf8("Du heißt %1.").arg(name));
}

/// Tests that a command of 91 UTF-16 code units reaches the modem unchanged. This is the maximum
/// for the plug-in's command record.
void EndToEndTest::theLongestCommand()
{
    openPage();
    const QString code = QLatin1Char('*') + QString(89, QLatin1Char('7')) + QLatin1Char('#');
    QCOMPARE(code.size(), 91);
    QCOMPARE(ask(code), QLatin1String(USSD_FAILED)); // the network refuses unknown codes
    QString hex;
    for (const QChar c : code)
        hex += QString::fromLatin1("%1").arg(c.unicode(), 4, 16, QLatin1Char('0')).toUpper();
    QCOMPARE(fake().timesReceived("AT+CUSD=1,\"" + hex.toStdString() + "\""), 1);
}

void EndToEndTest::aCommandThatIsTooLong()
{
    openPage();
    const int before = fake().timesReceived("AT+CUSD=1");
    const QString code = QLatin1Char('*') + QString(90, QLatin1Char('7')) + QLatin1Char('#');
    QCOMPARE(ask(code), QLatin1String(USSD_FAILED));
    QCOMPARE(fake().timesReceived("AT+CUSD=1"), before);
}

void EndToEndTest::aQuoteNeverReachesTheModem()
{
    openPage();
    const int before = fake().timesReceived("AT+CUSD=1");
    QCOMPARE(ask(QLatin1String("*100\";+CLCK=\"SC\",0#")), QLatin1String(USSD_FAILED));
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String("Your balance is 12.50 EUR."));
    QCOMPARE(fake().timesReceived("AT+CUSD=1"), before + 1);
}

/* ---- the account window ------------------------------------------------------------------ */

void EndToEndTest::topUpIsFollowedByTheBalance()
{
    openPage();
    const QWidget *dialog = openDialog(PAID_TYPE_PREPAID, "USSDUIPlugin_Pre_PostPaid");
    QVERIFY(dialog);
    const QTextEdit *balance = part<QTextEdit>(dialog, "BalanceStatusTextEdit");
    QTRY_COMPARE(balance->toPlainText(), QLatin1String("Your balance is 12.50 EUR."));
    QLineEdit *pin = part<QLineEdit>(dialog, "ChargeEdit");
    QTRY_VERIFY(pin->isEnabled());
    typeInto(pin, QLatin1String("123456789012"));
    const MessageHelper messages;
    part<QPushButton>(dialog, "ChargeActivateButton")->click();
    QTRY_COMPARE(messages.texts(), QStringList(QLatin1String("Voucher accepted.")));
    QTRY_COMPARE(balance->toPlainText(), QLatin1String("Your balance is 22.50 EUR."));
}

void EndToEndTest::theKindOfAccountIsDetected()
{
    openPage();
    QCOMPARE(offered(), QLatin1String("general framed prepaid services"));
}

/* ---- services ---------------------------------------------------------------------------- */

void EndToEndTest::aServiceIsOrdered()
{
    openPage();
    QPushButton *button = openService(WEATHER);
    QVERIFY(sendWhenReady(button));
    QTRY_COMPARE(fake().submitted().size(), std::size_t(1));
    const SubmittedSms sms = fake().submitted().front();
    QCOMPARE(QString::fromStdString(sms.number), QLatin1String("1200"));
    QCOMPARE(QString::fromStdString(sms.text), QString::fromUtf8("WEATHER Łódź €"));
    const QTreeWidget *tree = part<QTreeWidget>(frame(), "SMSDialog_ServiceTree");
    QTRY_VERIFY(tree->isEnabled());
    QVERIFY(!shownText(frame()).contains(QLatin1String("Sending failed.")));
}

void EndToEndTest::aServiceIsRefused()
{
    openPage();
    QVERIFY(sendWhenReady(openService(ALERT)));
    QTRY_VERIFY(shownText(frame()).contains(QLatin1String("Sending failed.")));
}

void EndToEndTest::theModemIsPulledOutWhileAMessageIsSent()
{
    openPage();
    QPushButton *button = openService(TARIFF);
    fake().misbehave(Misbehaviour{"AT+CMGS", Fault::Silence, 0, 1});
    QVERIFY(sendWhenReady(button));
    QVERIFY(fake().waitForCommand("AT+CMGS"));
    m_world->unplug("one");
    QTRY_VERIFY(shownText(frame()).contains(QLatin1String("Sending failed.")));
    m_world->plugIn("one");
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForRegistration());
    QTRY_VERIFY(button->isEnabled());
}

/* ---- how commands end -------------------------------------------------------------------- */

void EndToEndTest::theModemIsPulledOutWhileACommandIsOut()
{
    openPage();
    QVERIFY(page().send(QLatin1String("*131#")));
    QVERIFY(fake().waitForCommand("AT+CUSD=1", 2));
    m_world->unplug("one");
    QTRY_COMPARE(page().lastReceived(), QLatin1String(USSD_FAILED));
    QVERIFY(!page().isWaiting());
    m_world->plugIn("one");
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForRegistration());
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String("Your balance is 12.50 EUR."));
}

void EndToEndTest::theDaemonCrashesWhileACommandIsOut()
{
    openPage();
    QVERIFY(page().send(QLatin1String("*131#")));
    QVERIFY(fake().waitForCommand("AT+CUSD=1", 2));
    m_world->killDaemon();
    QTRY_COMPARE(page().lastReceived(), QLatin1String(USSD_FAILED));
    QVERIFY(m_world->startDaemon());
    QVERIFY(!m_world->enable("one").empty());
    QVERIFY(waitForRegistration());
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String("Your balance is 12.50 EUR."));
}

/* ---- nothing is sent without a request --------------------------------------------------- */

/// Tests that opening the window does not send anything if no codes for the SIM's operator are
/// installed, even if the user has enabled the detection.
void EndToEndTest::openingTheWindowSendsNothing()
{
    m_library.reset(); // otherwise, the test's folder would be treated as an integrator's folder
    openDashboard();
    QVERIFY(waitForRegistration());
    QSignalSpy settled(window().findChild<PaidTypeFinder *>(), SIGNAL(settled()));
    QVERIFY(settled.wait(10000));
    drainEvents();
    QCOMPARE(offered(), QLatin1String("general framed"));
    QCOMPARE(ask(QLatin1String("*100#")), QLatin1String("Your balance is 12.50 EUR."));
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 1);
    QCOMPARE(fake().timesReceived("AT+CUSD=2"), 0);
    QCOMPARE(fake().timesReceived("AT+CFUN="), 0);
}

/// Tests that opening, using and closing the window does not end the session of another program.
void EndToEndTest::theWindowLeavesTheSessionOfAnotherProgramAlone()
{
    QVERIFY(openSessionOfAnotherProgram());
    fake().forgetReceived();
    openDashboard();
    QVERIFY(waitForRegistration());
    window().showPage(PageId::Codes);
    QTRY_VERIFY(shownRemedy(Remedy::EndForeignSession));
    const StateStrip *why = window().findChild<StateStrip *>();
    QVERIFY(why->isBlocked());
    QCOMPARE(why->title(), QLatin1String("Another program is using codes"));
    QTRY_VERIFY(page().isComplete());
    QVERIFY(!page().commandEdit()->isEnabled());
    QVERIFY(!page().send(QLatin1String("*100#")));
    closeDashboard();
    QCOMPARE(fake().timesReceived("AT+CUSD="), 0);
}

void EndToEndTest::theRadioStaysOff()
{
    QVERIFY(m_world->switchOff("one"));
    fake().forgetReceived();
    openDashboard();
    window().showPage(PageId::Codes);
    QTRY_VERIFY(shownRemedy(Remedy::Enable));
    QCOMPARE(fake().timesReceived("AT+CFUN=1"), 0);
    QTest::mouseClick(shownRemedy(Remedy::Enable), Qt::LeftButton);
    QVERIFY(waitForRegistration());
}

void EndToEndTest::closingTheDashboardEndsTheCommand()
{
    openPage();
    QVERIFY(page().send(QLatin1String("*131#")));
    QVERIFY(fake().waitForCommand("AT+CUSD=1", 2));
    closeDashboard();
    QVERIFY(fake().waitForCommand("AT+CUSD=2"));
}

void EndToEndTest::aRefusedDetectionLeavesTheKindUnknown()
{
    std::string network = NETWORK;
    network.replace(network.find("Reply=Account 1"), 15, "Outcome=refuse");
    QCOMPARE(m_world->useScenario("one", network), std::string());
    QVERIFY(!m_world->enable("one").empty());
    openDashboard();
    QVERIFY(waitForRegistration());
    QTRY_COMPARE(fake().timesReceived("AT+CUSD=1,\"002A0031003000330023\""), 1);
    QTRY_VERIFY(!window().sim().isAsking());
    QCOMPARE(paidType(), QString());
}

/* ---- --send -------------------------------------------------------------------------------- */

void EndToEndTest::sendPrintsTheReply()
{
    const SendRun run = sendRun("*100#");
    QCOMPARE(run.out, QLatin1String("Your balance is 12.50 EUR.\n"));
    QCOMPARE(run.error, QString());
    QCOMPARE(run.code, 0);
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 1);
}

void EndToEndTest::sendDoesNotSwitchTheModemOn()
{
    QVERIFY(m_world->switchOff("one"));
    fake().forgetReceived();
    QElapsedTimer time;
    time.start();
    const SendRun run = sendRun("*100#");
    QCOMPARE(run.code, 3);
    QVERIFY2(run.error.contains(QLatin1String("--enable")), qPrintable(run.error));
    QVERIFY(time.elapsed() < 9000); // less than the 10 s wait for a modem
    QCOMPARE(fake().timesReceived("AT+CFUN=1"), 0);
}

void EndToEndTest::sendSwitchesTheModemOnIfTold()
{
    QVERIFY(m_world->switchOff("one"));
    const SendRun run = sendRun("*100# --enable");
    QCOMPARE(run.out, QLatin1String("Your balance is 12.50 EUR.\n"));
    QCOMPARE(run.code, 0);
}

void EndToEndTest::aSignalEndsTheSessionOfSend_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void EndToEndTest::aSignalEndsTheSessionOfSend()
{
    QFETCH(int, number);
    QProcess process;
    startSend(process, QStringList(QLatin1String("*131#")));
    QVERIFY(fake().waitForCommand("AT+CUSD=1"));
    QCOMPARE(::kill(pid_t(process.processId()), number), 0);
    const SendRun run = endOf(process);
    QCOMPARE(run.code, 128 + number);
    QVERIFY(run.error.contains(QLatin1String("The command was cancelled.")));
    QVERIFY(fake().waitForCommand("AT+CUSD=2"));
    QCOMPARE(sendRun("*100#").code, 0); // the cancelled command has not left a session open
}

void EndToEndTest::aMenuThatSendLeavesOpenIsEnded()
{
    const SendRun run = sendRun("*123#");
    QCOMPARE(run.code, 7);
    QCOMPARE(run.out, QLatin1String("Menu\n1 Data\n2 Other\n"));
    QVERIFY(fake().waitForCommand("AT+CUSD=2"));
    QCOMPARE(sendRun("*100#").code, 0);
}

bool EndToEndTest::openSessionOfAnotherProgram()
{
    QProcess other;
    other.start(QLatin1String("mmcli"), QStringList()
                                            << QLatin1String("-m") << QLatin1String("any")
                                            << QLatin1String("--3gpp-ussd-initiate=*123#"));
    return other.waitForFinished(30000) && other.exitCode() == 0;
}

void EndToEndTest::theSessionOfAnotherProgramIsLeftAlone()
{
    QVERIFY(openSessionOfAnotherProgram());
    fake().forgetReceived();
    const SendRun refused = sendRun("*100#");
    QCOMPARE(refused.code, 5);
    QVERIFY2(refused.error.contains(QLatin1String("Another program")), qPrintable(refused.error));
    QVERIFY(refused.error.contains(QLatin1String("--end-foreign-session")));
    QCOMPARE(refused.out, QString());
    QCOMPARE(fake().timesReceived("AT+CUSD="), 0);
    const SendRun told = sendRun("*100# --end-foreign-session");
    QCOMPARE(told.out, QLatin1String("Your balance is 12.50 EUR.\n"));
    QCOMPARE(told.code, 0);
}

void EndToEndTest::severalProgramsGetTheirOwnReplies()
{
    const char *const codes[] = {"*100#", "*102#", "*103#", "*142#"};
    const char *const replies[] = {"Your balance is 12.50 EUR.\n", "0123 456\n", "Account 1\n",
                                   "Noch 12,50 € übrig\n"};
    QProcess processes[4];
    for (int i = 0; i < 4; ++i)
        startSend(processes[i], QStringList(QLatin1String(codes[i])));
    for (int i = 0; i < 4; ++i) {
        const SendRun run = endOf(processes[i]);
        QCOMPARE(run.out, QString::fromUtf8(replies[i]));
        QCOMPARE(run.code, 0);
    }
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 4);
    QCOMPARE(fake().timesReceived("AT+CUSD=2"), 0);
}

/// Tests that a second program reports that it is waiting for its turn. The first program is
/// waiting for a reply that never arrives.
void EndToEndTest::aProgramThatWaitsForItsTurnSaysSo()
{
    QProcess first;
    startSend(first, QStringList(QLatin1String("*131#")));
    QVERIFY(fake().waitForCommand("AT+CUSD=1"));
    QProcess second;
    second.setReadChannel(QProcess::StandardError);
    startSend(second, QStringList(QLatin1String("*100#")));
    QVERIFY(second.waitForReadyRead(10000));
    QVERIFY(second.peek(1000).startsWith("Waiting until another program has finished"));
    first.terminate();
    QCOMPARE(endOf(first).code, 128 + SIGTERM);
    const SendRun run = endOf(second);
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, QLatin1String("Your balance is 12.50 EUR.\n"));
}

/// Tests that a program that stops waiting for its turn does not claim that the code was not
/// carried out. The code may have been carried out, because its turn may have come at the last
/// moment.
void EndToEndTest::aProgramThatMissesItsTurnClaimsNothing()
{
    Tksv::SessionTurn another("350000000000017");
    QVERIFY(another.tryEnter());
    const SendRun run = sendRun("*100#");
    QCOMPARE(run.code, 5);
    QVERIFY2(run.error.contains(QLatin1String("Another program")), qPrintable(run.error));
    QVERIFY2(!run.error.contains(QLatin1String("not carried out")), qPrintable(run.error));
    QCOMPARE(fake().timesReceived("AT+CUSD=1,"), 0);
}

USSD_TEST_MAIN(EndToEndTest)
#include "end_to_end_test.moc"
