#ifndef TKSV_INTERNAL_SIMULATORCLOCK_H
#define TKSV_INTERNAL_SIMULATORCLOCK_H

#include <chrono>

namespace tksv
{

class Scheduler;

/**
 * The time that simulated networks go by: the steady system clock, unless a test that has hours
 * pass in seconds puts another one in its place. Any thread.
 */
class SimulatorClock
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Source = Time (*)();

    static Time now();
    /// Takes another clock, which never goes back; null restores the system's.
    static void setSource(Source source);
    /// Has every scheduler look at the clock again; to be called after a replaced clock has jumped.
    static void tellOfJump();

private:
    friend class Scheduler;
    static void add(Scheduler *scheduler);
    static void remove(Scheduler *scheduler);
};

} // namespace tksv

#endif
