#ifndef WAITUNTIL_H
#define WAITUNTIL_H

#include <functional>

namespace Dashboard
{

/// Processes events until the condition is true, for at most `milliseconds`. The condition is
/// checked after each event. Returns whether the condition is true. Must be called on the GUI
/// thread.
bool waitUntil(const std::function<bool()> &condition, int milliseconds);

} // namespace Dashboard

#endif
