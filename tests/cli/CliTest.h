#ifndef CLITEST_H
#define CLITEST_H

#include "UssdTest.h"

#include <QJsonObject>
#include <QProcess>

/** The result of a finished program. */
struct Run {
    int code = -1; // the exit code; -1 if the program did not end, or if a signal ended it
    QString out;
    QString error;
};

/**
 * A `ussd` process. Its standard streams can be replaced with file descriptors of the test.
 */
class UssdProcess : public QProcess
{
    Q_OBJECT
public:
    explicit UssdProcess(const QStringList &arguments);
    ~UssdProcess() override; ///< kills the program if it is still running

    /// Replaces a standard stream of the program. Must be called before start().
    void replaceStream(int stream, int file) { m_streams.insert(stream, file); }
    /// Makes start() run the program with this signal ignored, as nohup does.
    void ignoreSignal(int signal) { m_ignoredSignal = signal; }
    void start();
    /// Waits until standard output or standard error contains the text.
    bool waitForOutput(const QString &text);
    bool waitForError(const QString &text);
    void sendSignal(int signal);
    /// Waits until the program has ended.
    Run finish();

#if QT_VERSION < 0x060000
protected:
    void setupChildProcess() override
    {
        prepareChild();
    }
#endif

private:
    void prepareChild();
    void readAll();

    QMap<int, int> m_streams;
    int m_ignoredSignal = 0;
    QString m_out;
    QString m_error;
};

/** A pipe that is full and that no process reads. A program that writes to the pipe is blocked. */
class FullPipe
{
public:
    FullPipe();
    ~FullPipe();
    FullPipe(const FullPipe &) = delete;
    FullPipe &operator=(const FullPipe &) = delete;
    int writeEnd() const { return m_ends[1]; }

private:
    int m_ends[2] = {-1, -1};
};

/** The base class of tests that run `ussd`. */
class CliTest : public UssdTest
{
protected:
    /// Runs the program and waits until it has ended.
    static Run run(const QStringList &arguments, const QByteArray &input = QByteArray());
    /// Runs the program with the arguments in `line`, which are separated by spaces.
    static Run run(const char *line);
    static QStringList words(const char *line);
};

/// Returns the JSON objects that the lines of the output contain. Returns an empty object for a
/// line that is not JSON.
QList<QJsonObject> objectsIn(const QString &output);

/// Compares the exit code. If it is wrong, prints the output of the program.
#define COMPARE_EXIT(run, expected)                                                                \
    QVERIFY2((run).code == (expected), qPrintable(QString::fromLatin1("exit code %1\n%2\n%3")      \
                                                      .arg((run).code)                             \
                                                      .arg((run).out, (run).error)))

#endif
