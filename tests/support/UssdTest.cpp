#include "UssdTest.h"

#include "TestLog.h"
#include "Watchdog.h"

#include <QFile>
#include <QLocale>

#include <algorithm>
#include <cstdio>

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void UssdTest::expectWarning(const QString &part)
{
    TestLog::instance().expect(part, true);
}

void UssdTest::allowWarning(const QString &part)
{
    TestLog::instance().expect(part, false);
}

QStringList UssdTest::logLines() const
{
    return TestLog::instance().lines();
}

int UssdTest::timesLogged(const QString &part) const
{
    const QStringList lines = logLines();
    return int(std::count_if(lines.begin(), lines.end(),
                             [&](const QString &line) { return line.contains(part); }));
}

void UssdTest::clearLog()
{
    TestLog::instance().clearLines();
}

QString UssdTest::folder()
{
    if (!m_folder)
        m_folder.reset(new QTemporaryDir);
    if (!m_folder->isValid())
        qFatal("no temporary folder: %s", qPrintable(m_folder->errorString()));
    return m_folder->path();
}

QString UssdTest::writeFile(const QString &name, const QByteArray &content)
{
    QString path = folder() + QLatin1Char('/') + name;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    return path;
}

void UssdTest::drainEvents()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void UssdTest::initTestCase()
{
    TestLog::instance().takeOver();
    TestLog::instance().begin();
    setUpClass();
}

void UssdTest::init()
{
    ++m_testsBegun;
    Watchdog::instance().watch(std::string(metaObject()->className()) +
                               "::" + QTest::currentTestFunction());
    TestLog::instance().takeOver();
    TestLog::instance().begin();
    setUp();
}

void UssdTest::cleanup()
{
    tearDown();
    m_folder.reset();
    Watchdog::instance().rest();
    ++m_testsEnded;
    const QStringList unexpected = TestLog::instance().unexpectedWarnings();
    const QStringList missing = TestLog::instance().missingWarnings();
    QVERIFY2(unexpected.isEmpty(), qPrintable(QLatin1String("unexpected warning: ") +
                                              unexpected.join(QLatin1String("\n  "))));
    QVERIFY2(missing.isEmpty(), qPrintable(QLatin1String("expected warning did not come: ") +
                                           missing.join(QLatin1String("\n  "))));
}

void UssdTest::cleanupTestCase()
{
    TestLog::instance().begin();
    tearDownClass();
    const QStringList unexpected = TestLog::instance().unexpectedWarnings();
    QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join(QLatin1String("\n"))));
}

void UssdTestPrivate::prepareProcess()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Prevents a test that is started manually from using the developer's own modem.
    if (qEnvironmentVariableIsEmpty("TKSV_BACKEND"))
        qputenv("TKSV_BACKEND", "simulator");
    if (qEnvironmentVariableIsEmpty("DBUS_SYSTEM_BUS_ADDRESS"))
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    QLocale::setDefault(QLocale::c());
    QCoreApplication::setApplicationName(QLatin1String("ussd-test"));
}

int UssdTestPrivate::finish(const UssdTest &test, int failures)
{
    if (test.isInOrder() || failures != 0)
        return failures;
    std::fprintf(stderr,
                 "No test was watched: is there a test function, and does %s declare "
                 "init() or cleanup() where it should override setUp() or tearDown()?\n",
                 test.metaObject()->className());
    return 1;
}
