#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

#include "Commands.h"
#include "ExitCodes.h"
#include "Options.h"
#include "Program.h"

using namespace Cli;

namespace
{

/// Opens /dev/null for each standard stream that is closed. Otherwise, another file could receive
/// the descriptor, and a reply could, for example, be written to the message bus. /dev/null is
/// opened read-only, so that attempts to write still fail.
void reserveStandardStreams()
{
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (fcntl(stream, F_GETFD) == -1)
            open("/dev/null", O_RDONLY); // uses the lowest free descriptor, which is `stream`
    }
}

int runCommand(Program &program)
{
    switch (program.options().command) {
    case Command::Send:
        return send(program);
    case Command::Run:
        return program.options().listsFavourites ? printFavourites(program) : runFavourite(program);
    case Command::Chat:
        return chat(program);
    case Command::Status:
        return printStatus(program);
    case Command::Modems:
        return printModems(program);
    case Command::Watch:
        return watch(program);
    case Command::Cancel:
        return cancel(program);
    case Command::Help:
        program.output().line(program.options().help);
        break;
    case Command::Version:
        program.output().line("ussd " USSD_VERSION);
        break;
    }
    return EXIT_DONE;
}

/// Exits without the exit handler of the library, which waits for the library's threads and would
/// increase the running time of `ussd send` by a tenth. May be called only after the session has
/// ended and the output has been written.
void exitQuickly()
{
#ifdef USSD_EXITS_QUICKLY
    std::_Exit(EXIT_DONE);
#endif
}

int run(const Options &options)
{
    Program program(options);
    if (!options.error.empty()) {
        program.output().error("ussd: " + options.error + ".\nTry 'ussd --help'.");
        return EXIT_WRONG_USAGE;
    }
    const bool usesDevice = options.command != Command::Help &&
                            options.command != Command::Version && !options.listsFavourites;
    if (usesDevice && !program.selectDevice())
        return EXIT_WRONG_USAGE;
    const int result = runCommand(program);
    if (!program.output().finish())
        return EXIT_NOT_WRITTEN;
    const int signal = program.waits().signal();
    if (options.command == Command::Send && result == EXIT_DONE && !signal)
        exitQuickly();
    return signal ? EXIT_SIGNAL + signal : result;
}

} // namespace

int main(int argc, char **argv)
{
    reserveStandardStreams();
    std::signal(SIGPIPE, SIG_IGN);
    return run(parseOptions(argc, argv));
}
