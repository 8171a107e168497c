#ifndef PROGRAM_H
#define PROGRAM_H

namespace Dashboard
{

struct Arguments;

/** The exit codes of the program, except those of --send, which are in Cli::ExitCode. */
enum ExitCode { EXIT_GOOD = 0, EXIT_BAD = 1, EXIT_USAGE = 2, EXIT_NOT_WRITTEN = 8 };

/** The modes of the program. The functions return exit codes. */
namespace Program
{

/// Prints the error in the command-line arguments.
int complain(const Arguments &arguments);
int help();
int version();
/// Opens the dashboard and returns when it has been closed.
int openWindow(int &argc, char **argv, const Arguments &arguments);
/// Prints that the replies of --send or of the tour are invented, if the device is a simulated
/// network. The tour always uses one.
void announceDemonstration(const Arguments &arguments);
/// Sends a code without showing a window.
int send(int &argc, char **argv, const Arguments &arguments);
/// Writes the replies about the accounts to a file.
int exportAccount(int &argc, char **argv, const Arguments &arguments);
/// Runs the tour, which does not need a display.
int takeTour(int &argc, char **argv, const Arguments &arguments);

} // namespace Program

} // namespace Dashboard

#endif
