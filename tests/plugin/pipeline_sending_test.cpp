#include "PipelineTest.h"

/** Tests how the pipeline sends commands and handles time-outs and unexpected replies. */
class PipelineSendingTest : public PipelineTest
{
    Q_OBJECT

private slots:
    // ---- sending
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

    // ---- refusals
    void refusedCommandGivesResultAndStatus();
    void refusedCommandIsSilentAndTheNextOneWaits();
    void tooLongCommandIsSilentAndTheNextOneWaits();
    void commandAfterARefusalIsSentAgain();

    // ---- time-out
    void missingReplyIsAnsweredByTimeOut();
    void timeOutSendsTheNextCommand();
    void commandSentBySdkThreadTimesOutToo();
    void timeOutWithEmptyListOnlyStopsTheTimer();
    void timeOutSlotAnswersTheHead();
    void lateReplyAnswersNextHead();
    void replyThatBeatsTheTimerLeavesItStopped();
    void sendWaitsForTheEarlierTimeOut();
    void replyEndsTheWaitForTheEarlierTimeOut();

    // ---- unexpected replies
    void nullDataLeavesListAndTimer();
    void replyWithoutCommandIsDropped();
    void twoRepliesAtOnceAnswerOnce();
};

// ---- sending ------------------------------------------------------------------------------------

void PipelineSendingTest::requestRecordHoldsLengthAndUnits()
{
    QCOMPARE(send(5, QString::fromUtf8("*1€#")), 0);
    const std::vector<unsigned char> bytes = fakeSdkCalls("TKSV_USSDSrv_Request").at(0).bytes;
    QCOMPARE(bytes.size(), size_t(372));
    const ushort expected[] = {8, 0, '*', '1', 0x20AC, '#'};
    QVERIFY(memcmp(bytes.data(), expected, sizeof(expected)) == 0);
    for (size_t i = sizeof(expected); i < bytes.size(); ++i)
        QCOMPARE(int(bytes[i]), 0);
}

void PipelineSendingTest::commandOf91UnitsIsSent()
{
    QCOMPARE(send(5, units(91)), 0);
    QCOMPARE(QString::fromStdU16String(fakeSdkCommands().at(0)), units(91));
}

void PipelineSendingTest::commandOf92UnitsIsRefusedAndRemoved()
{
    QCOMPARE(send(5, units(92)), 1);
    QVERIFY(fakeSdkCommands().empty());
    QCOMPARE(timesLogged("USSDCommand is too large"), 1);
    // No other command is queued, so this command is sent immediately.
    QCOMPARE(send(5, QStringLiteral("*1#")), 0);
    QCOMPARE(fakeSdkCommands().size(), size_t(1));
}

void PipelineSendingTest::secondCommandWaitsForTheFirstReply()
{
    QCOMPARE(send(5, QStringLiteral("*1#")), 0);
    QCOMPARE(send(5, QStringLiteral("*2#")), 0);
    QCOMPARE(fakeSdkCommands().size(), size_t(1));
    fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitForRequests(2));
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    QVERIFY(fakeSdkCommands().at(1) == u"*2#");
}

void PipelineSendingTest::eachReplyCarriesItsSendersComponent()
{
    fakeSdkScript({fakeReply(u"a"), fakeReply(u"b"), fakeReply(u"c")});
    send(0, QStringLiteral("*1#"));
    send(6, QStringLiteral("*2#"));
    send(3, QStringLiteral("*3#"));
    QCOMPARE(nextAnswer(), answer(0, QStringLiteral("a")));
    QCOMPARE(nextAnswer(), answer(6, QStringLiteral("b")));
    QCOMPARE(nextAnswer(), answer(3, QStringLiteral("c")));
}

void PipelineSendingTest::sameCommandTwiceIsSentTwice()
{
    fakeSdkSetAnswer(fakeReply(u"x"));
    send(5, QStringLiteral("*1#"));
    send(5, QStringLiteral("*1#"));
    nextAnswer();
    nextAnswer();
    QCOMPARE(fakeSdkCommands().size(), size_t(2));
}

void PipelineSendingTest::replyWithOtherTypeIsDelivered()
{
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"menu", 1);
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("menu")));
    QCOMPARE(timesLogged("received response type = 1"), 1);
}

void PipelineSendingTest::emptyReplyIsDelivered()
{
    fakeSdkSetAnswer(fakeNetworkRefusal());
    send(5, QStringLiteral("*1#"));
    QCOMPARE(nextAnswer(), answer(5, QString()));
}

void PipelineSendingTest::replyArrivesOnTheGuiThread()
{
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"one");
    nextAnswer();
    QCOMPARE(m_listener->thread, QThread::currentThread());
}

void PipelineSendingTest::byteOrderMarkInAReplyStays()
{
    send(5, QStringLiteral("*1#"));
    fakeSdkRespond(u"\uFEFFa");
    QCOMPARE(nextAnswer().second, QString(QChar(0xFEFF)) + QLatin1Char('a'));
}

// ---- refusals -----------------------------------------------------------------------------------

void PipelineSendingTest::refusedCommandGivesResultAndStatus()
{
    fakeSdkSetAnswer(fakeRefused(7, 5));
    QCOMPARE(send(5, QStringLiteral("*1#")), 1);
    QCOMPARE(m_status, 5);
    drainEvents();
    QVERIFY(answers().isEmpty());
}

void PipelineSendingTest::refusedCommandIsSilentAndTheNextOneWaits()
{
    fakeSdkScript({fakeSilence(), fakeRefused(1, 0)});
    send(5, QStringLiteral("*1#"));
    send(0, QStringLiteral("*2#"));
    send(3, QStringLiteral("*3#"));
    fakeSdkRespond(u"one");
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("one")));
    QVERIFY(answers().isEmpty()); // *2# does not receive an answer
    QCOMPARE(fakeSdkCommands().size(), size_t(2));
    QCOMPARE(send(6, QStringLiteral("*4#")), 0); // queued behind *3#
    QCOMPARE(fakeSdkCommands().size(), size_t(2));
    fakeSdkRespond(u"stale"); // answers *3#, and *4# is sent
    QVERIFY(fakeSdkWaitForRequests(3));
    QCOMPARE(nextAnswer(), answer(3, QStringLiteral("stale")));
    QVERIFY(fakeSdkCommands().at(2) == u"*4#");
}

void PipelineSendingTest::tooLongCommandIsSilentAndTheNextOneWaits()
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

void PipelineSendingTest::commandAfterARefusalIsSentAgain()
{
    fakeSdkScript({fakeRefused(1, 0), fakeReply(u"two")});
    QCOMPARE(send(5, QStringLiteral("*1#")), 1);
    QCOMPARE(send(5, QStringLiteral("*2#")), 0);
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("two")));
}

// ---- time-out -----------------------------------------------------------------------------------

void PipelineSendingTest::missingReplyIsAnsweredByTimeOut()
{
    setTimes(5, NO_PATIENCE);
    send(3, QStringLiteral("*1#"));
    QCOMPARE(nextAnswer(), answer(3, timeOutText()));
    drainEvents();
    QVERIFY(answers().isEmpty());
}

void PipelineSendingTest::timeOutSendsTheNextCommand()
{
    stopClock();
    fakeSdkScript({fakeSilence(), fakeReply(u"two")});
    send(3, QStringLiteral("*1#"));
    send(0, QStringLiteral("*2#"));
    letTimePass(NO_PATIENCE);
    QCOMPARE(nextAnswer(), answer(3, timeOutText()));
    QCOMPARE(nextAnswer(), answer(0, QStringLiteral("two")));
}

void PipelineSendingTest::commandSentBySdkThreadTimesOutToo()
{
    send(3, QStringLiteral("*1#"));
    send(0, QStringLiteral("*2#"));
    setTimes(5, NO_PATIENCE); // applies only to the second command
    fakeSdkRespond(u"one");
    QCOMPARE(nextAnswer(), answer(3, QStringLiteral("one")));
    QCOMPARE(nextAnswer(), answer(0, timeOutText()));
    const std::vector<FakeCall> requests = fakeSdkCalls("TKSV_USSDSrv_Request");
    QVERIFY(requests.at(0).thread != requests.at(1).thread);
}

void PipelineSendingTest::timeOutWithEmptyListOnlyStopsTheTimer()
{
    setTimes(5, 1);
    send(5, QStringLiteral("*1#"));
    USSDLogic::ClearQueuedCmds();
    QTRY_COMPARE(timesLogged("OnTimeOut Exit"), 1);
    QVERIFY(answers().isEmpty());
    QVERIFY(sendsWithoutWaiting());
}

void PipelineSendingTest::timeOutSlotAnswersTheHead()
{
    send(5, QStringLiteral("*1#"));
    QVERIFY(QMetaObject::invokeMethod(m_logic, "OnTimeOut"));
    QCOMPARE(nextAnswer(), answer(5, timeOutText()));
}

void PipelineSendingTest::lateReplyAnswersNextHead()
{
    setTimes(5, NO_PATIENCE);
    send(3, QStringLiteral("*1#"));
    QCOMPARE(nextAnswer(), answer(3, timeOutText()));
    setTimes(NO_PATIENCE, NO_PATIENCE);
    send(0, QStringLiteral("*2#"));
    fakeSdkRespond(u"late one");
    QCOMPARE(nextAnswer(), answer(0, QStringLiteral("late one")));
}

void PipelineSendingTest::replyThatBeatsTheTimerLeavesItStopped()
{
    FakeAnswer quick = fakeReply(u"quick");
    quick.beforeReturn = true;
    fakeSdkScript({quick, fakeSilence()});
    send(5, QStringLiteral("*1#"));
    QCOMPARE(nextAnswer(), answer(5, QStringLiteral("quick")));
    QVERIFY(sendsWithoutWaiting());
}

void PipelineSendingTest::sendWaitsForTheEarlierTimeOut()
{
    const int wait = 40;
    setTimes(NO_PATIENCE, wait);
    send(5, QStringLiteral("*1#"));
    USSDLogic::ClearQueuedCmds();
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(send(5, QStringLiteral("*2#")), 0);
    QVERIFY(elapsed.elapsed() >= wait - 1);
    // The command is sent before the wait starts.
    QCOMPARE(fakeSdkCommands().size(), size_t(2));
}

void PipelineSendingTest::replyEndsTheWaitForTheEarlierTimeOut()
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

// ---- unexpected replies -------------------------------------------------------------------------

void PipelineSendingTest::nullDataLeavesListAndTimer()
{
    send(5, QStringLiteral("*1#"));
    fakeSdkRespondNull();
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Ussd).at(0).result), 0);
    // This line is logged twice: as a debug message and as a warning.
    QCOMPARE(timesLogged("Fail Exit: Response data is NULL"), 2);
    USSDLogic::ClearQueuedCmds();
    QVERIFY(sendWaitsItsTime()); // the timer is still running
}

void PipelineSendingTest::replyWithoutCommandIsDropped()
{
    fakeSdkRespond(u"hello");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QCOMPARE(int(fakeSdkDeliveries(FakeService::Ussd).at(0).result), 0);
    QCOMPARE(timesLogged("sending USSD commond list is empty"), 1);
    drainEvents();
    QVERIFY(answers().isEmpty());
}

void PipelineSendingTest::twoRepliesAtOnceAnswerOnce()
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

USSD_TEST_MAIN(PipelineSendingTest)
#include "pipeline_sending_test.moc"
