#include "UssdTest.h"

#include <QMutex>
#include <QThread>
#include <QTimer>
#include <QWaitCondition>

#include <atomic>
#include <thread>
#include <vector>

/// Runs correct code that uses every kind of thread synchronisation in this project. The sanitizers
/// must not report any errors.
class QueuedSignalsTest : public UssdTest
{
    Q_OBJECT

signals:
    void textSent(int number, const QString &text);

private slots:
    void textOfASignalReachesTheMainThread();
    void whatWasWrittenBeforeASignalIsSeenInItsSlot();
    void whatWasWrittenBeforeAPostedEventIsSeen();
    void whatWasWrittenBeforeAQueuedCallIsSeen();
    void whatABlockingCallWroteIsSeen();
    void mutexGuardsACounter();
    void recursiveMutexMayBeTakenTwice();
    void tryLockGuardsACounter();
    void waitConditionHandsOver();
    void timedWaitGivesUpAndKeepsTheMutex();
    void mutexMayStandWhereAnotherStood();
    void whatAThreadWroteIsSeenAfterItsEnd();

    void keep(int number, const QString &text);

private:
    bool event(QEvent *event) override;

    QStringList m_texts;
    int m_plain = 0;
    int m_plainSeen = 0;
};

namespace
{
const int THREADS = 4;
const int ROUNDS = 200;

void countInThreads(const std::function<void()> &step)
{
    std::vector<std::thread> threads;
    threads.reserve(THREADS);
    for (int i = 0; i < THREADS; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < ROUNDS; ++round)
                step();
        });
    }
    for (std::thread &thread : threads)
        thread.join();
}
} // namespace

void QueuedSignalsTest::keep(int number, const QString &text)
{
    if (number >= 0)
        m_texts << text;
}

bool QueuedSignalsTest::event(QEvent *event)
{
    if (event->type() != QEvent::User)
        return UssdTest::event(event);
    m_plainSeen = m_plain;
    return true;
}

void QueuedSignalsTest::textOfASignalReachesTheMainThread()
{
    m_texts.clear();
    connect(this, SIGNAL(textSent(int, QString)), this, SLOT(keep(int, QString)));
    std::thread sender([this] {
        for (int i = 0; i < ROUNDS; ++i)
            emit textSent(i, QString::fromLatin1("reply %1").arg(i));
    });
    QTRY_COMPARE(m_texts.size(), ROUNDS);
    sender.join();
    QCOMPARE(m_texts.last(), QLatin1String("reply 199"));
}

void QueuedSignalsTest::whatWasWrittenBeforeASignalIsSeenInItsSlot()
{
    QObject receiver;
    int seen = 0;
    connect(this, &QueuedSignalsTest::textSent, &receiver, [&] { seen = m_plain; });
    std::thread sender([this] {
        m_plain = 41;
        emit textSent(-1, QString());
    });
    QTRY_COMPARE(seen, 41);
    sender.join();
}

void QueuedSignalsTest::whatWasWrittenBeforeAPostedEventIsSeen()
{
    m_plainSeen = 0;
    std::thread sender([this] {
        m_plain = 42;
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    });
    QTRY_COMPARE(m_plainSeen, 42);
    sender.join();
}

void QueuedSignalsTest::whatWasWrittenBeforeAQueuedCallIsSeen()
{
    QTimer timer;
    timer.setInterval(1);
    std::thread sender([&] {
        timer.setProperty("unrelated", 1);
        m_plain = 43;
        QMetaObject::invokeMethod(&timer, "start", Qt::QueuedConnection);
        QMetaObject::invokeMethod(
            this, [this] { m_plainSeen = m_plain; }, Qt::QueuedConnection);
    });
    QTRY_COMPARE(m_plainSeen, 43);
    sender.join();
    QVERIFY(timer.isActive());
}

void QueuedSignalsTest::whatABlockingCallWroteIsSeen()
{
    int seen = 0;
    std::atomic<bool> done(false);
    std::thread caller([&] {
        QMetaObject::invokeMethod(
            this, [this] { m_plain = 44; }, Qt::BlockingQueuedConnection);
        seen = m_plain;
        done = true;
    });
    QTRY_VERIFY(done);
    caller.join();
    QCOMPARE(seen, 44);
}

void QueuedSignalsTest::mutexGuardsACounter()
{
    QMutex mutex;
    int counter = 0;
    countInThreads([&] {
        const QMutexLocker lock(&mutex);
        ++counter;
    });
    QCOMPARE(counter, THREADS * ROUNDS);
}

void QueuedSignalsTest::recursiveMutexMayBeTakenTwice()
{
    QRecursiveMutex mutex;
    int counter = 0;
    countInThreads([&] {
        const QMutexLocker outer(&mutex);
        const QMutexLocker inner(&mutex);
        ++counter;
    });
    QCOMPARE(counter, THREADS * ROUNDS);
}

void QueuedSignalsTest::tryLockGuardsACounter()
{
    QMutex mutex;
    int counter = 0;
    countInThreads([&] {
        while (!mutex.tryLock(1))
            std::this_thread::yield();
        ++counter;
        mutex.unlock();
    });
    QCOMPARE(counter, THREADS * ROUNDS);
}

void QueuedSignalsTest::waitConditionHandsOver()
{
    QMutex mutex;
    QWaitCondition filled;
    int value = 0;
    std::thread filler([&] {
        const QMutexLocker lock(&mutex);
        value = 45;
        filled.wakeAll();
    });
    int seen = 0;
    {
        const QMutexLocker lock(&mutex);
        while (value == 0)
            filled.wait(&mutex);
        seen = value;
    }
    filler.join();
    QCOMPARE(seen, 45);
}

void QueuedSignalsTest::timedWaitGivesUpAndKeepsTheMutex()
{
    QMutex mutex;
    QWaitCondition never;
    const QMutexLocker lock(&mutex);
    QVERIFY(!never.wait(&mutex, 1));
    bool couldLock = true;
    std::thread([&] { couldLock = mutex.tryLock(); }).join();
    QVERIFY(!couldLock);
}

void QueuedSignalsTest::mutexMayStandWhereAnotherStood()
{
    for (int round = 0; round < ROUNDS; ++round) {
        QMutex first;
        QMutex second;
        // The order of locking alternates, but each round has new mutexes at the same addresses, so
        // a deadlock is not possible.
        QMutex *outer = round % 2 ? &first : &second;
        QMutex *inner = round % 2 ? &second : &first;
        const QMutexLocker outerLock(outer);
        const QMutexLocker innerLock(inner);
        m_plain = round;
    }
    QCOMPARE(m_plain, ROUNDS - 1);
}

void QueuedSignalsTest::whatAThreadWroteIsSeenAfterItsEnd()
{
    for (int round = 0; round < 20; ++round) {
        QScopedPointer<QThread> thread(QThread::create([&] { m_plain = round; }));
        thread->start();
        while (round % 2 && !thread->isFinished()) // makes wait() return immediately in odd rounds
            QThread::yieldCurrentThread();
        QVERIFY(thread->wait());
        QCOMPARE(m_plain, round);
    }
}

USSD_TEST_MAIN(QueuedSignalsTest)
#include "queued_signals_test.moc"
