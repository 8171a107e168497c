#include <QSignalSpy>
#include <QThread>

#include <unistd.h>

#include "UssdTest.h"
#include "window/SingleInstance.h"

using namespace Dashboard;

/**
 * Starts another instance in a separate thread, because the first instance answers in the event
 * loop.
 */
class LaterInstance : public QThread
{
public:
    explicit LaterInstance(const QByteArray &name) : m_name(name) {}
    SingleInstance::Role role = SingleInstance::First;

protected:
    void run() override { role = SingleInstance(m_name).role(); }

private:
    const QByteArray m_name;
};

class SingleInstanceTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void theFirstIsAskedToRaiseItsWindow();
    void everyLaterStartIsReported();
    void anotherSessionIsNotDisturbed();
    void afterTheEndThereIsAFirstAgain();
    void aFirstThatDoesNotAnswerBlocksNobody();
    void withoutADisplayEveryInstanceIsTheFirst();
    void theNameDependsOnTheSession();

private:
    QByteArray m_name; // unique, because tests can run in parallel
};

void SingleInstanceTest::setUp()
{
    m_name = "test-" + QByteArray::number(getpid());
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY"})
        qunsetenv(variable);
}

void SingleInstanceTest::tearDown()
{
    qunsetenv("DISPLAY");
}

void SingleInstanceTest::theFirstIsAskedToRaiseItsWindow()
{
    const SingleInstance first(m_name);
    QCOMPARE(int(first.role()), int(SingleInstance::First));
    QVERIFY(first.isListening());
    QSignalSpy raised(&first, &SingleInstance::raiseRequested);
    LaterInstance later(m_name);
    later.start();
    QTRY_VERIFY(later.isFinished());
    QCOMPARE(int(later.role), int(SingleInstance::Later));
    QCOMPARE(raised.count(), 1);
}

void SingleInstanceTest::everyLaterStartIsReported()
{
    const SingleInstance first(m_name);
    QSignalSpy raised(&first, &SingleInstance::raiseRequested);
    for (int start = 1; start <= 3; ++start) {
        LaterInstance later(m_name);
        later.start();
        QTRY_VERIFY(later.isFinished());
        QCOMPARE(int(later.role), int(SingleInstance::Later));
        QCOMPARE(raised.count(), start);
    }
}

void SingleInstanceTest::anotherSessionIsNotDisturbed()
{
    const SingleInstance first(m_name);
    QSignalSpy raised(&first, &SingleInstance::raiseRequested);
    const SingleInstance other(m_name + "-other");
    QCOMPARE(int(other.role()), int(SingleInstance::First));
    QVERIFY(other.isListening());
    drainEvents();
    QCOMPARE(raised.count(), 0);
}

void SingleInstanceTest::afterTheEndThereIsAFirstAgain()
{
    {
        const SingleInstance first(m_name);
        QVERIFY(first.isListening());
    }
    const SingleInstance second(m_name);
    QCOMPARE(int(second.role()), int(SingleInstance::First));
    QVERIFY(second.isListening());
}

// Tests that the second instance starts normally if the first instance does not answer because its
// event loop is not running.
void SingleInstanceTest::aFirstThatDoesNotAnswerBlocksNobody()
{
    const SingleInstance first(m_name);
    const SingleInstance second(m_name);
    QCOMPARE(int(second.role()), int(SingleInstance::First));
    QVERIFY(!second.isListening());
}

void SingleInstanceTest::withoutADisplayEveryInstanceIsTheFirst()
{
    QCOMPARE(SingleInstance::sessionName(QLatin1String("/a")), QByteArray());
    const SingleInstance first((QByteArray()));
    const SingleInstance second((QByteArray()));
    QCOMPARE(int(second.role()), int(SingleInstance::First));
}

void SingleInstanceTest::theNameDependsOnTheSession()
{
    const QString file = QLatin1String("/home/a/settings");
    qputenv("DISPLAY", ":1");
    const QByteArray name = SingleInstance::sessionName(file);
    QVERIFY(!name.isEmpty());
    QCOMPARE(SingleInstance::sessionName(file), name);
    QVERIFY(SingleInstance::sessionName(QLatin1String("/home/b/settings")) != name);
    qputenv("DISPLAY", ":2");
    QVERIFY(SingleInstance::sessionName(file) != name);
}

USSD_TEST_MAIN(SingleInstanceTest)
#include "single_instance_test.moc"
