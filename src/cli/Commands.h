#ifndef CLI_COMMANDS_H
#define CLI_COMMANDS_H

namespace Cli
{

class Program;

/*
 * Each of these functions executes a command and returns its exit code. Except for
 * printFavourites(), they may be called only after Program::selectDevice() has succeeded. main()
 * replaces the exit code if a signal has arrived or if writing to standard output has failed.
 */

int send(Program &program);
int runFavourite(Program &program);
int printFavourites(Program &program);
int chat(Program &program);
int printStatus(Program &program);
int printModems(Program &program);
int watch(Program &program);
int cancel(Program &program);

} // namespace Cli

#endif
