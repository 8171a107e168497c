#ifndef TKSV_INTERNAL_SIMULATORCLOCK_H
#define TKSV_INTERNAL_SIMULATORCLOCK_H

#include <chrono>

namespace Tksv
{

class Scheduler;

/**
 * The clock of simulated networks: the steady system clock, or the clock of a test that lets hours
 * pass in seconds. Any thread may call.
 */
class SimulatorClock
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Source = Time (*)();

    static Time now();
    /// Sets another clock, which must never run backwards; null restores the system's clock.
    static void setSource(Source source);
    /// Tells every scheduler that the clock has jumped. Called after a test has advanced its clock.
    static void notifyJump();

private:
    friend class Scheduler;
    static void add(Scheduler *scheduler);
    static void remove(Scheduler *scheduler);
};

} // namespace Tksv

#endif
