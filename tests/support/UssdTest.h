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

/// Returns the Latin-1 text as a QString.
inline QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

/// Returns the whole content of the file, or "no file" if the file cannot be read.
QByteArray contentOf(const QString &path);

/**
 * What every test class of this project is made of. A test function fails when Qt or the code under
 * test prints a warning that nobody announced, is ended with a message when it hangs, and gets a
 * folder of its own.
 *
 * Derive from it, override setUp() and tearDown() instead of declaring init() and cleanup(), and
 * close the file with USSD_TEST_MAIN(Class).
 */
class UssdTest : public QObject
{
    Q_OBJECT

public:
    /// True when the base class's own slots ran, and no derived class has hidden them.
    bool isInOrder() const { return m_testsBegun > 0 && m_testsBegun == m_testsEnded; }

protected:
    // ---- to be overridden
    virtual void setUpClass() {}
    virtual void setUp() {}
    virtual void tearDown() {}
    virtual void tearDownClass() {}

    // ---- log lines, of any thread
    /// A warning that contains `part` has to come in this test, at least once.
    void expectWarning(const QString &part);
    void expectWarning(const char *part) { expectWarning(QString::fromUtf8(part)); }

    /// A warning that contains `part` may come in this test.
    void allowWarning(const QString &part);
    void allowWarning(const char *part) { allowWarning(QString::fromUtf8(part)); }

    /// All lines since the test function began, or since clearLog(), on any channel.
    QStringList logLines() const;

    /// How many of them contain `part`.
    int timesLogged(const QString &part) const;
    int timesLogged(const char *part) const { return timesLogged(QString::fromUtf8(part)); }
    void clearLog();

    // ---- a folder that is empty when the test function begins and gone after it
    QString folder();                                                  ///< no separator at its end
    QString writeFile(const QString &name, const QByteArray &content); ///< gives its path

    // ---- events
    /// Handles what is queued, what that queues in turn, and deferred deletions; waits for nothing.
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
/// Before the application is made: no display, fixed names and language.
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
