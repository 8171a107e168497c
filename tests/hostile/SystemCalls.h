#ifndef SYSTEMCALLS_H
#define SYSTEMCALLS_H

#include <string>
#include <vector>

/*
 * Records calls of open(), socket() and the functions that start programs. The program's own
 * definitions of these functions replace those of the C library, which they call.
 */
namespace SystemCalls
{

/// Discards the record and starts recording.
void watch();
/// Stops recording and returns the calls in their order, as "open PATH", "socket" or "run PATH".
std::vector<std::string> seen();

} // namespace SystemCalls

#endif
