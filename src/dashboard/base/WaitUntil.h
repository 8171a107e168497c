#ifndef WAITUNTIL_H
#define WAITUNTIL_H

#include <functional>

namespace Dashboard
{

/// Processes events until the condition is true or `milliseconds` have elapsed. The condition is
/// checked after each event. Returns true if the condition is true. Must be called from the GUI
/// thread.
bool waitUntil(const std::function<bool()> &condition, int milliseconds);

} // namespace Dashboard

#endif
