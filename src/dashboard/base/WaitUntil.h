#ifndef WAITUNTIL_H
#define WAITUNTIL_H

#include <functional>

namespace Dashboard
{

/// Handles events until the condition holds, for at most `milliseconds`; checks it after each
/// event. Returns whether the condition holds. GUI thread.
bool waitUntil(const std::function<bool()> &condition, int milliseconds);

} // namespace Dashboard

#endif
