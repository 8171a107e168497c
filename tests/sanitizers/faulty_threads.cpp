#include "UssdTest.h"

#include <QMutex>

#include <thread>

/// Contains deliberate errors. CTest runs each of them separately, and expects a report from the
/// thread sanitizer.
class FaultyThreads : public UssdTest
{
    Q_OBJECT

signals:
    void sent(const QString &text);

private slots:
    void twoThreadsWriteOneInt();
    void writesAfterItsSignal();
    void readsWithoutTheMutex();
    void takesMutexesInEitherOrder();

private:
    int m_plain = 0;
};

void FaultyThreads::twoThreadsWriteOneInt()
{
    std::thread other([this] { ++m_plain; });
    ++m_plain;
    other.join();
}

// A write before the signal is emitted is synchronised, but a write after the emission is a data
// race.
void FaultyThreads::writesAfterItsSignal()
{
    int seen = -1;
    connect(this, &FaultyThreads::sent, this, [&] { seen = m_plain; });
    std::thread sender([this] {
        emit sent(QLatin1String("text"));
        m_plain = 1;
    });
    QTRY_VERIFY(seen >= 0);
    sender.join();
}

void FaultyThreads::readsWithoutTheMutex()
{
    QMutex mutex;
    std::thread writer([&] {
        const QMutexLocker lock(&mutex);
        m_plain = 1;
    });
    const int seen = m_plain;
    writer.join();
    QVERIFY(seen <= m_plain);
}

void FaultyThreads::takesMutexesInEitherOrder()
{
    QMutex first;
    QMutex second;
    std::thread([&] {
        const QMutexLocker outer(&first);
        const QMutexLocker inner(&second);
    }).join();
    const QMutexLocker outer(&second);
    const QMutexLocker inner(&first);
}

USSD_TEST_MAIN(FaultyThreads)
#include "faulty_threads.moc"
