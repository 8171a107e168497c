#include "PrepaidTest.h"

#include <functional>
#include <memory>

#include "fake_tksv.h"
#include "HostState.h"
#include "INotifyService.h"
#include "IPluginContainer.h"
#include "windows/USSDService.h"

namespace
{

const char *const PLUGIN = "5B21E0C4-7D93-4A6F-9E08-C3F1A7D24B61";
const char *const ADDRESSEES[] = {"8E4C1F07-3B6A-4d29-A5C1-6F0B92E7D3C8",
                                  "27A9D5E3-C41B-4be6-9F72-0D5E8A63C1F4"};

/**
 * The notification service of a host. It copies the record, because the record is valid only during
 * the call.
 */
class Notifications : public QObject, public INotifyService
{
    Q_OBJECT
    Q_INTERFACES(INotifyService)
public:
    struct Call {
        QString addressee;
        unsigned int message;
        NotifyParam lParam;
        PrePostRecord record;
    };

    int Notify(const QString &addressee, unsigned int message, NotifyParam wParam,
               NotifyParam lParam) override
    {
        const PrePostRecord *record = reinterpret_cast<const PrePostRecord *>(wParam);
        calls << Call{addressee, message, lParam, *record};
        if (onCall)
            onCall();
        return 0;
    }

    QList<Call> calls;
    std::function<void()> onCall;
};

class Container : public IPluginContainer
{
public:
    QObject *GetPlugin(const QString &clsid) override
    {
        asked << clsid;
        return clsid == QLatin1String(PLUGIN) ? plugin.data() : nullptr;
    }

    QStringList asked;
    QPointer<QObject> plugin;
};

QString digitPatternReply()
{
    return QStringLiteral("Your balance is 12.50");
}

const char DIGIT[] = "\"\\d\"";

} // namespace

/** Tests how the plug-in detects whether a SIM card is prepaid, and how it notifies the host. */
class PrepaidDetectionTest : public PrepaidTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    int ask(bool reallyAsk = true);
    const PrePostRecord &lastRecord() { return m_notifications->calls.last().record; }

    std::unique_ptr<Notifications> m_notifications;
    std::unique_ptr<Container> m_container;
    PrePostRecord m_given; // the arguments that GetPrePostInfo() has set

private slots:
    void replyWithADigitMeansPrepaid();
    void replyWithoutDigitsMeansPostpaid();
    void emptyReplyMeansPostpaid();
    void emptyReplyIsNoFailureText();
    void otherPatternHasToBeTheReply_data();
    void otherPatternHasToBeTheReply();
    void blanksOfThePatternCount();
    void timeOutIsToldWithoutAVerdict();

    void hostIsToldTwiceByItsTwoNames();
    void eachWindowTellsTheHostInTheOrderOfTheirMaking_data();
    void eachWindowTellsTheHostInTheOrderOfTheirMaking();
    void questionIsReleasedBeforeItIsSent();
    void questionThatCannotBeSentIsKept();
    void questionWithoutACommandSendsNothing();
    void withoutTheSettingNothingIsSent();
    void notReallyAskedNothingIsSent();
    void answerIsTakenWhenNothingElseIsGoingOn();
    void answerAfterClosingIsTakenToo();
    void openingTheWindowKeepsTheQuestion();

    void withoutAContainerItIsLogged();
    void withoutThePluginItIsLogged();
    void pluginOfAnotherKindIsLogged();
    void withoutLogicItIsLogged();
    void hostThatDestroysTheWindowIsToldTwiceAllTheSame();
    void hostThatAsksAnewHearsOneVerdictTwice();
    void hostThatUnloadsThePluginIsNotToldAgain();
};

void PrepaidDetectionTest::setUp()
{
    PrepaidTest::setUp();
    m_given = PrePostRecord();
    m_notifications.reset(new Notifications);
    m_container.reset(new Container);
    m_container->plugin = m_notifications.get();
    HostCore::HostState::setPluginContainer(m_container.get());
    configure(Account(), Account(), DIGIT);
}

void PrepaidDetectionTest::tearDown()
{
    HostCore::HostState::setPluginContainer(nullptr);
    PrepaidTest::tearDown();
    m_container.reset();
    m_notifications.reset();
}

int PrepaidDetectionTest::ask(bool reallyAsk)
{
    if (!dialog())
        make();
    return dialog()->GetPrePostInfo(m_given.bInUse, m_given.bPostPaid, m_given.result, reallyAsk);
}

// ---- verdicts --------------------------------------------------------------------------------

void PrepaidDetectionTest::replyWithADigitMeansPrepaid()
{
    m_given.bPostPaid = true;
    QCOMPARE(ask(), 1);
    QVERIFY(m_given.bInUse);
    QVERIFY(!m_given.bPostPaid);
    QCOMPARE(m_given.result, 1);
    QCOMPARE(requests(), QStringList() << QStringLiteral("*103#"));
    networkSays(digitPatternReply());
    QVERIFY(lastRecord().bInUse);
    QVERIFY(!lastRecord().bPostPaid);
    QCOMPARE(lastRecord().result, 1);
    QCOMPARE(timesLogged("bPostPaid=0"), 1);
}

void PrepaidDetectionTest::replyWithoutDigitsMeansPostpaid()
{
    ask();
    networkSays(QStringLiteral("Contract account"));
    QVERIFY(lastRecord().bPostPaid);
    QCOMPARE(timesLogged(": onPrePostPaidRspReceived bPostPaid=1"), 1);
}

void PrepaidDetectionTest::emptyReplyMeansPostpaid()
{
    ask();
    networkSays(QString());
    QVERIFY(lastRecord().bPostPaid);
}

void PrepaidDetectionTest::emptyReplyIsNoFailureText()
{
    configure(Account(), Account(), text("USSD_CODE_FAILED").toUtf8());
    ask();
    networkSays(QString());
    QVERIFY(lastRecord().bPostPaid);
}

void PrepaidDetectionTest::otherPatternHasToBeTheReply_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<bool>("isPostpaid");
    QTest::newRow("equal") << QStringLiteral("PREPAID") << false;
    QTest::newRow("within") << QStringLiteral("PREPAID 5") << true;
    QTest::newRow("blank before") << QStringLiteral(" PREPAID") << true;
    QTest::newRow("blank behind") << QStringLiteral("PREPAID ") << true;
    QTest::newRow("line behind") << QStringLiteral("PREPAID\n") << true;
}

void PrepaidDetectionTest::otherPatternHasToBeTheReply()
{
    configure(Account(), Account(), "PREPAID");
    QFETCH(QString, reply);
    ask();
    networkSays(reply);
    QTEST(lastRecord().bPostPaid, "isPostpaid");
}

void PrepaidDetectionTest::blanksOfThePatternCount()
{
    configure(Account(), Account(), " PREPAID ");
    ask();
    networkSays(QStringLiteral("PREPAID"));
    QVERIFY(lastRecord().bPostPaid);
    ask();
    networkSays(QStringLiteral(" PREPAID "));
    QVERIFY(!lastRecord().bPostPaid);
}

void PrepaidDetectionTest::timeOutIsToldWithoutAVerdict()
{
    const ReplyTimes impatient = {1, 1};
    USSDLogic::setReplyTimes(impatient);
    ask();
    QTRY_COMPARE(m_notifications->calls.count(), 2);
    QCOMPARE(lastRecord().result, 0);
    // A time-out does not mean "postpaid", although the time-out message contains no digit.
    QVERIFY(!lastRecord().bPostPaid);
    QCOMPARE(timesLogged("bPostPaid="), 0);
}

// ---- asking ----------------------------------------------------------------------------------

void PrepaidDetectionTest::hostIsToldTwiceByItsTwoNames()
{
    ask();
    networkSays(digitPatternReply());
    QCOMPARE(m_container->asked, QStringList() << QLatin1String(PLUGIN));
    QCOMPARE(m_notifications->calls.count(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(m_notifications->calls.at(i).addressee, QLatin1String(ADDRESSEES[i]));
        QCOMPARE(m_notifications->calls.at(i).message, 384u);
        QCOMPARE(m_notifications->calls.at(i).lParam, NotifyParam(0));
    }
}

void PrepaidDetectionTest::eachWindowTellsTheHostInTheOrderOfTheirMaking_data()
{
    QTest::addColumn<bool>("prepaidFirst");
    QTest::newRow("asked, then opened") << true;
    QTest::newRow("opened, then asked") << false;
}

/// Tests that two windows notify the host in the order in which they were created. Both receive the
/// answer, although only one of them has sent the detection request.
void PrepaidDetectionTest::eachWindowTellsTheHostInTheOrderOfTheirMaking()
{
    QFETCH(bool, prepaidFirst);
    CUSSDService *service = CUSSDService::instance();
    if (prepaidFirst)
        service->GetPrePostInfo(m_given.bInUse, m_given.bPostPaid, m_given.result, false);
    openByService(PAID_TYPE_POSTPAID);
    service->GetPrePostInfo(m_given.bInUse, m_given.bPostPaid, m_given.result, true);
    for (int answers = 3; answers > 0; --answers) // answers the balance and number requests first
        networkSays(QStringLiteral("Contract account"));
    QCOMPARE(m_notifications->calls.count(), 4);
    for (int i = 0; i < 4; ++i) {
        const PrePostRecord &record = m_notifications->calls.at(i).record;
        const bool isAsker = prepaidFirst ? i < 2 : i >= 2;
        QCOMPARE(record.bInUse, isAsker);
        QCOMPARE(record.result, isAsker ? 1 : 0);
        QVERIFY(record.bPostPaid);
    }
}

void PrepaidDetectionTest::questionIsReleasedBeforeItIsSent()
{
    make();
    const size_t before = fakeSdkCalls().size();
    ask();
    const std::vector<FakeCall> calls = fakeSdkCalls();
    QCOMPARE(calls.size(), before + 2);
    QCOMPARE(calls[before].function, std::string("TKSV_USSDSrv_Release"));
    QCOMPARE(calls[before + 1].function, std::string("TKSV_USSDSrv_Request"));
}

void PrepaidDetectionTest::questionThatCannotBeSentIsKept()
{
    allowWarning("TKSV_USSDSrv_Request");
    fakeSdkSetAnswer(fakeRefused(1, 2));
    m_given.result = 7;
    QCOMPARE(ask(), 1);
    QVERIFY(m_given.bInUse);
    QCOMPARE(m_given.result, 0);
}

void PrepaidDetectionTest::questionWithoutACommandSendsNothing()
{
    configure(Account(), Account(), DIGIT, "");
    ask();
    QVERIFY(m_given.bInUse);
    QCOMPARE(m_given.result, 0);
    QVERIFY(requests().isEmpty());
}

void PrepaidDetectionTest::withoutTheSettingNothingIsSent()
{
    configure(Account());
    m_given.bInUse = true;
    ask();
    QVERIFY(!m_given.bInUse);
    QVERIFY(requests().isEmpty());
    QVERIFY(fakeSdkCalls("TKSV_USSDSrv_Release").empty());
}

void PrepaidDetectionTest::notReallyAskedNothingIsSent()
{
    m_given.bInUse = false;
    m_given.bPostPaid = true;
    m_given.result = 7;
    QCOMPARE(ask(false), 1);
    QVERIFY(!m_given.bInUse);
    QVERIFY(m_given.bPostPaid);
    QCOMPARE(m_given.result, 7);
    QVERIFY(requests().isEmpty());
}

void PrepaidDetectionTest::answerIsTakenWhenNothingElseIsGoingOn()
{
    make();
    logicSays(COMPONENT_PREPOST_QUERY, digitPatternReply());
    QCOMPARE(m_notifications->calls.count(), 2);
}

void PrepaidDetectionTest::answerAfterClosingIsTakenToo()
{
    ask();
    dialog()->OnClickedCloseButton();
    networkSays(digitPatternReply());
    QCOMPARE(m_notifications->calls.count(), 2);
}

void PrepaidDetectionTest::openingTheWindowKeepsTheQuestion()
{
    fakeSdkSetAnswer(fakeReply(u"balance"));
    FakeAnswer late = fakeReplyAfter(std::chrono::milliseconds(50), u"Contract");
    // The late reply is sent even though opening the window releases the session.
    late.stubborn = true;
    fakeSdkScript({late});
    ask();
    dialog()->MyDoModal(PAID_TYPE_PREPAID);
    QTRY_COMPARE(m_notifications->calls.count(), 2);
    QVERIFY(lastRecord().bPostPaid);
    QTRY_COMPARE(balanceBox()->toPlainText(), QStringLiteral("balance"));
}

// ---- hosts -----------------------------------------------------------------------------------

void PrepaidDetectionTest::withoutAContainerItIsLogged()
{
    HostCore::HostState::setPluginContainer(nullptr);
    expectWarning(": sendNotify: Plugin container is null ");
    ask();
    networkSays(digitPatternReply());
    // This line is logged twice: as a debug message and as a warning.
    QCOMPARE(timesLogged(": sendNotify: Plugin container is null "), 2);
}

void PrepaidDetectionTest::withoutThePluginItIsLogged()
{
    m_container->plugin = nullptr;
    ask();
    networkSays(digitPatternReply());
    QCOMPARE(timesLogged(": sendNotify: plugin is not loaded "), 1);
}

void PrepaidDetectionTest::pluginOfAnotherKindIsLogged()
{
    m_container->plugin = this;
    ask();
    networkSays(digitPatternReply());
    QCOMPARE(timesLogged(": sendNotify: plugin is not loaded "), 1);
    m_container->plugin = nullptr;
}

void PrepaidDetectionTest::withoutLogicItIsLogged()
{
    make();
    USSDLogic::Destroy();
    m_given.result = 7;
    QCOMPARE(ask(), 0);
    QCOMPARE(m_given.result, 7);
    QCOMPARE(timesLogged("GetPrePostInfo Fail Exit: Logic is NULL"), 1);
}

void PrepaidDetectionTest::hostThatDestroysTheWindowIsToldTwiceAllTheSame()
{
    m_notifications->onCall = [this] { delete dialog(); };
    ask();
    networkSays(digitPatternReply());
    QVERIFY(!dialog());
    QCOMPARE(m_notifications->calls.count(), 2);
    QVERIFY(lastRecord().bInUse);
}

void PrepaidDetectionTest::hostThatAsksAnewHearsOneVerdictTwice()
{
    m_notifications->onCall = [this] { ask(); };
    ask();
    networkSays(QStringLiteral("Contract account"));
    QCOMPARE(m_notifications->calls.count(), 2);
    QVERIFY(m_notifications->calls.first().record.bPostPaid);
    QVERIFY(m_notifications->calls.last().record.bPostPaid);
}

void PrepaidDetectionTest::hostThatUnloadsThePluginIsNotToldAgain()
{
    int calls = 0;
    m_notifications->onCall = [this, &calls] {
        ++calls;
        delete m_notifications.release();
    };
    ask();
    fakeSdkRespond(u"5");
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
    QCOMPARE(calls, 1);
}

USSD_TEST_MAIN(PrepaidDetectionTest)

#include "prepaid_detection_test.moc"
