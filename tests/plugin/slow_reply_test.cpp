#include "LogicListener.h"
#include "PluginTest.h"

#include <atomic>
#include <thread>

#include <QSemaphore>

#include <pthread.h>
#include <signal.h>
#include <unistd.h>

#include "fake_tksv.h"
#include "requests/ReplyTimer.h"
#include "requests/USSDLogic.h"
#include "ThreadWatch.h"

namespace
{

QSemaphore clockIsRead;
QSemaphore clockMayGoOn;
std::atomic<bool> clockStops(false);

/// Blocks the first thread that reads the clock. The timer reads the clock when it is started, with
/// m_mutexTimeout locked.
qint64 stoppingClock()
{
    if (clockStops.exchange(false)) {
        clockIsRead.release();
        clockMayGoOn.acquire();
    }
    return 0;
}

std::atomic<bool> threadIsHeld(false);
int heldThreadReads[2];

/// A signal handler that blocks its thread until a byte is written to the pipe.
void holdThread(int)
{
    threadIsHeld = true;
    char byte = 0;
    while (read(heldThreadReads[0], &byte, 1) < 0) {
    }
}

} // namespace

/** Tests a reply whose thread is suspended in the middle of the call-back. */
class SlowReplyTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    int send(const char *command);
    void deliverReply();
    void holdReply();

    USSDLogic *m_logic = nullptr;
    QScopedPointer<LogicListener> m_listener;
    std::thread m_reply;
    std::atomic<ThreadWatch::ThreadId> m_replyId{0};

private slots:
    void timeOutOfTheNextCommandIsNotStopped();
};

void SlowReplyTest::setUp()
{
    PluginTest::setUp();
    QCOMPARE(pipe(heldThreadReads), 0);
    signal(SIGUSR1, holdThread);
    ReplyTimer::setClock(stoppingClock);
    const ReplyTimes times = {60000, 60000};
    USSDLogic::setReplyTimes(times);
    m_logic = USSDLogic::GetUSSDLogicInstance();
    m_listener.reset(new LogicListener(m_logic));
}

void SlowReplyTest::tearDown()
{
    m_listener.reset();
    PluginTest::tearDown();
    ReplyTimer::setClock(nullptr);
    signal(SIGUSR1, SIG_DFL);
    close(heldThreadReads[0]);
    close(heldThreadReads[1]);
}

int SlowReplyTest::send(const char *command)
{
    int status = 0;
    return m_logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QLatin1String(command)),
                                    &status);
}

void SlowReplyTest::deliverReply()
{
    m_reply = std::thread([this] {
        m_replyId = ThreadWatch::currentThread();
        TKSV_USSDResponse response = TKSV_USSDResponse();
        USSDLogic::CallBackReceivedResponse(0, &response);
    });
    while (timesLogged("CallBackReceivedResponse Enter") == 0)
        std::this_thread::yield();
    ThreadWatch::waitUntilAsleepOrGone(m_replyId);
}

void SlowReplyTest::holdReply()
{
    threadIsHeld = false;
    pthread_kill(m_reply.native_handle(), SIGUSR1);
    while (!threadIsHeld)
        std::this_thread::yield();
}

/// Tests that a slow reply does not cancel the time-out of the next command. The thread of the
/// reply is suspended between claiming its command and cancelling the time-out. Meanwhile, a device
/// event removes the command, and the next command is sent.
void SlowReplyTest::timeOutOfTheNextCommandIsNotStopped()
{
#ifdef USSD_THREAD_SANITIZER
    QSKIP("the thread sanitizer delivers a signal only when the thread goes on");
#endif
    clockStops = true;
    std::thread sender([this] { send("*1#"); });
    clockIsRead.acquire();
    deliverReply();
    holdReply();
    fakeSdkRaiseDeviceEvent(TKSV_DEV_EVENT_GONE);
    const bool isDropped = fakeSdkWaitForDeliveries(FakeService::Device, 1);
    clockMayGoOn.release();
    sender.join();
    const int result = send("*2#");
    const bool isWritten = write(heldThreadReads[1], "", 1) == 1;
    m_reply.join();
    QVERIFY(isDropped && isWritten);
    QCOMPARE(result, 0);
    QVERIFY(m_logic->findChild<ReplyTimer *>()->isArmed());
    QCOMPARE(m_listener->nextAnswer(), LogicListener::Answer(COMPONENT_GENERAL, QString()));
    QVERIFY(m_listener->answers.isEmpty());
}

USSD_TEST_MAIN(SlowReplyTest)

#include "slow_reply_test.moc"
