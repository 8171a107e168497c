#ifndef SYSTEMCALLS_H
#define SYSTEMCALLS_H

#include <string>
#include <vector>

/*
 * Records the calls to open(), socket() and the functions that start programs. These functions are
 * replaced in the program. Each replacement calls the original function in the C library.
 */
namespace SystemCalls
{

/// Discards the recorded calls and starts recording.
void watch();
/// Stops recording. Returns the calls in order, as "open PATH", "socket" or "run PATH".
std::vector<std::string> seen();

} // namespace SystemCalls

#endif
