#ifndef CLI_EXITCODES_H
#define CLI_EXITCODES_H

namespace Cli
{

/**
 * The exit codes of the programs that send codes. If a signal ends the program, the exit code is
 * EXIT_SIGNAL plus the number of the signal.
 */
enum ExitCode {
    EXIT_DONE = 0,
    EXIT_REFUSED = 1,       // the network or the modem refused the command
    EXIT_WRONG_USAGE = 2,   // the command line is invalid
    EXIT_NOT_READY = 3,     // there is no modem, or the modem cannot send codes
    EXIT_NO_ANSWER = 4,     // no reply arrived in time
    EXIT_IN_USE = 5,        // another program is using USSD on the modem
    EXIT_NOT_PERMITTED = 6, // the system's policy denies access to the modem
    EXIT_MENU_OPEN = 7,     // the last reply was a menu and no answer to it was given
    EXIT_NOT_WRITTEN = 8,   // writing to standard output failed
    EXIT_SIGNAL = 128,
    EXIT_CANCELLED = 130 // Ctrl-C: EXIT_SIGNAL plus SIGINT
};

} // namespace Cli

#endif
