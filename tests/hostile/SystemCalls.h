#ifndef SYSTEMCALLS_H
#define SYSTEMCALLS_H

#include <string>
#include <vector>

/*
 * Records calls of open(), socket() and the functions that start programs. The definitions in the
 * program replace those of the C library, which they then call.
 */
namespace SystemCalls
{

/// Discards the recorded calls and starts recording.
void watch();
/// Stops recording and returns the calls in order, as "open PATH", "socket" or "run PATH".
std::vector<std::string> seen();

} // namespace SystemCalls

#endif
