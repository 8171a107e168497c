#ifndef SYSTEMCALLS_H
#define SYSTEMCALLS_H

#include <string>
#include <vector>

/*
 * The program's own open(), socket() and the calls that start programs stand in front of those of
 * the C library: they note what is asked for, and go on to it.
 */
namespace SystemCalls
{

/// Forgets what was noted, and notes from now on.
void watch();
/// "open PATH", "socket", "run PATH", in the order in which they came; notes no more.
std::vector<std::string> seen();

} // namespace SystemCalls

#endif
