#ifndef CLI_OPTIONS_H
#define CLI_OPTIONS_H

#include <string>
#include <vector>

#include "Waits.h"

namespace Cli
{

enum class Command { Help, Version, Send, Run, Chat, Status, Modems, Watch, Cancel };

/** The parsed command line. */
struct Options {
    Command command = Command::Help;
    std::vector<std::string> words; // the code or the favourite, and the answers
    std::string modem;
    std::string scenario;
    Milliseconds timeout = std::chrono::seconds(30);
    bool isDemo = false;
    bool isJson = false;
    bool isQuiet = false;
    bool enablesModem = false;
    bool endsForeignSession = false;
    bool listsFavourites = false;

    std::string help;  // the text to print for --help
    std::string error; // the error message; empty if the command line is valid
};

Options parseOptions(int argc, char **argv);

} // namespace Cli

#endif
