#ifndef PROGRAM_H
#define PROGRAM_H

namespace Dashboard
{

struct Arguments;

/** The exit codes of the program, except those of --send, which are in Cli::ExitCode. */
enum ExitCode { EXIT_GOOD = 0, EXIT_BAD = 1, EXIT_USAGE = 2, EXIT_NOT_WRITTEN = 8 };

/** The modes of the program. Functions that return an int return the exit code. */
namespace Program
{

/// Prints the error in the command-line arguments. Returns EXIT_USAGE.
int complain(const Arguments &arguments);
int help();
int version();
/// Opens the dashboard and returns when it has been closed.
int openWindow(int &argc, char **argv, const Arguments &arguments);
/// If the device is a simulated network, prints a notice that the replies are invented. Used with
/// --send and with the tour, which always uses a simulated network.
void announceDemonstration(const Arguments &arguments);
/// Sends a code without showing a window.
int send(int &argc, char **argv, const Arguments &arguments);
/// Writes the stored account data to a file.
int exportAccount(int &argc, char **argv, const Arguments &arguments);
/// Runs the tour, which takes pictures of all windows and does not require a display.
int takeTour(int &argc, char **argv, const Arguments &arguments);

} // namespace Program

} // namespace Dashboard

#endif
