#include "CliTest.h"

#include <csignal>

#include <fcntl.h>
#include <QJsonDocument>
#include <unistd.h>

namespace
{
const int LIMIT = 30000; // ms
}

UssdProcess::UssdProcess(const QStringList &arguments)
{
    setProgram(QLatin1String(USSD_PROGRAM));
    setArguments(arguments);
#if QT_VERSION >= 0x060000
    setChildProcessModifier([this] { prepareChild(); });
#endif
}

UssdProcess::~UssdProcess()
{
    kill();
    waitForFinished();
}

/// Called in the child process before the program is executed.
void UssdProcess::prepareChild()
{
    for (auto stream = m_streams.constBegin(); stream != m_streams.constEnd(); ++stream)
        dup2(stream.value(), stream.key());
    if (m_ignoredSignal)
        signal(m_ignoredSignal, SIG_IGN);
}

void UssdProcess::start()
{
    QProcess::start();
    waitForStarted();
}

void UssdProcess::readAll()
{
    m_out += QString::fromUtf8(readAllStandardOutput());
    m_error += QString::fromUtf8(readAllStandardError());
}

bool UssdProcess::waitForOutput(const QString &text)
{
    return QTest::qWaitFor(
        [&] {
            readAll();
            return m_out.contains(text);
        },
        LIMIT);
}

bool UssdProcess::waitForError(const QString &text)
{
    return QTest::qWaitFor(
        [&] {
            readAll();
            return m_error.contains(text);
        },
        LIMIT);
}

void UssdProcess::sendSignal(int signal)
{
    ::kill(pid_t(processId()), signal);
}

Run UssdProcess::finish()
{
    Run run;
    if (state() != NotRunning && !waitForFinished(LIMIT))
        return run;
    readAll();
    run.code = exitStatus() == NormalExit ? exitCode() : -1;
    run.out = m_out;
    run.error = m_error;
    return run;
}

FullPipe::FullPipe()
{
    if (pipe2(m_ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    const QByteArray page(4096, 'x');
    while (write(m_ends[1], page.constData(), size_t(page.size())) > 0) {
    }
    fcntl(m_ends[1], F_SETFL, fcntl(m_ends[1], F_GETFL) & ~O_NONBLOCK);
}

FullPipe::~FullPipe()
{
    close(m_ends[0]);
    close(m_ends[1]);
}

Run CliTest::run(const QStringList &arguments, const QByteArray &input)
{
    UssdProcess process(arguments);
    process.start();
    process.write(input);
    process.closeWriteChannel();
    return process.finish();
}

Run CliTest::run(const char *line)
{
    return run(words(line));
}

QStringList CliTest::words(const char *line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QList<QJsonObject> objectsIn(const QString &output)
{
    QList<QJsonObject> objects;
    for (const QString &line : output.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        objects << QJsonDocument::fromJson(line.toUtf8()).object();
    return objects;
}
