#include "PipelineTest.h"

/**
 * Tests how the pipeline is cleared and destroyed, and how it handles device events and threads.
 */
class PipelineClearingTest : public PipelineTest
{
    Q_OBJECT

private slots:
    // ---- clearing
    void clearQueuedKeepsPrePostQueriesInOrder();
    void clearUssdSmsLeavesTheOthers();
    void replyForAClearedCommandAnswersTheHead();
    void clearWhileARequestIsUnderWayKeepsTheTimeOut();
    void commandClearedWhileItWaitedIsNotSent();
    void clearBeforeTheHeadIsRemovedLeavesTheNewHead();
    void oneRequestAtATimeIsUnderWay();
    void strayReplyWithEmptyListStopsTheTimer();
    void shippedTimesAreThirtyAndThreeSeconds();
    void destroyEndsTheWaitForTheEarlierTimeOut();

    // ---- the device
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

    // ---- life cycle and threads
    void headLeavesTheListAfterItsAnnouncement_data();
    void headLeavesTheListAfterItsAnnouncement();
    void receiverMaySendFromTheSdkThread();
    void timeOutReceiverMayShutDown();
    void gateLetsOnlyThePatientIn();
    void destroyWaitsForARunningCallback();
    void callbackAfterDestroyFindsNothing();
    void newSingletonStartsWithAnEmptyList();
    void lateReplyDoesNotAnswerACommandBeforeItIsSent();
    void everyCommandIsAnsweredOnce();
};

// ---- clearing -----------------------------------------------------------------------------------

void PipelineClearingTest::clearQueuedKeepsPrePostQueriesInOrder()
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

void PipelineClearingTest::clearUssdSmsLeavesTheOthers()
{
    send(6, QStringLiteral("*1#"));
    send(5, QStringLiteral("*2#"));
    send(6, QStringLiteral("*3#"));
    USSDLogic::ClearUSSDSMSQueuedCmds();
    fakeSdkRespond(u"one");
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(fakeSdkCommands().size(), size_t(1)); // the queue is empty
}

void PipelineClearingTest::replyForAClearedCommandAnswersTheHead()
{
    send(5, QStringLiteral("*1#"));
    send(4, QStringLiteral("*2#"));
    USSDLogic::ClearQueuedCmds();
    fakeSdkRespond(u"for one");
    QCOMPARE(nextAnswer(), answer(4, QStringLiteral("for one")));
}

/// Tests that clearing the queue does not cancel the time-out of a command in flight. The time-out
/// is needed to answer the next command.
void PipelineClearingTest::clearWhileARequestIsUnderWayKeepsTheTimeOut()
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

void PipelineClearingTest::commandClearedWhileItWaitedIsNotSent()
{
    setTimes(NO_PATIENCE, 1);
    FakeAnswer blocked = fakeSilence();
    blocked.block = std::chrono::milliseconds(NO_PATIENCE);
    fakeSdkScript({blocked, fakeSilence(), fakeSilence()});
    int status[3] = {0, 0, 0};
    std::vector<std::thread> senders;
    const char *const commands[] = {"*1#", "*2#", "*3#"};
    for (int i = 0; i < 3; ++i) { // the first sender blocks, and the others wait for it
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

/// Tests that the call-back removes only the command that it has answered, even if the queue has
/// been cleared and has a new head.
void PipelineClearingTest::clearBeforeTheHeadIsRemovedLeavesTheNewHead()
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

void PipelineClearingTest::oneRequestAtATimeIsUnderWay()
{
    setTimes(NO_PATIENCE, 1);
    FakeAnswer blocked = fakeSilence();
    blocked.block = std::chrono::milliseconds(NO_PATIENCE);
    fakeSdkScript({fakeSilence(), blocked, fakeSilence()});
    send(5, QStringLiteral("*1#"));
    send(5, QStringLiteral("*2#"));
    fakeSdkRespond(u"one"); // the SDK's thread sends *2# and blocks in this call
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

void PipelineClearingTest::strayReplyWithEmptyListStopsTheTimer()
{
    send(5, QStringLiteral("*1#"));
    USSDLogic::ClearQueuedCmds();
    fakeSdkRespond(u"stray");
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(sendsWithoutWaiting());
}

void PipelineClearingTest::shippedTimesAreThirtyAndThreeSeconds()
{
    QCOMPARE(m_shippedTimes.reply, 30000);
    QCOMPARE(m_shippedTimes.previous, 3000);
}

void PipelineClearingTest::destroyEndsTheWaitForTheEarlierTimeOut()
{
    Interloper interloper;
    connect(m_logic, SIGNAL(responseReceived(int, QString)), &interloper,
            SLOT(clearAndSendTwice(int, QString)), Qt::DirectConnection);
    send(5, QStringLiteral("*1#"));
    // The call-back sends two commands. The second one waits for the time-out of the first one.
    fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitForRequests(3));
    QElapsedTimer elapsed;
    elapsed.start();
    USSDLogic::Destroy();
    QVERIFY(elapsed.elapsed() < NO_PATIENCE / 2);
}

// ---- the device ---------------------------------------------------------------------------------

void PipelineClearingTest::releaseReportsTheDevicesResult()
{
    QCOMPARE(m_logic->ReleaseUSSDCommand(), 0);
    fakeSdkSetResult("TKSV_USSDSrv_Release", 3);
    QCOMPARE(m_logic->ReleaseUSSDCommand(), 1);
    QCOMPARE(timesLogged("TKSV_USSDSrv_Release failed"), 1);
}

void PipelineClearingTest::releaseLeavesTheTimeOutRunning()
{
    stopClock();
    send(5, QStringLiteral("*1#"));
    QCOMPARE(m_logic->ReleaseUSSDCommand(), 0);
    QVERIFY(m_logic->findChild<ReplyTimer *>()->isArmed());
    letTimePass(NO_PATIENCE);
    QCOMPARE(nextAnswer(), answer(5, timeOutText()));
}

void PipelineClearingTest::callbacksAreRegisteredDeviceFirst()
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

void PipelineClearingTest::constructionLogsEachRegistration()
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
    // This line is logged twice: as a debug message and as a warning.
    const QString before = QStringLiteral(" before calling TKSV_USSDSrv_RegisterUSSDCallback()");
    QCOMPARE(
        linesOf("registerUSSDCallback"),
        (QStringList{QStringLiteral(" Enter"), before, before,
                     QStringLiteral(" after calling TKSV_USSDSrv_RegisterUSSDCallback(): retVal=0"),
                     QStringLiteral(" Exit: retVal=0")}));
}

void PipelineClearingTest::unregisteringLogsBeforeAndAfter()
{
    clearLog();
    m_logic->unSDKRegisterEvent();
    const QString before = QStringLiteral(" before calling TKSV_USSDSrv_UnRegisterUSSDCallback()");
    QCOMPARE(
        linesOf("unregisterUSSDCallback"),
        (QStringList{QStringLiteral(" Enter"), before, before,
                     before + QStringLiteral(": retVal=0"), QStringLiteral(" Exit: retVal=0")}));
}

void PipelineClearingTest::replyLogsWhatWasReceived()
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

void PipelineClearingTest::failedRegistrationIsLogged()
{
    USSDLogic::Destroy();
    fakeSdkSetResult("TKSV_USSDSrv_RegisterUSSDCallback", 9);
    fakeSdkSetResult("TKSV_SMSSrv_RegCallBack", 4);
    m_logic = USSDLogic::GetUSSDLogicInstance();
    QVERIFY(m_logic);
    QCOMPARE(timesLogged("USSDLogic register callback failed"), 1);
    QCOMPARE(timesLogged("TKSV_SMSSrv_RegCallBack returned 4"), 1);
}

void PipelineClearingTest::logTellsCommandLengthAndResult()
{
    fakeSdkSetAnswer(fakeRefused(7, 5));
    send(5, QStringLiteral("*100#"));
    QCOMPARE(timesLogged(" Calling TKSV_USSDSrv_Request (USSDCmd= *100#, USSDCmdLen = 10)"), 2);
    QCOMPARE(timesLogged(" TKSV_USSDSrv_Request Returned(status = 5, retVal = 7), "), 2);
    QCOMPARE(timesLogged(" TKSV_USSDSrv_Request failed"), 2);
}

void PipelineClearingTest::earlyReturnWritesItsLineAndNoExit_data()
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

void PipelineClearingTest::earlyReturnWritesItsLineAndNoExit()
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

// ---- life cycle and threads ---------------------------------------------------------------------

void PipelineClearingTest::headLeavesTheListAfterItsAnnouncement_data()
{
    QTest::addColumn<bool>("byTimeOut");
    QTest::newRow("reply") << false;
    QTest::newRow("time-out") << true;
}

/// Tests that the head stays in the queue while its answer is being announced. A command that a
/// receiver sends during the announcement must be queued behind the head.
void PipelineClearingTest::headLeavesTheListAfterItsAnnouncement()
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

void PipelineClearingTest::receiverMaySendFromTheSdkThread()
{
    Interloper interloper;
    connect(m_logic, SIGNAL(responseReceived(int, QString)), &interloper,
            SLOT(sendMore(int, QString)), Qt::DirectConnection);
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"one");
    // Sending from the receiver would cause a deadlock if the signal were emitted with a locked
    // mutex.
    QVERIFY(fakeSdkWaitForRequests(2));
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    disconnect(m_logic, nullptr, &interloper, nullptr);
}

void PipelineClearingTest::timeOutReceiverMayShutDown()
{
    Interloper interloper;
    connect(m_logic, SIGNAL(responseReceived(int, QString)), &interloper,
            SLOT(shutDown(int, QString)));
    setTimes(5, NO_PATIENCE);
    send(5, QStringLiteral("*1#"));
    QPointer<USSDLogic> logic(m_logic);
    QTRY_VERIFY(!logic);
}

/// Tests that a call-back that waits enters the gate when it is opened, and that a call-back that
/// does not wait is rejected while the gate is being opened.
void PipelineClearingTest::gateLetsOnlyThePatientIn()
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

void PipelineClearingTest::destroyWaitsForARunningCallback()
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

void PipelineClearingTest::callbackAfterDestroyFindsNothing()
{
    send(5, QStringLiteral("*1#"));
    USSDLogic::Destroy();
    fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Ussd).at(0).result), 0);
    QCOMPARE(timesLogged("Fail Exit: Logic Object is NULL"), 2);
}

void PipelineClearingTest::newSingletonStartsWithAnEmptyList()
{
    send(5, QStringLiteral("*1#"));
    send(5, QStringLiteral("*2#"));
    USSDLogic::Destroy();
    m_logic = USSDLogic::GetUSSDLogicInstance();
    QCOMPARE(send(5, QStringLiteral("*3#")), 0);
    QVERIFY(fakeSdkCommands().back() == u"*3#");
}

/// Tests that a late reply is not used as the answer to a command that has not been sent yet. The
/// command is waiting for a thread that is still sending a cleared command.
void PipelineClearingTest::lateReplyDoesNotAnswerACommandBeforeItIsSent()
{
    setTimes(NO_PATIENCE, 1);
    FakeAnswer blocked = fakeSilence();
    blocked.block = std::chrono::milliseconds(NO_PATIENCE);
    fakeSdkScript({blocked, fakeSilence()});
    std::thread first([this] { send(5, QStringLiteral("*1#")); });
    QVERIFY(fakeSdkWaitForRequests(1));
    USSDLogic::ClearQueuedCmds();
    std::atomic<ThreadWatch::ThreadId> nextId(0);
    std::thread next([this, &nextId] {
        nextId = ThreadWatch::currentThread();
        send(3, QStringLiteral("*2#"));
    });
    QVERIFY(waitUntilLogged(": sendUSSDCommand Enter", 2));
    ThreadWatch::waitUntilAsleepOrGone(nextId);
    fakeSdkRespond(u"late");
    const bool isDelivered = fakeSdkWaitForDeliveries(FakeService::Ussd, 1);
    fakeSdkUnblock();
    first.join();
    next.join();
    QVERIFY(isDelivered);
    QVERIFY(fakeSdkCommands() == (std::vector<std::u16string>{u"*1#", u"*2#"}));
    fakeSdkRespond(u"two");
    QCOMPARE(nextAnswer(), answer(3, QStringLiteral("two")));
    QVERIFY(answers().isEmpty());
}

/// Tests that each command is answered exactly once, even if replies, late replies and time-outs
/// coincide.
void PipelineClearingTest::everyCommandIsAnsweredOnce()
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
    Announcements announcements;
    connect(m_logic, SIGNAL(responseReceived(int, QString)), &announcements,
            SLOT(record(int, QString)), Qt::DirectConnection);
    for (int i = 0; i < count; ++i)
        QCOMPARE(send(i % 7, QStringLiteral("*%1#").arg(i)), 0);
    QTRY_COMPARE_WITH_TIMEOUT(answers().count(), count, 30000);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
    QCOMPARE(answers().count(), count);
    QCOMPARE(int(fakeSdkCommands().size()), count);
    QCOMPARE(announcements.components().count(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(announcements.components().at(i), i % 7);
}

USSD_TEST_MAIN(PipelineClearingTest)
#include "pipeline_clearing_test.moc"
