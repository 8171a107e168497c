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

/// Converts the Latin-1 string to a QString.
inline QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

/// Returns the content of the file, or "no file" if the file cannot be read.
QByteArray contentOf(const QString &path);

/**
 * The base class of all test classes of this project. A test function fails if Qt or the code under
 * test prints an unexpected warning. A watchdog ends a test function that hangs. Each test function
 * has its own folder.
 *
 * A test class derives from UssdTest and overrides setUp() and tearDown() instead of declaring
 * init() and cleanup(). Its file ends with USSD_TEST_MAIN(Class).
 */
class UssdTest : public QObject
{
    Q_OBJECT

public:
    /// Returns true if all slots of the base class were called. They are not called if a derived
    /// class hides them.
    bool isInOrder() const { return m_testsBegun > 0 && m_testsBegun == m_testsEnded; }

protected:
    // ---- to be overridden
    virtual void setUpClass() {}
    virtual void setUp() {}
    virtual void tearDown() {}
    virtual void tearDownClass() {}

    // ---- log lines of all threads
    void expectWarning(const QString &part);
    void expectWarning(const char *part) { expectWarning(QString::fromUtf8(part)); }

    /// Allows warnings that contain `part` in the current test function.
    void allowWarning(const QString &part);
    void allowWarning(const char *part) { allowWarning(QString::fromUtf8(part)); }

    /// Returns all lines logged since the test function started or clearLog() was called, on any
    /// channel.
    QStringList logLines() const;

    /// Returns the number of log lines that contain `part`.
    int timesLogged(const QString &part) const;
    int timesLogged(const char *part) const { return timesLogged(QString::fromUtf8(part)); }
    void clearLog();

    // ---- a folder that is empty at the start of each test function and deleted at its end
    QString folder();                                                  ///< no trailing separator
    QString writeFile(const QString &name, const QByteArray &content); ///< returns the file's path

    // ---- events
    /// Handles all queued events, all events that they queue in turn, and deferred deletions. Does
    /// not wait for later events.
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
/// Prepares the process before the application is constructed: no display, fixed names, fixed
/// language.
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
