#include "ToolTest.h"

#include <QProcess>

int ToolTest::run(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("XDG_DATA_HOME"), folder() + QLatin1String("/data"));
    process.setProcessEnvironment(environment);
    process.start(m_program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return -1;
    m_out = process.readAllStandardOutput();
    m_error = process.readAllStandardError();
    return process.exitCode();
}

QStringList ToolTest::words(const char *blankSeparated)
{
    return QString::fromUtf8(blankSeparated).split(QLatin1Char(' '));
}
