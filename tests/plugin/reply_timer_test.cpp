#include "UssdTest.h"

#include <atomic>
#include <chrono>
#include <thread>

#include <QSignalSpy>

#include "requests/ReplyTimer.h"

namespace
{

std::atomic<qint64> now(0);

qint64 testClock()
{
    return now;
}

/// Counts the events that the timer receives in its owner's thread.
class CountingTimer : public ReplyTimer
{
public:
    bool event(QEvent *event) override
    {
        ++events;
        return ReplyTimer::event(event);
    }
    int events = 0;
};

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
    void answersInTimeCostTheOwnerNoEvent();
    void laterArmingRunsOutAtItsOwnTime();
    void shorterArmingIsNotHeldUpByTheClockOfALongerOne();
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
    QTRY_VERIFY(!timer.isActive()); // the timer has fired
    QVERIFY(timeouts.isEmpty());
}

void ReplyTimerTest::disarmUnderWayDoesNotStopALaterArming()
{
    ReplyTimer timer;
    QSignalSpy timeouts(&timer, SIGNAL(timeout()));
    timer.arm(60000);
    std::thread other([&] { timer.disarm(); }); // posts an event that is processed later
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
    // The owner has not processed any events until now.
    now = 30000;
    QTRY_VERIFY(!timeouts.isEmpty());
}

void ReplyTimerTest::answersInTimeCostTheOwnerNoEvent()
{
    CountingTimer timer;
    timer.arm(60000);
    std::thread other([&] {
        for (int i = 0; i < 100; ++i) {
            timer.disarm();
            timer.arm(60000);
        }
    });
    other.join();
    QCoreApplication::processEvents();
    QCOMPARE(timer.events, 0);
    QVERIFY(timer.isArmed());
}

void ReplyTimerTest::laterArmingRunsOutAtItsOwnTime()
{
    ReplyTimer timer;
    QSignalSpy timeouts(&timer, SIGNAL(timeout()));
    const auto start = std::chrono::steady_clock::now();
    timer.arm(1);
    std::thread other([&] {
        timer.disarm();
        timer.arm(40); // must not be affected by the first time-out
    });
    other.join();
    QVERIFY(timeouts.wait(10000));
    // The clock has a resolution of one millisecond, so the measured time may be up to one
    // millisecond too short.
    QVERIFY(std::chrono::steady_clock::now() - start >= std::chrono::milliseconds(40 - 1));
    QCOMPARE(timeouts.count(), 1);
}

void ReplyTimerTest::shorterArmingIsNotHeldUpByTheClockOfALongerOne()
{
    now = 0;
    ReplyTimer::setClock(testClock);
    ReplyTimer timer;
    QSignalSpy timeouts(&timer, SIGNAL(timeout()));
    timer.arm(60000);
    // According to the clock, the time-out has expired, but the timer has not fired yet.
    now = 100000;
    std::thread other([&] {
        timer.disarm();
        timer.arm(0);
    });
    other.join();
    QTRY_VERIFY(!timeouts.isEmpty());
}

USSD_TEST_MAIN(ReplyTimerTest)

#include "reply_timer_test.moc"
