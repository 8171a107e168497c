#include "UssdTest.h"

#include <atomic>
#include <thread>

#include <QSignalSpy>

#include "ReplyTimer.h"

namespace
{

std::atomic<qint64> now(0);

qint64 testClock()
{
    return now;
}

} // namespace

class ReplyTimerTest : public UssdTest
{
    Q_OBJECT

protected:
    void tearDown() override { ReplyTimer::setClock(nullptr); }

private slots:
    void armingCountsAtOnceOnAnotherThread();
    void armingByAnotherThreadRunsOut();
    void disarmingByAnotherThreadStopsIt();
    void disarmUnderWayDoesNotStopALaterArming();
    void disarmOfAnOldArmingIsIgnored();
    void runOutArmingIsKnownWhileEmitting();
    void doesNotRunOutBeforeTheClockSaysSo();
    void busyOwnerDoesNotLengthenTheTime();
};

void ReplyTimerTest::armingCountsAtOnceOnAnotherThread()
{
    ReplyTimer timer;
    bool armed = false;
    bool disarmed = false;
    std::thread other([&] {
        timer.arm(60000);
        armed = timer.isArmed();
        timer.disarm();
        disarmed = !timer.isArmed();
    });
    other.join();
    QVERIFY(armed);
    QVERIFY(disarmed);
}

void ReplyTimerTest::armingByAnotherThreadRunsOut()
{
    ReplyTimer timer;
    QSignalSpy timeouts(&timer, SIGNAL(timeout()));
    std::thread other([&] { timer.arm(1); });
    other.join();
    QVERIFY(timeouts.wait(10000));
}

void ReplyTimerTest::disarmingByAnotherThreadStopsIt()
{
    ReplyTimer timer;
    QSignalSpy timeouts(&timer, SIGNAL(timeout()));
    timer.arm(0);
    std::thread other([&] { timer.disarm(); });
    other.join();
    QVERIFY(!timeouts.wait(20));
    QVERIFY(!timer.isActive());
}

void ReplyTimerTest::disarmUnderWayDoesNotStopALaterArming()
{
    ReplyTimer timer;
    QSignalSpy timeouts(&timer, SIGNAL(timeout()));
    timer.arm(60000);
    std::thread other([&] { timer.disarm(); }); // its event still waits in the queue
    other.join();
    timer.arm(1);
    QVERIFY(timeouts.wait(10000));
}

void ReplyTimerTest::disarmOfAnOldArmingIsIgnored()
{
    ReplyTimer timer;
    const quint64 first = timer.arm(60000);
    const quint64 second = timer.arm(60000);
    timer.disarm(first);
    QVERIFY(timer.isArmed(second));
    QVERIFY(!timer.isArmed(first));
    timer.disarm(second);
    QVERIFY(!timer.isArmed());
}

void ReplyTimerTest::runOutArmingIsKnownWhileEmitting()
{
    ReplyTimer timer;
    quint64 runOut = 0;
    connect(&timer, &QTimer::timeout, [&] {
        runOut = timer.runOutArming();
        timer.disarm();
    });
    const quint64 arming = timer.arm(1);
    QTRY_COMPARE(runOut, arming);
    QCOMPARE(timer.runOutArming(), quint64(0));
}

void ReplyTimerTest::doesNotRunOutBeforeTheClockSaysSo()
{
    now = 1000;
    ReplyTimer::setClock(testClock);
    ReplyTimer timer;
    QSignalSpy timeouts(&timer, SIGNAL(timeout()));
    timer.arm(30000);
    now = 30999;
    timer.catchUp();
    QCoreApplication::processEvents();
    QVERIFY(timeouts.isEmpty());
    now = 31000;
    timer.catchUp();
    QTRY_VERIFY(!timeouts.isEmpty());
}

void ReplyTimerTest::busyOwnerDoesNotLengthenTheTime()
{
    now = 0;
    ReplyTimer::setClock(testClock);
    ReplyTimer timer;
    QSignalSpy timeouts(&timer, SIGNAL(timeout()));
    std::thread other([&] { timer.arm(30000); });
    other.join();
    now = 30000; // the owner comes to its events only now
    QTRY_VERIFY(!timeouts.isEmpty());
}

USSD_TEST_MAIN(ReplyTimerTest)

#include "reply_timer_test.moc"
