#ifndef PROGRAMRUN_H
#define PROGRAMRUN_H

#include <QProcess>
#include <QStringList>

/** A complete run of ussd-dashboard. */
struct Run {
    int code = -1;
    QString out;
    QString error; // without the line that announces a demonstration
    bool isDemonstration = false;
};

/// Runs the program. $PROGRAM_FILE of the test contains its path.
Run run(const QStringList &arguments, const QProcessEnvironment &environment);
/// Runs the program with arguments that are separated by single blanks.
Run run(const char *line);
/// Returns the environment of the test without a display. It selects the network quick.scenario.
QProcessEnvironment quickNetwork();
/// Returns the environment of a user without a modem, who has selected no simulated network.
QProcessEnvironment noModem();
/// Returns what the process has printed, after it has ended. The code is -1 if it crashed.
Run finished(QProcess &process);

#endif
