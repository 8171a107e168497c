#include "UssdTest.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include <thread>

/// Tests the guarantees of UssdTest for correct test classes. Incorrect test classes are in
/// support_failing.cpp.
class SupportTest : public UssdTest
{
    Q_OBJECT

private slots:
    void linesOfAllThreadsAreKept();
    void clearLogForgetsLines();
    void linesOfTheTestBeforeAreGone();
    void announcedWarningPasses();
    void warningThatMayComeNeedNot();
    void linesOfThePlugInPass();
    void folderIsEmptyAndWritable();
    void folderOfTheTestBeforeIsGone();
    void drainEventsHandlesWhatIsQueuedInTurn();
    void drainEventsDeletesWhatIsDueForIt();
    void applicationHasNoDisplay();

private:
    QString m_earlierFolder;
};

void SupportTest::linesOfAllThreadsAreKept()
{
    qDebug("from the main thread");
    std::thread([] { qDebug("from another thread"); }).join();
    QCOMPARE(timesLogged("from the main thread"), 1);
    QCOMPARE(timesLogged("from another thread"), 1);
    QCOMPARE(timesLogged("thread"), 2);
}

void SupportTest::clearLogForgetsLines()
{
    qDebug("a line");
    clearLog();
    QVERIFY(logLines().isEmpty());
}

void SupportTest::linesOfTheTestBeforeAreGone()
{
    QVERIFY(logLines().isEmpty());
}

void SupportTest::announcedWarningPasses()
{
    expectWarning("of a battery");
    qWarning("the flatness of a battery");
    std::thread([] { qCritical("the end of a battery"); }).join();
    QCOMPARE(timesLogged("battery"), 2);
}

void SupportTest::warningThatMayComeNeedNot()
{
    allowWarning("that does not come");
}

void SupportTest::linesOfThePlugInPass()
{
    qWarning("12:00:00:000: ../../src/USSDUIPlugin/USSDLogic.cpp: load Enter");
    QCOMPARE(timesLogged("USSDLogic.cpp"), 1);
}

void SupportTest::folderIsEmptyAndWritable()
{
    m_earlierFolder = folder();
    QVERIFY(QDir(m_earlierFolder).isEmpty());
    const QString path = writeFile(QLatin1String("file.txt"), QByteArray("four"));
    QCOMPARE(QFileInfo(path).size(), qint64(4));
    QCOMPARE(QFileInfo(path).absolutePath(), m_earlierFolder);
}

void SupportTest::folderOfTheTestBeforeIsGone()
{
    QVERIFY(!m_earlierFolder.isEmpty());
    QVERIFY(!QFileInfo::exists(m_earlierFolder));
}

void SupportTest::drainEventsHandlesWhatIsQueuedInTurn()
{
    int reached = 0;
    QTimer::singleShot(0, this, [&] {
        QMetaObject::invokeMethod(
            this, [&] { reached = 1; }, Qt::QueuedConnection);
    });
    drainEvents();
    drainEvents();
    QCOMPARE(reached, 1);
}

void SupportTest::drainEventsDeletesWhatIsDueForIt()
{
    QPointer<QObject> object(new QObject);
    object->deleteLater();
    drainEvents();
    QVERIFY(!object);
}

void SupportTest::applicationHasNoDisplay()
{
    QCOMPARE(QGuiApplication::platformName(), QLatin1String("offscreen"));
}

USSD_TEST_MAIN(SupportTest)
#include "support_test.moc"
