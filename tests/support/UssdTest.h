#ifndef USSDTEST_H
#define USSDTEST_H

#include "TsanEvents.h"

#include <QApplication>
#include <QObject>
#include <QScopedPointer>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QtTest>

/// Converts a Latin-1 string to a QString.
inline QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

/// Returns the content of the file, or "no file" if the file cannot be read.
QByteArray contentOf(const QString &path);

/**
 * The base class of all test classes in this project. A test function fails if Qt or the tested
 * code logs an unexpected warning. A watchdog ends test functions that hang. Each test function has
 * its own temporary folder.
 *
 * A test class inherits UssdTest and reimplements setUp() and tearDown() instead of declaring
 * init() and cleanup(). Its source file ends with USSD_TEST_MAIN(Class).
 */
class UssdTest : public QObject
{
    Q_OBJECT

public:
    /// Returns true if the slots of this base class were called for all test functions. If a
    /// subclass hides the slots, they are not called.
    bool isInOrder() const { return m_testsBegun > 0 && m_testsBegun == m_testsEnded; }

protected:
    // ---- reimplemented by test classes
    virtual void setUpClass() {}
    virtual void setUp() {}
    virtual void tearDown() {}
    virtual void tearDownClass() {}

    // ---- log lines of all threads
    /// Requires a warning that contains `part` before the test function ends.
    void expectWarning(const QString &part);
    void expectWarning(const char *part) { expectWarning(QString::fromUtf8(part)); }

    /// Allows warnings that contain `part` until the test function ends.
    void allowWarning(const QString &part);
    void allowWarning(const char *part) { allowWarning(QString::fromUtf8(part)); }

    /// Returns the messages of all types that were logged since the test function started or
    /// clearLog() was called.
    QStringList logLines() const;

    /// Returns the number of log lines that contain `part`.
    int timesLogged(const QString &part) const;
    int timesLogged(const char *part) const { return timesLogged(QString::fromUtf8(part)); }
    void clearLog();

    // ---- a folder that is created empty for each test function and deleted afterwards
    QString folder(); ///< the path, without a trailing separator
    QString writeFile(const QString &name, const QByteArray &content); ///< returns the file's path

    // ---- events
    /// Processes all queued events, including those that are queued in the meantime, and deferred
    /// deletions. Does not wait for later events.
    static void drainEvents();

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

private:
    QScopedPointer<QTemporaryDir> m_folder;
    int m_testsBegun = 0;
    int m_testsEnded = 0;
};

namespace UssdTestPrivate
{
/// Prepares the process before the application object is constructed. Selects the offscreen
/// platform and the simulator unless the environment specifies others, and sets the locale and the
/// application name.
void prepareProcess();
int finish(const UssdTest &test, int failures);
} // namespace UssdTestPrivate

template <class Test>
int ussdTestMain(int argc, char **argv)
{
    UssdTestPrivate::prepareProcess();
    TsanApplication application(argc, argv);
    Test test;
    return UssdTestPrivate::finish(test, QTest::qExec(&test, argc, argv));
}

#define USSD_TEST_MAIN(Class)                                                                      \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return ussdTestMain<Class>(argc, argv);                                                    \
    }

#endif
