#ifndef PROGRAM_H
#define PROGRAM_H

struct Arguments;

/** What the program ends with. */
enum ExitCode { EXIT_GOOD = 0, EXIT_BAD = 1, EXIT_USAGE = 2 };

/** The program's ways of running; each returns an ExitCode. */
namespace Program
{

/// Says what is wrong with the arguments.
int complain(const Arguments &arguments);
int help();
int version();
/// Opens the dashboard, and returns when it is closed.
int openWindow(int &argc, char **argv, const Arguments &arguments);
/// Sends a code without any window.
int send(int &argc, char **argv, const Arguments &arguments);
/// Takes the tour without any display.
int takeTour(int &argc, char **argv, const Arguments &arguments);

} // namespace Program

#endif
