#include "LogicListener.h"
#include "PluginTest.h"

#include <atomic>
#include <thread>

#include <QSemaphore>
#include <QThread>

#include "fake_tksv.h"
#include "requests/ReplyTimer.h"
#include "requests/USSDLogic.h"
#include "ThreadWatch.h"

namespace
{

const int NO_PATIENCE = 60000; // ms; a limit that no test reaches

std::atomic<qint64> now(0);

qint64 stoppedClock()
{
    return now;
}

QString units(int count)
{
    return QLatin1Char('*') + QString(count - 2, QLatin1Char('1')) + QLatin1Char('#');
}

/// Runs code while a response is being announced, on the thread that announces it.
class Interloper : public QObject
{
    Q_OBJECT
public:
    QSemaphore reached;
    QSemaphore goOn;
    std::atomic<bool> done{false};
    std::atomic<size_t> commands{0};

public slots:
    void stopHere(int, QString)
    {
        reached.release();
        goOn.acquire();
        done = true;
    }
    void shutDown(int, QString) { USSDLogic::Destroy(); }
    void sendAndCount(int component, QString text)
    {
        sendMore(component, text);
        commands = fakeSdkCommands().size();
    }
    void clearAndSendTwice(int, QString)
    {
        for (int i = 0; i < 2; ++i) {
            USSDLogic::ClearQueuedCmds();
            sendMore(0, QString());
        }
    }
    void sendMore(int, QString)
    {
        int status = 0;
        USSDLogic::GetUSSDLogicInstance()->SendUSSDCommand(
            USSDCmdOrResp(COMPONENT_BALANCE, QStringLiteral("*2#")), &status);
    }
};

} // namespace

/** Tests how USSDLogic queues, sends and answers commands. */
class PipelineTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    int send(int component, const QString &command);
    LogicListener::Answer nextAnswer() { return m_listener->nextAnswer(); }
    QList<LogicListener::Answer> &answers() { return m_listener->answers; }
    void setTimes(int reply, int previous);
    /// Stops the clock, which then advances by letTimePass() only.
    void stopClock();
    void letTimePass(int milliseconds);
    /// Waits until `part` was logged `times` times, which shows the progress of a thread.
    bool waitUntilLogged(const char *part, int times);
    /// Returns whether a command is sent without a wait for an earlier time-out.
    bool sendsWithoutWaiting();
    /// Returns whether a command is sent only after the wait for an earlier time-out.
    bool sendWaitsItsTime();
    /// Returns the log texts of a function of USSDLogic, in order.
    QStringList linesOf(const char *function);
    static QString timeOutText() { return USSDLogic::tr(QStringLiteral("USSD_CODE_TIME_OUT")); }

    ReplyTimes m_shippedTimes;
    USSDLogic *m_logic = nullptr;
    QScopedPointer<LogicListener> m_listener;
    int m_status = 0;

private slots:
    void requestRecordHoldsLengthAndUnits();
    void commandOf91UnitsIsSent();
    void commandOf92UnitsIsRefusedAndRemoved();
    void secondCommandWaitsForTheFirstReply();
    void eachReplyCarriesItsSendersComponent();
    void sameCommandTwiceIsSentTwice();
    void replyWithOtherTypeIsDelivered();
    void emptyReplyIsDelivered();
    void replyArrivesOnTheGuiThread();
    void byteOrderMarkInAReplyStays();

    void refusedCommandGivesResultAndStatus();
    void refusedCommandIsSilentAndTheNextOneWaits();
    void tooLongCommandIsSilentAndTheNextOneWaits();
    void commandAfterARefusalIsSentAgain();

    void missingReplyIsAnsweredByTimeOut();
    void timeOutSendsTheNextCommand();
    void commandSentBySdkThreadTimesOutToo();
    void timeOutWithEmptyListOnlyStopsTheTimer();
    void timeOutSlotAnswersTheHead();
    void lateReplyAnswersNextHead();
    void replyThatBeatsTheTimerLeavesItStopped();

    void sendWaitsForTheEarlierTimeOut();
    void replyEndsTheWaitForTheEarlierTimeOut();

    void nullDataLeavesListAndTimer();
    void replyWithoutCommandIsDropped();
    void twoRepliesAtOnceAnswerOnce();

    void clearQueuedKeepsPrePostQueriesInOrder();
    void clearUssdSmsLeavesTheOthers();
    void clearWhileARequestIsUnderWayKeepsTheTimeOut();
    void commandClearedWhileItWaitedIsNotSent();
    void clearBeforeTheHeadIsRemovedLeavesTheNewHead();
    void oneRequestAtATimeIsUnderWay();
    void strayReplyWithEmptyListStopsTheTimer();
    void shippedTimesAreThirtyAndThreeSeconds();
    void destroyEndsTheWaitForTheEarlierTimeOut();
    void replyForAClearedCommandAnswersTheHead();

    void releaseReportsTheDevicesResult();
    void releaseLeavesTheTimeOutRunning();
    void callbacksAreRegisteredDeviceFirst();
    void constructionLogsEachRegistration();
    void unregisteringLogsBeforeAndAfter();
    void replyLogsWhatWasReceived();
    void failedRegistrationIsLogged();
    void logTellsCommandLengthAndResult();
    void earlyReturnWritesItsLineAndNoExit_data();
    void earlyReturnWritesItsLineAndNoExit();

    void headLeavesTheListAfterItsAnnouncement_data();
    void headLeavesTheListAfterItsAnnouncement();
    void receiverMaySendFromTheSdkThread();
    void timeOutReceiverMayShutDown();
    void gateLetsOnlyThePatientIn();
    void destroyWaitsForARunningCallback();
    void callbackAfterDestroyFindsNothing();
    void newSingletonStartsWithAnEmptyList();
    void everyCommandIsAnsweredOnce();
};

void PipelineTest::setUp()
{
    // The static variable stores the times before any test has changed them.
    static const ReplyTimes shipped = USSDLogic::replyTimes();
    m_shippedTimes = shipped;
    PluginTest::setUp();
    setTimes(NO_PATIENCE, NO_PATIENCE);
    m_logic = USSDLogic::GetUSSDLogicInstance();
    m_listener.reset(new LogicListener(m_logic));
    m_status = 0;
}

void PipelineTest::tearDown()
{
    m_listener.reset();
    PluginTest::tearDown();
    ReplyTimer::setClock(nullptr);
}

void PipelineTest::setTimes(int reply, int previous)
{
    const ReplyTimes times = {reply, previous};
    USSDLogic::setReplyTimes(times);
}

void PipelineTest::stopClock()
{
    now = 0;
    ReplyTimer::setClock(stoppedClock);
}

void PipelineTest::letTimePass(int milliseconds)
{
    now += milliseconds;
    m_logic->findChild<ReplyTimer *>()->catchUp();
}

bool PipelineTest::waitUntilLogged(const char *part, int times)
{
    return QTest::qWaitFor([&] { return timesLogged(part) >= times; }, 10000);
}

QStringList PipelineTest::linesOf(const char *function)
{
    const QString start =
        QStringLiteral("../../src/USSDUIPlugin/USSDLogic.cpp: ") + QLatin1String(function);
    QStringList tails;
    for (const QString &line : logLines()) {
        const int place = line.indexOf(start);
        const QString tail = line.mid(place + start.length());
        if (place >= 0 && (tail.startsWith(QLatin1Char(' ')) || tail.startsWith(QLatin1Char(':'))))
            tails << tail;
    }
    return tails;
}

bool PipelineTest::sendsWithoutWaiting()
{
    // The full wait, in milliseconds, elapses only if the function returns false.
    const int wait = 20000;
    setTimes(NO_PATIENCE, wait);
    QElapsedTimer elapsed;
    elapsed.start();
    const int result = send(5, QStringLiteral("*9#"));
    return result == 0 && elapsed.elapsed() < wait / 2;
}

/// Compares the times: a send that does not wait takes less than a millisecond.
bool PipelineTest::sendWaitsItsTime()
{
    const int wait = 200;
    setTimes(NO_PATIENCE, wait);
    QElapsedTimer elapsed;
    elapsed.start();
    return send(5, QStringLiteral("*9#")) == 0 && elapsed.elapsed() >= wait - 1;
}

int PipelineTest::send(int component, const QString &command)
{
    return m_logic->SendUSSDCommand(USSDCmdOrResp(static_cast<_COMPONENT>(component), command),
                                    &m_status);
}

static LogicListener::Answer answer(int component, const QString &text)
{
    return LogicListener::Answer(component, text);
}

// ---- sending -------------------------------------------------------------------------------

void PipelineTest::requestRecordHoldsLengthAndUnits()
{
    QCOMPARE(send(5, QString::fromUtf8("*1€#")), 0);
    const std::vector<unsigned char> bytes = fakeSdkCalls("TKSV_USSDSrv_Request").at(0).bytes;
    QCOMPARE(bytes.size(), size_t(372));
    const ushort expected[] = {8, 0, '*', '1', 0x20AC, '#'};
    QVERIFY(memcmp(bytes.data(), expected, sizeof(expected)) == 0);
    for (size_t i = sizeof(expected); i < bytes.size(); ++i)
        QCOMPARE(int(bytes[i]), 0);
}

void PipelineTest::commandOf91UnitsIsSent()
{
    QCOMPARE(send(5, units(91)), 0);
    QCOMPARE(QString::fromStdU16String(fakeSdkCommands().at(0)), units(91));
}

void PipelineTest::commandOf92UnitsIsRefusedAndRemoved()
{
    QCOMPARE(send(5, units(92)), 1);
    QVERIFY(fakeSdkCommands().empty());
    QCOMPARE(timesLogged("USSDCommand is too large"), 1);
    // The command is the only entry in the list, so it is sent at once.
    QCOMPARE(send(5, QStringLiteral("*1#")), 0);
    QCOMPARE(fakeSdkCommands().size(), size_t(1));
}

void PipelineTest::secondCommandWaitsForTheFirstReply()
{
    QCOMPARE(send(5, QStringLiteral("*1#")), 0);
    QCOMPARE(send(5, QStringLiteral("*2#")), 0);
    QCOMPARE(fakeSdkCommands().size(), size_t(1));
    fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitForRequests(2));
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    QVERIFY(fakeSdkCommands().at(1) == u"*2#");
}

void PipelineTest::eachReplyCarriesItsSendersComponent()
{
    fakeSdkScript({fakeReply(u"a"), fakeReply(u"b"), fakeReply(u"c")});
    send(0, QStringLiteral("*1#"));
    send(6, QStringLiteral("*2#"));
    send(3, QStringLiteral("*3#"));
    QCOMPARE(nextAnswer(), answer(0, QStringLiteral("a")));
    QCOMPARE(nextAnswer(), answer(6, QStringLiteral("b")));
    QCOMPARE(nextAnswer(), answer(3, QStringLiteral("c")));
}

void PipelineTest::sameCommandTwiceIsSentTwice()
{
    fakeSdkSetAnswer(fakeReply(u"x"));
    send(5, QStringLiteral("*1#"));
    send(5, QStringLiteral("*1#"));
    nextAnswer();
    nextAnswer();
    QCOMPARE(fakeSdkCommands().size(), size_t(2));
}

void PipelineTest::replyWithOtherTypeIsDelivered()
{
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"menu", 1);
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("menu")));
    QCOMPARE(timesLogged("received response type = 1"), 1);
}

void PipelineTest::emptyReplyIsDelivered()
{
    fakeSdkSetAnswer(fakeNetworkRefusal());
    send(5, QStringLiteral("*1#"));
    QCOMPARE(nextAnswer(), answer(5, QString()));
}

void PipelineTest::replyArrivesOnTheGuiThread()
{
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"one");
    nextAnswer();
    QCOMPARE(m_listener->thread, QThread::currentThread());
}

void PipelineTest::byteOrderMarkInAReplyStays()
{
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"\uFEFFa");
    QCOMPARE(nextAnswer().second, QString(QChar(0xFEFF)) + QLatin1Char('a'));
}

// ---- refusals ------------------------------------------------------------------------------

void PipelineTest::refusedCommandGivesResultAndStatus()
{
    fakeSdkSetAnswer(fakeRefused(7, 5));
    QCOMPARE(send(5, QStringLiteral("*1#")), 1);
    QCOMPARE(m_status, 5);
    drainEvents();
    QVERIFY(answers().isEmpty());
}

void PipelineTest::refusedCommandIsSilentAndTheNextOneWaits()
{
    fakeSdkScript({fakeSilence(), fakeRefused(1, 0)});
    send(5, QStringLiteral("*1#"));
    send(0, QStringLiteral("*2#"));
    send(3, QStringLiteral("*3#"));
    fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    QVERIFY(answers().isEmpty()); // there is no answer to *2#
    QCOMPARE(fakeSdkCommands().size(), size_t(2));
    QCOMPARE(send(6, QStringLiteral("*4#")), 0); // waits for *3#
    QCOMPARE(fakeSdkCommands().size(), size_t(2));
    fakeSdkRespond(u"stale"); // taken as the answer to the head, so the next entry is sent
    QVERIFY(fakeSdkWaitForRequests(3));
    QCOMPARE(nextAnswer(), answer(3, QStringLiteral("stale")));
    QVERIFY(fakeSdkCommands().at(2) == u"*4#");
}

void PipelineTest::tooLongCommandIsSilentAndTheNextOneWaits()
{
    send(5, QStringLiteral("*1#"));
    send(0, units(92));
    send(3, QStringLiteral("*3#"));
    fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    drainEvents();
    QVERIFY(answers().isEmpty());
    QCOMPARE(fakeSdkCommands().size(), size_t(1));
}

void PipelineTest::commandAfterARefusalIsSentAgain()
{
    fakeSdkScript({fakeRefused(1, 0), fakeReply(u"two")});
    QCOMPARE(send(5, QStringLiteral("*1#")), 1);
    QCOMPARE(send(5, QStringLiteral("*2#")), 0);
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("two")));
}

// ---- time-out ------------------------------------------------------------------------------

void PipelineTest::missingReplyIsAnsweredByTimeOut()
{
    setTimes(5, NO_PATIENCE);
    send(3, QStringLiteral("*1#"));
    QCOMPARE(nextAnswer(), answer(3, timeOutText()));
    drainEvents();
    QVERIFY(answers().isEmpty());
}

void PipelineTest::timeOutSendsTheNextCommand()
{
    stopClock();
    fakeSdkScript({fakeSilence(), fakeReply(u"two")});
    send(3, QStringLiteral("*1#"));
    send(0, QStringLiteral("*2#"));
    letTimePass(NO_PATIENCE);
    QCOMPARE(nextAnswer(), answer(3, timeOutText()));
    QCOMPARE(nextAnswer(), answer(0, QStringLiteral("two")));
}

void PipelineTest::commandSentBySdkThreadTimesOutToo()
{
    send(3, QStringLiteral("*1#"));
    send(0, QStringLiteral("*2#"));
    setTimes(5, NO_PATIENCE); // applies to the second command
    fakeSdkRespond(u"one");
    QCOMPARE(nextAnswer(), answer(3, QStringLiteral("one")));
    QCOMPARE(nextAnswer(), answer(0, timeOutText()));
    const std::vector<FakeCall> requests = fakeSdkCalls("TKSV_USSDSrv_Request");
    QVERIFY(requests.at(0).thread != requests.at(1).thread);
}

void PipelineTest::timeOutWithEmptyListOnlyStopsTheTimer()
{
    setTimes(5, 1);
    send(5, QStringLiteral("*1#"));
    USSDLogic::ClearQueuedCmds();
    QTRY_COMPARE(timesLogged("OnTimeOut Exit"), 1);
    QVERIFY(answers().isEmpty());
    QVERIFY(sendsWithoutWaiting());
}

void PipelineTest::timeOutSlotAnswersTheHead()
{
    send(5, QStringLiteral("*1#"));
    QVERIFY(QMetaObject::invokeMethod(m_logic, "OnTimeOut"));
    QCOMPARE(nextAnswer(), answer(5, timeOutText()));
}

void PipelineTest::lateReplyAnswersNextHead()
{
    setTimes(5, NO_PATIENCE);
    send(3, QStringLiteral("*1#"));
    QCOMPARE(nextAnswer(), answer(3, timeOutText()));
    setTimes(NO_PATIENCE, NO_PATIENCE);
    send(0, QStringLiteral("*2#"));
    fakeSdkRespond(u"late one");
    QCOMPARE(nextAnswer(), answer(0, QStringLiteral("late one")));
}

void PipelineTest::replyThatBeatsTheTimerLeavesItStopped()
{
    FakeAnswer quick = fakeReply(u"quick");
    quick.beforeReturn = true;
    fakeSdkScript({quick, fakeSilence()});
    send(5, QStringLiteral("*1#"));
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("quick")));
    QVERIFY(sendsWithoutWaiting());
}

void PipelineTest::sendWaitsForTheEarlierTimeOut()
{
    const int wait = 40;
    setTimes(NO_PATIENCE, wait);
    send(5, QStringLiteral("*1#"));
    USSDLogic::ClearQueuedCmds();
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(send(5, QStringLiteral("*2#")), 0);
    QVERIFY(elapsed.elapsed() >= wait - 1);
    // The device received the command before the wait.
    QCOMPARE(fakeSdkCommands().size(), size_t(2));
}

void PipelineTest::replyEndsTheWaitForTheEarlierTimeOut()
{
    send(5, QStringLiteral("*1#"));
    USSDLogic::ClearQueuedCmds();
    std::thread network([] {
        fakeSdkWaitForRequests(2);
        fakeSdkRespond(u"two");
    });
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(send(0, QStringLiteral("*2#")), 0);
    QVERIFY(elapsed.elapsed() < NO_PATIENCE / 2);
    network.join();
    QCOMPARE(nextAnswer(), answer(0, QStringLiteral("two")));
}

// ---- replies that nobody expects --------------------------------------------------------------

void PipelineTest::nullDataLeavesListAndTimer()
{
    send(5, QStringLiteral("*1#"));
    fakeSdkRespondNull();
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Ussd).at(0).result), 0);
    QCOMPARE(timesLogged("Fail Exit: Response data is NULL"), 2); // debug and warning
    USSDLogic::ClearQueuedCmds();
    QVERIFY(sendWaitsItsTime()); // the timer is still running
}

void PipelineTest::replyWithoutCommandIsDropped()
{
    fakeSdkRespond(u"hello");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Ussd).at(0).result), 0);
    QCOMPARE(timesLogged("sending USSD commond list is empty"), 1);
    drainEvents();
    QVERIFY(answers().isEmpty());
}

void PipelineTest::twoRepliesAtOnceAnswerOnce()
{
    FakeAnswer twice = fakeReply(u"x");
    twice.threads = 2;
    fakeSdkSetAnswer(twice);
    for (int i = 0; i < 50; ++i) {
        send(5, QStringLiteral("*1#"));
        QCOMPARE(nextAnswer(), answer(5, QStringLiteral("x")));
        QVERIFY(fakeSdkWaitIdle());
        drainEvents();
        QVERIFY(answers().isEmpty());
    }
}

// ---- clearing ------------------------------------------------------------------------------

void PipelineTest::clearQueuedKeepsPrePostQueriesInOrder()
{
    send(4, QStringLiteral("*1#"));
    send(5, QStringLiteral("*2#"));
    send(4, QStringLiteral("*3#"));
    USSDLogic::ClearQueuedCmds();
    fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitForRequests(2));
    fakeSdkRespond(u"three");
    QCOMPARE(nextAnswer(), answer(4, QStringLiteral("one")));
    QCOMPARE(nextAnswer(), answer(4, QStringLiteral("three")));
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(fakeSdkCommands() == (std::vector<std::u16string>{u"*1#", u"*3#"}));
}

void PipelineTest::clearUssdSmsLeavesTheOthers()
{
    send(6, QStringLiteral("*1#"));
    send(5, QStringLiteral("*2#"));
    send(6, QStringLiteral("*3#"));
    USSDLogic::ClearUSSDSMSQueuedCmds();
    fakeSdkRespond(u"one");
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(fakeSdkCommands().size(), size_t(1)); // the list is empty now
}

void PipelineTest::replyForAClearedCommandAnswersTheHead()
{
    send(5, QStringLiteral("*1#"));
    send(4, QStringLiteral("*2#"));
    USSDLogic::ClearQueuedCmds();
    fakeSdkRespond(u"for one");
    QCOMPARE(nextAnswer(), answer(4, QStringLiteral("for one")));
}

/// Tests that the time-out of a cleared command stays armed, so that the following entry is sent.
void PipelineTest::clearWhileARequestIsUnderWayKeepsTheTimeOut()
{
    stopClock();
    setTimes(NO_PATIENCE, 1);
    FakeAnswer blocked = fakeSilence();
    blocked.block = std::chrono::milliseconds(NO_PATIENCE);
    fakeSdkScript({fakeSilence(), blocked});
    send(5, QStringLiteral("*1#"));
    send(5, QStringLiteral("*2#"));
    send(4, QStringLiteral("*3#"));
    fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitForRequests(2));
    USSDLogic::ClearQueuedCmds();
    fakeSdkUnblock();
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    letTimePass(NO_PATIENCE);
    QCOMPARE(nextAnswer(), answer(4, timeOutText()));
}

void PipelineTest::commandClearedWhileItWaitedIsNotSent()
{
    setTimes(NO_PATIENCE, 1);
    FakeAnswer blocked = fakeSilence();
    blocked.block = std::chrono::milliseconds(NO_PATIENCE);
    fakeSdkScript({blocked, fakeSilence(), fakeSilence()});
    int status[3] = {0, 0, 0};
    std::vector<std::thread> senders;
    const char *const commands[] = {"*1#", "*2#", "*3#"};
    for (int i = 0; i < 3; ++i) { // the device blocks the first sender, and the others wait for it
        senders.emplace_back([this, i, &status, &commands] {
            m_logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QLatin1String(commands[i])),
                                     &status[i]);
        });
        QVERIFY(waitUntilLogged(": sendUSSDCommand Enter", i + 1));
        QVERIFY(fakeSdkWaitForRequests(1));
        if (i < 2)
            USSDLogic::ClearQueuedCmds();
    }
    fakeSdkUnblock();
    for (std::thread &sender : senders)
        sender.join();
    QVERIFY(fakeSdkCommands() == (std::vector<std::u16string>{u"*1#", u"*3#"}));
    fakeSdkRespond(u"three");
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("three")));
}

/// Tests that the call-back removes only the command that it has announced, even if the list has a
/// new head by then.
void PipelineTest::clearBeforeTheHeadIsRemovedLeavesTheNewHead()
{
    setTimes(NO_PATIENCE, 1);
    Interloper interloper;
    connect(m_logic, SIGNAL(responseReceived(int, QString)), &interloper,
            SLOT(stopHere(int, QString)), Qt::DirectConnection);
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"one");
    interloper.reached.acquire();
    USSDLogic::ClearQueuedCmds();
    send(3, QStringLiteral("*2#"));
    interloper.goOn.release();
    QVERIFY(fakeSdkWaitIdle());
    disconnect(m_logic, nullptr, &interloper, nullptr);
    fakeSdkRespond(u"two");
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    QCOMPARE(nextAnswer(), answer(3, QStringLiteral("two")));
}

void PipelineTest::oneRequestAtATimeIsUnderWay()
{
    setTimes(NO_PATIENCE, 1);
    FakeAnswer blocked = fakeSilence();
    blocked.block = std::chrono::milliseconds(NO_PATIENCE);
    fakeSdkScript({fakeSilence(), blocked, fakeSilence()});
    send(5, QStringLiteral("*1#"));
    send(5, QStringLiteral("*2#"));
    fakeSdkRespond(u"one"); // the SDK's thread sends *2#, and the call blocks
    QVERIFY(fakeSdkWaitForRequests(2));
    USSDLogic::ClearQueuedCmds();
    std::atomic<ThreadWatch::ThreadId> otherId(0);
    std::thread other([this, &otherId] {
        otherId = ThreadWatch::currentThread();
        send(0, QStringLiteral("*3#"));
    });
    QVERIFY(waitUntilLogged(": sendUSSDCommand Enter", 3));
    ThreadWatch::waitUntilAsleepOrGone(otherId);
    const size_t meanwhile = fakeSdkCommands().size();
    fakeSdkUnblock();
    other.join();
    QCOMPARE(meanwhile, size_t(2));
    QCOMPARE(fakeSdkCommands().size(), size_t(3));
}

void PipelineTest::strayReplyWithEmptyListStopsTheTimer()
{
    send(5, QStringLiteral("*1#"));
    USSDLogic::ClearQueuedCmds();
    fakeSdkRespond(u"stray");
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(sendsWithoutWaiting());
}

void PipelineTest::shippedTimesAreThirtyAndThreeSeconds()
{
    QCOMPARE(m_shippedTimes.reply, 30000);
    QCOMPARE(m_shippedTimes.previous, 3000);
}

void PipelineTest::destroyEndsTheWaitForTheEarlierTimeOut()
{
    Interloper interloper;
    connect(m_logic, SIGNAL(responseReceived(int, QString)), &interloper,
            SLOT(clearAndSendTwice(int, QString)), Qt::DirectConnection);
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"one"); // the call-back sends twice, and waits for the time-out of the first
    QVERIFY(fakeSdkWaitForRequests(3));
    QElapsedTimer elapsed;
    elapsed.start();
    USSDLogic::Destroy();
    QVERIFY(elapsed.elapsed() < NO_PATIENCE / 2);
}

// ---- the device ----------------------------------------------------------------------------

void PipelineTest::releaseReportsTheDevicesResult()
{
    QCOMPARE(m_logic->ReleaseUSSDCommand(), 0);
    fakeSdkSetResult("TKSV_USSDSrv_Release", 3);
    QCOMPARE(m_logic->ReleaseUSSDCommand(), 1);
    QCOMPARE(timesLogged("TKSV_USSDSrv_Release failed"), 1);
}

void PipelineTest::releaseLeavesTheTimeOutRunning()
{
    stopClock();
    send(5, QStringLiteral("*1#"));
    QCOMPARE(m_logic->ReleaseUSSDCommand(), 0);
    QVERIFY(m_logic->findChild<ReplyTimer *>()->isArmed());
    letTimePass(NO_PATIENCE);
    QCOMPARE(nextAnswer(), answer(5, timeOutText()));
}

void PipelineTest::callbacksAreRegisteredDeviceFirst()
{
    QStringList registrations;
    for (const FakeCall &call : fakeSdkCalls()) {
        const QString name = QString::fromStdString(call.function);
        if (name.contains(QLatin1String("Reg")))
            registrations << name;
    }
    QCOMPARE(registrations, (QStringList{QStringLiteral("TKSV_DevSrv_RegisterDevInitEventCallback"),
                                         QStringLiteral("TKSV_USSDSrv_RegisterUSSDCallback"),
                                         QStringLiteral("TKSV_SMSSrv_RegCallBack")}));
}

void PipelineTest::constructionLogsEachRegistration()
{
    USSDLogic::Destroy();
    clearLog();
    m_logic = USSDLogic::GetUSSDLogicInstance();
    QCOMPARE(linesOf("GetUSSDLogicInstance"),
             (QStringList{QStringLiteral(" Enter"), QStringLiteral(" Exit")}));
    QCOMPARE(
        linesOf("USSDLogic"),
        (QStringList{QStringLiteral(" Enter"),
                     QStringLiteral(": Calling TKSV_DevSrv_RegisterDevInitEventCallback ()"),
                     QStringLiteral(": TKSV_DevSrv_RegisterDevInitEventCallback () returned 0"),
                     QStringLiteral(": Calling TKSV_SMSSrv_RegCallBack ()"),
                     QStringLiteral(": TKSV_SMSSrv_RegCallBack () returned 0"),
                     QStringLiteral(" Exit")}));
    const QString before =
        QStringLiteral(" before calling TKSV_USSDSrv_RegisterUSSDCallback()"); // debug and warning
    QCOMPARE(
        linesOf("registerUSSDCallback"),
        (QStringList{QStringLiteral(" Enter"), before, before,
                     QStringLiteral(" after calling TKSV_USSDSrv_RegisterUSSDCallback(): retVal=0"),
                     QStringLiteral(" Exit: retVal=0")}));
}

void PipelineTest::unregisteringLogsBeforeAndAfter()
{
    clearLog();
    m_logic->unSDKRegisterEvent();
    const QString before = QStringLiteral(" before calling TKSV_USSDSrv_UnRegisterUSSDCallback()");
    QCOMPARE(
        linesOf("unregisterUSSDCallback"),
        (QStringList{QStringLiteral(" Enter"), before, before,
                     before + QStringLiteral(": retVal=0"), QStringLiteral(" Exit: retVal=0")}));
}

void PipelineTest::replyLogsWhatWasReceived()
{
    send(3, QStringLiteral("*1#"));
    clearLog();
    fakeSdkRespond(u"one", 2);
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(linesOf("CallBackReceivedResponse"),
             (QStringList{QStringLiteral(" Enter"), QStringLiteral(" received response type = 2"),
                          QStringLiteral(" received component = 3"),
                          QStringLiteral(" received response = one"), QStringLiteral(" Exit")}));
}

void PipelineTest::failedRegistrationIsLogged()
{
    USSDLogic::Destroy();
    fakeSdkSetResult("TKSV_USSDSrv_RegisterUSSDCallback", 9);
    fakeSdkSetResult("TKSV_SMSSrv_RegCallBack", 4);
    m_logic = USSDLogic::GetUSSDLogicInstance();
    QVERIFY(m_logic);
    QCOMPARE(timesLogged("USSDLogic register callback failed"), 1);
    QCOMPARE(timesLogged("TKSV_SMSSrv_RegCallBack returned 4"), 1);
}

void PipelineTest::logTellsCommandLengthAndResult()
{
    fakeSdkSetAnswer(fakeRefused(7, 5));
    send(5, QStringLiteral("*100#"));
    QCOMPARE(timesLogged(" Calling TKSV_USSDSrv_Request (USSDCmd= *100#, USSDCmdLen = 10)"), 2);
    QCOMPARE(timesLogged(" TKSV_USSDSrv_Request Returned(status = 5, retVal = 7), "), 2);
    QCOMPARE(timesLogged(" TKSV_USSDSrv_Request failed"), 2);
}

void PipelineTest::earlyReturnWritesItsLineAndNoExit_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("lastLine");
    QTest::newRow("reply without command") << QStringLiteral("CallBackReceivedResponse")
                                           << QStringLiteral("sending USSD commond list is empty");
    QTest::newRow("too long") << QStringLiteral("sendUSSDCommand")
                              << QStringLiteral("USSDCommand is too large");
    QTest::newRow("refused") << QStringLiteral("sendUSSDCommand")
                             << QStringLiteral("TKSV_USSDSrv_Request failed");
    QTest::newRow("not released") << QStringLiteral("releaseUSSDCommand")
                                  << QStringLiteral("TKSV_USSDSrv_Release failed");
}

void PipelineTest::earlyReturnWritesItsLineAndNoExit()
{
    QFETCH(QString, function);
    QFETCH(QString, lastLine);
    fakeSdkSetAnswer(fakeRefused(7, 5));
    fakeSdkSetResult("TKSV_USSDSrv_Release", 3);
    send(5, units(92));
    send(5, QStringLiteral("*1#"));
    m_logic->ReleaseUSSDCommand();
    fakeSdkRespond(u"unasked");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    const QString start = QStringLiteral("/USSDLogic.cpp: ") + function + QLatin1Char(' ');
    QVERIFY(timesLogged(start + QStringLiteral("Enter")) > 0);
    QVERIFY(timesLogged(start + lastLine) > 0);
    QCOMPARE(timesLogged(start + QStringLiteral("Exit")), 0);
}

// ---- life cycle and threads ------------------------------------------------------------------

void PipelineTest::headLeavesTheListAfterItsAnnouncement_data()
{
    QTest::addColumn<bool>("byTimeOut");
    QTest::newRow("reply") << false;
    QTest::newRow("time-out") << true;
}

/// A receiver that sends at once must therefore find its command queued after the announced one.
void PipelineTest::headLeavesTheListAfterItsAnnouncement()
{
    QFETCH(bool, byTimeOut);
    Interloper interloper;
    connect(m_logic, SIGNAL(responseReceived(int, QString)), &interloper,
            SLOT(sendAndCount(int, QString)), Qt::DirectConnection);
    send(5, QStringLiteral("*1#"));
    if (byTimeOut)
        QVERIFY(QMetaObject::invokeMethod(m_logic, "OnTimeOut"));
    else
        fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitForRequests(2));
    QVERIFY(fakeSdkWaitIdle());
    disconnect(m_logic, nullptr, &interloper, nullptr);
    QCOMPARE(interloper.commands.load(), size_t(1));
}

void PipelineTest::receiverMaySendFromTheSdkThread()
{
    Interloper interloper;
    connect(m_logic, SIGNAL(responseReceived(int, QString)), &interloper,
            SLOT(sendMore(int, QString)), Qt::DirectConnection);
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"one");
    // This would fail if a lock were held while the signal is emitted.
    QVERIFY(fakeSdkWaitForRequests(2));
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    disconnect(m_logic, nullptr, &interloper, nullptr);
}

void PipelineTest::timeOutReceiverMayShutDown()
{
    Interloper interloper;
    connect(m_logic, SIGNAL(responseReceived(int, QString)), &interloper,
            SLOT(shutDown(int, QString)));
    setTimes(5, NO_PATIENCE);
    send(5, QStringLiteral("*1#"));
    QPointer<USSDLogic> logic(m_logic);
    QTRY_VERIFY(!logic);
}

/// Tests that only callers which wait can enter, and only when the object is ready.
void PipelineTest::gateLetsOnlyThePatientIn()
{
    CallbackGate gate;
    gate.startOpening();
    bool entered = true;
    std::thread impatient([&] { entered = gate.enter(CallbackGate::DoNotWait); });
    impatient.join();
    QVERIFY(!entered);
    std::atomic<ThreadWatch::ThreadId> patientId(0);
    std::atomic<bool> isInside(false);
    std::thread patient([&] {
        patientId = ThreadWatch::currentThread();
        isInside = gate.enter(CallbackGate::WaitForOpening);
        gate.leave();
    });
    while (patientId == 0)
        std::this_thread::yield();
    ThreadWatch::waitUntilAsleepOrGone(patientId);
    const bool wasInside = isInside;
    gate.open();
    patient.join();
    QVERIFY(!wasInside);
    QVERIFY(isInside);
}

void PipelineTest::destroyWaitsForARunningCallback()
{
    Interloper interloper;
    connect(m_logic, SIGNAL(responseReceived(int, QString)), &interloper,
            SLOT(stopHere(int, QString)), Qt::DirectConnection);
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"one");
    interloper.reached.acquire();
    const ThreadWatch::ThreadId self = ThreadWatch::currentThread();
    std::thread helper([&] {
        while (timesLogged(": Destroy Enter") < 1)
            std::this_thread::yield();
        ThreadWatch::waitUntilAsleepOrGone(self);
        interloper.goOn.release();
    });
    USSDLogic::Destroy();
    const bool waited = interloper.done;
    helper.join();
    QVERIFY(waited);
}

void PipelineTest::callbackAfterDestroyFindsNothing()
{
    send(5, QStringLiteral("*1#"));
    USSDLogic::Destroy();
    fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Ussd).at(0).result), 0);
    QCOMPARE(timesLogged("Fail Exit: Logic Object is NULL"), 2);
}

void PipelineTest::newSingletonStartsWithAnEmptyList()
{
    send(5, QStringLiteral("*1#"));
    send(5, QStringLiteral("*2#"));
    USSDLogic::Destroy();
    m_logic = USSDLogic::GetUSSDLogicInstance();
    QCOMPARE(send(5, QStringLiteral("*3#")), 0);
    QVERIFY(fakeSdkCommands().back() == u"*3#");
}

/// Lets replies, late replies and time-outs coincide at random. Each command must be answered
/// exactly once.
void PipelineTest::everyCommandIsAnsweredOnce()
{
    const int count = 400;
    setTimes(1, 1);
    std::vector<FakeAnswer> script;
    for (int i = 0; i < count; ++i) {
        FakeAnswer answer = fakeReplyAfter(std::chrono::milliseconds(i % 3), u"x");
        answer.times = i % 7 == 0 ? 0 : 1;
        script.push_back(answer);
    }
    fakeSdkScript(script);
    for (int i = 0; i < count; ++i)
        QCOMPARE(send(i % 7, QStringLiteral("*%1#").arg(i)), 0);
    QTRY_COMPARE_WITH_TIMEOUT(answers().count(), count, 30000);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
    QCOMPARE(answers().count(), count);
    QCOMPARE(int(fakeSdkCommands().size()), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(answers().at(i).first, i % 7);
}

USSD_TEST_MAIN(PipelineTest)

#include "pipeline_test.moc"
