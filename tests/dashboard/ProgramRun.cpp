#include "ProgramRun.h"

namespace
{

const char DEMONSTRATION[] = "Demonstration: the network is invented; nothing is sent.\n";

} // namespace

Run finished(QProcess &process)
{
    Run result;
    if (!process.waitForFinished(100000) || process.exitStatus() != QProcess::NormalExit)
        return result;
    result.code = process.exitCode();
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.error = QString::fromUtf8(process.readAllStandardError());
    result.isDemonstration = result.error.startsWith(QLatin1String(DEMONSTRATION));
    if (result.isDemonstration)
        result.error.remove(0, int(qstrlen(DEMONSTRATION)));
    return result;
}

Run run(const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QLatin1String(PROGRAM_FILE), arguments);
    return finished(process);
}

Run run(const char *line)
{
    return run(QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts), quickNetwork());
}

QProcessEnvironment quickNetwork()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(QLatin1String(variable));
    return environment;
}

QProcessEnvironment noModem()
{
    QProcessEnvironment environment = quickNetwork();
    environment.remove(QLatin1String("TKSV_BACKEND"));
    environment.remove(QLatin1String("TKSV_SCENARIO"));
    return environment;
}
