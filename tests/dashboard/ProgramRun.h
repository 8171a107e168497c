#ifndef PROGRAMRUN_H
#define PROGRAMRUN_H

#include <QProcess>
#include <QStringList>

/** The result of a complete run of ussd-dashboard. */
struct Run {
    int code = -1;
    QString out;
    QString error; // without the line that announces the demonstration
    bool isDemonstration = false;
};

/// Runs the program whose path is in the $PROGRAM_FILE environment variable of the test.
Run run(const QStringList &arguments, const QProcessEnvironment &environment);
/// Runs the program. The arguments are separated by single spaces.
Run run(const char *line);
/// Returns the environment for a run without a display and with the simulated network of
/// quick.scenario.
QProcessEnvironment quickNetwork();
/// Returns the environment for a run without a modem and without a simulated network.
QProcessEnvironment noModem();
/// Waits until the process has ended and returns its output. The exit code is -1 if it crashed.
Run finished(QProcess &process);

#endif
