#ifndef CLI_COMMANDS_H
#define CLI_COMMANDS_H

namespace Cli
{

class Program;

/*
 * Each function executes one command and returns its exit code. Program::selectDevice() must have
 * succeeded before. If a signal arrives or standard output cannot be written, the caller replaces
 * the exit code.
 */

int send(Program &program);
int chat(Program &program);
int printStatus(Program &program);
int printModems(Program &program);
int watch(Program &program);
int cancel(Program &program);

} // namespace Cli

#endif
