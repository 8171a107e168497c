#ifndef CLITEST_H
#define CLITEST_H

#include "UssdTest.h"

#include <QJsonObject>
#include <QProcess>

/** The result of a finished program. */
struct Run {
    int code = -1; // the exit code; -1 if the program is still running or was ended by a signal
    QString out;
    QString error;
};

/**
 * A `ussd` process. A test can replace the standard streams of the process with file descriptors.
 */
class UssdProcess : public QProcess
{
    Q_OBJECT
public:
    explicit UssdProcess(const QStringList &arguments);
    ~UssdProcess() override; ///< kills the program if it is still running

    /// Replaces a standard stream of the program with a file descriptor. Must be called before
    /// start().
    void replaceStream(int stream, int file) { m_streams.insert(stream, file); }
    /// Makes start() run the program with this signal ignored, as nohup does with SIGHUP.
    void ignoreSignal(int signal) { m_ignoredSignal = signal; }
    void start();
    /// Waits until the string appears on standard output or standard error.
    bool waitForOutput(const QString &text);
    bool waitForError(const QString &text);
    void sendSignal(int signal);
    /// Waits until the program has ended and returns its result.
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

/** A pipe that is full and is never read. A program that writes to the pipe blocks. */
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

/** The base class for tests that run `ussd`. */
class CliTest : public UssdTest
{
protected:
    /// Runs the program and waits until it has ended.
    static Run run(const QStringList &arguments, const QByteArray &input = QByteArray());
    /// Runs the program with the arguments in `line`, which are separated by spaces.
    static Run run(const char *line);
    static QStringList words(const char *line);
};

/// Returns one JSON object for each line of the output. If a line is not JSON, its object is empty.
QList<QJsonObject> objectsIn(const QString &output);

/// Compares the exit code. If it differs, prints the output of the program.
#define COMPARE_EXIT(run, expected)                                                                \
    QVERIFY2((run).code == (expected), qPrintable(QString::fromLatin1("exit code %1\n%2\n%3")      \
                                                      .arg((run).code)                             \
                                                      .arg((run).out, (run).error)))

#endif
