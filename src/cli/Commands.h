#ifndef CLI_COMMANDS_H
#define CLI_COMMANDS_H

namespace Cli
{

class Program;

/*
 * The commands. The device was selected before. Each function returns the exit code, which a signal
 * or a failure of standard output overrides.
 */

int send(Program &program);
int chat(Program &program);
int printStatus(Program &program);
int printModems(Program &program);
int watch(Program &program);
int cancel(Program &program);

} // namespace Cli

#endif
