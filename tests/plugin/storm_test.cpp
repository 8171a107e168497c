/*
 * Sends thousands of commands while random events of all kinds occur.
 *
 *     USSD_STORM_COMMANDS  the number of commands: 5000 by default, 100000 for the full test
 *     USSD_STORM_SEED      the random seed, which is printed at the start
 */
#include "LogicListener.h"
#include "PipelineModel.h"
#include "PluginTest.h"

#include <random>

#include "fake_tksv.h"
#include "HostState.h"
#include "Languages.h"
#include "requests/USSDLogic.h"
#include "windows/USSDService.h"

namespace
{

// The largest value that _COMPONENT can represent. No dialog uses it.
const int LAST_COMPONENT = 7;

int number(const char *name, int otherwise)
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue(name, &ok);
    return ok ? value : otherwise;
}

bool isDetection(int component)
{
    return component == COMPONENT_PREPOST_QUERY;
}

bool isNotUssdSms(int component)
{
    return component != COMPONENT_USSD_SMS;
}

} // namespace

class StormTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    int dice(int sides) { return int(m_random() % unsigned(sides)); }
    QString command();
    static QString text(const char *key) { return USSDLogic::tr(QLatin1String(key)); }
    void scriptDevice(int requests);

    void step();
    void send();
    void reply();
    void timeOut();
    void deviceEvent();
    void smsEvent();
    void clear();
    void changeLanguage();
    void openOrClose();
    void openPrepaid();
    void check();

    std::mt19937 m_random;
    PipelineModel m_model;
    QList<bool> m_accepted; // for each of the next requests, true if the device accepts it
    QScopedPointer<LogicListener> m_listener;
    QScopedPointer<QWidget> m_window;
    int m_sent = 0;

private slots:
    void everyCommandIsAnsweredAsTheModelSays();
    void nothingIsLostWhenNobodyWaitsForAnybody();
};

void StormTest::setUp()
{
    PluginTest::setUp();
    const unsigned seed = unsigned(number("USSD_STORM_SEED", int(std::random_device()() >> 1)));
    fprintf(stderr, "USSD_STORM_SEED=%u\n", seed);
    m_random.seed(seed);
    allowWarning("../../src/USSDUIPlugin/");
    const ReplyTimes times = {60000, 0};
    USSDLogic::setReplyTimes(times);
    // With this configuration, a reply never causes a window to send a command or open a message
    // box.
    writeConfig(completeConfig()
                    .replace("name='Balance' value='true'", "name='Balance' value='false'")
                    .replace("<ReturnStyle>1", "<ReturnStyle>0"));
    m_window.reset(new QWidget);
    HostCore::HostState::setMainWindow(m_window.data());
    m_listener.reset(new LogicListener(USSDLogic::GetUSSDLogicInstance()));
    m_model = PipelineModel();
    m_model.deviceAccepts = [this] { return m_accepted.takeFirst(); };
    m_accepted.clear();
    m_sent = 0;
}

void StormTest::tearDown()
{
    m_listener.reset();
    HostCore::Languages::setCurrent(QStringLiteral("en"));
    PluginTest::tearDown();
    HostCore::HostState::setMainWindow(nullptr);
    m_window.reset();
}

QString StormTest::command()
{
    const int units = dice(40) == 0 ? 85 + dice(12) : 3 + dice(20);
    return QLatin1Char('*') + QString(units - 2, QLatin1Char(char('0' + dice(10)))) +
           QLatin1Char('#');
}

/// Chooses which requests are rejected (one in twelve), for both the device and the model.
void StormTest::scriptDevice(int requests)
{
    std::vector<FakeAnswer> script;
    m_accepted.clear();
    for (int i = 0; i < requests; ++i) {
        m_accepted << (dice(12) != 0);
        script.push_back(m_accepted.last() ? fakeSilence() : fakeRefused(1, dice(2) ? 5 : 0));
    }
    fakeSdkScript(script);
}

// ---- events ----------------------------------------------------------------------------------

void StormTest::send()
{
    const int component = dice(7);
    const QString code = command();
    int status = 0;
    const int result = USSDLogic::GetUSSDLogicInstance()->SendUSSDCommand(
        USSDCmdOrResp(static_cast<_COMPONENT>(component), code), &status);
    QCOMPARE(result, m_model.send(component, code));
    ++m_sent;
}

void StormTest::reply()
{
    const QString reply = QString::number(m_random());
    fakeSdkRespond(reply.toStdU16String(), dice(3));
    QVERIFY(fakeSdkWaitIdle());
    drainEvents(); // a time-out is not queued, so it would overtake queued answers
    m_model.reply(reply);
}

void StormTest::timeOut()
{
    m_model.timeOut(text("USSD_CODE_TIME_OUT"));
    QVERIFY(QMetaObject::invokeMethod(USSDLogic::GetUSSDLogicInstance(), "OnTimeOut"));
}

void StormTest::deviceEvent()
{
    m_model.deviceFailed(text("USSD_CODE_FAILED"));
    fakeSdkRaiseDeviceEvent(dice(2) ? 6016 : 6601);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

void StormTest::smsEvent()
{
    fakeSdkRaiseSmsStatus(7 + dice(3));
    fakeSdkRaiseSmsResult(dice(2), u"1200", u"text");
    fakeSdkRaiseSmsEvent(dice(5));
    QVERIFY(fakeSdkWaitIdle());
}

void StormTest::clear()
{
    if (dice(2)) {
        USSDLogic::ClearQueuedCmds();
        m_model.clear(isDetection);
    } else {
        USSDLogic::ClearUSSDSMSQueuedCmds();
        m_model.clear(isNotUssdSms);
    }
}

void StormTest::changeLanguage()
{
    static const char *const languages[] = {"en", "ar", "de", "zh"};
    HostCore::Languages::setCurrent(QLatin1String(languages[dice(4)]));
    CUSSDService::instance()->Notify(320, 0, 0);
}

/// Opens the prepaid window, which requests only the subscriber's own number, because the balance
/// is not configured.
void StormTest::openPrepaid()
{
    m_model.clear(isDetection);
    m_model.send(COMPONENT_MSISDN, QStringLiteral("*102#"));
    CUSSDService::instance()->DoPrePostPaidModal(PAID_TYPE_PREPAID);
}

void StormTest::openOrClose()
{
    QRect rect(0, 0, 600, 500);
    switch (dice(5)) {
    case 0:
        CUSSDService::instance()->showWindow(m_window.data(), rect, PAID_TYPE_GENERAL);
        break;
    case 1:
        CUSSDService::instance()->DoModal();
        break;
    case 2:
        openPrepaid();
        break;
    case 3:
        CUSSDService::instance()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
        break;
    default:
        CUSSDService::instance()->Hide();
        CUSSDService::instance()->OnClickedCloseButton();
        break;
    }
}

void StormTest::step()
{
    scriptDevice(3);
    const int what = dice(100);
    if (what < 45)
        send();
    else if (what < 80)
        reply();
    else if (what < 86)
        timeOut();
    else if (what < 88)
        deviceEvent();
    else if (what < 92)
        smsEvent();
    else if (what < 96)
        clear();
    else if (what < 97)
        changeLanguage();
    else
        openOrClose();
}

/// Compares the answers and requests since the last check with those of the model.
void StormTest::check()
{
    drainEvents();
    QCOMPARE(m_listener->answers, m_model.answers);
    QList<QString> handed;
    for (const std::u16string &one : fakeSdkCommands())
        handed << QString::fromStdU16String(one);
    QCOMPARE(handed, m_model.handed);
    m_listener->answers.clear();
    m_model.answers.clear();
    m_model.handed.clear();
    fakeSdkForgetRecords();
    clearLog();
}

void StormTest::everyCommandIsAnsweredAsTheModelSays()
{
    const int commands = number("USSD_STORM_COMMANDS", 5000);
    for (int i = 1; m_sent < commands; ++i) {
        step();
        if (i % 20 == 0)
            check();
        if (QTest::currentTestFailed())
            return;
    }
    for (int i = m_model.pending(); i > 0; --i) {
        scriptDevice(1);
        reply();
    }
    check();
    QCOMPARE(m_model.pending(), 0);
}

/// Tests that no command is answered twice and that all pending commands are answered in the end.
/// Replies, time-outs, device events and clear calls occur concurrently in separate threads.
void StormTest::nothingIsLostWhenNobodyWaitsForAnybody()
{
    const int commands = number("USSD_STORM_COMMANDS", 5000);
    const ReplyTimes times = {1, 1};
    USSDLogic::setReplyTimes(times);
    FakeAnswer answer = fakeReply(u"x");
    int status = 0;
    for (int i = 0; i < commands; ++i) {
        if (i % 50 == 0) {
            answer.delay = std::chrono::milliseconds(dice(3));
            answer.threads = 1 + dice(2);
            answer.stubborn = dice(2) != 0;
            fakeSdkSetAnswer(answer);
            clearLog();
        }
        QCOMPARE(
            USSDLogic::GetUSSDLogicInstance()->SendUSSDCommand(
                USSDCmdOrResp(static_cast<_COMPONENT>(dice(7)), QStringLiteral("*1#")), &status),
            0);
        if (dice(300) == 0)
            fakeSdkRaiseDeviceEvent(6016);
        if (dice(300) == 0)
            USSDLogic::ClearUSSDSMSQueuedCmds();
        if (dice(20) == 0)
            drainEvents();
    }
    QVERIFY(fakeSdkWaitIdle()); // a late device event would cancel the next command
    // Commands are answered in order, so when this command has been answered, no other command is
    // pending.
    USSDLogic::GetUSSDLogicInstance()->SendUSSDCommand(
        USSDCmdOrResp(static_cast<_COMPONENT>(LAST_COMPONENT), QStringLiteral("*8#")), &status);
    QTRY_VERIFY_WITH_TIMEOUT(!m_listener->answers.isEmpty() &&
                                 m_listener->answers.last().first == LAST_COMPONENT,
                             60000);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
    QVERIFY(m_listener->answers.count() <= commands + 1);
    m_listener->answers.clear();
    fakeSdkSetAnswer(fakeReply(u"last"));
    const ReplyTimes patient = {60000, 1};
    USSDLogic::setReplyTimes(patient);
    USSDLogic::GetUSSDLogicInstance()->SendUSSDCommand(
        USSDCmdOrResp(COMPONENT_GENERAL, QStringLiteral("*9#")), &status);
    QCOMPARE(m_listener->nextAnswer(), LogicListener::Answer(5, QStringLiteral("last")));
}

USSD_TEST_MAIN(StormTest)

#include "storm_test.moc"
