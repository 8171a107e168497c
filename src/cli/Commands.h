#ifndef CLI_COMMANDS_H
#define CLI_COMMANDS_H

namespace Cli
{

class Program;

/*
 * One function for each command. selectDevice() must have succeeded. Each function returns the exit
 * code; if a signal arrives or standard output fails, the caller returns another one.
 */

int send(Program &program);
int chat(Program &program);
int printStatus(Program &program);
int printModems(Program &program);
int watch(Program &program);
int cancel(Program &program);

} // namespace Cli

#endif
