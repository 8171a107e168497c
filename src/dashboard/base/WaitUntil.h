#ifndef WAITUNTIL_H
#define WAITUNTIL_H

#include <functional>

/// Handles events until the condition holds, for at most so many milliseconds; asks it again after
/// each event. Returns whether it holds. GUI thread.
bool waitUntil(const std::function<bool()> &condition, int milliseconds);

#endif
