#ifndef CLI_OPTIONS_H
#define CLI_OPTIONS_H

#include <string>
#include <vector>

#include "Waits.h"

namespace Cli
{

enum class Command { Help, Version, Send, Chat, Status, Modems, Watch, Cancel };

/** The parsed command line. */
struct Options {
    Command command = Command::Help;
    std::vector<std::string> words; // the code and the answers
    std::string modem;
    std::string scenario;
    Milliseconds timeout = std::chrono::seconds(30);
    bool isDemo = false;
    bool isJson = false;
    bool isQuiet = false;
    bool enablesModem = false;
    bool endsForeignSession = false;

    std::string help;  // what --help prints
    std::string error; // what is wrong with the command line; empty if nothing is wrong
};

Options parseOptions(int argc, char **argv);

} // namespace Cli

#endif
