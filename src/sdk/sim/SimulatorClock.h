#ifndef TKSV_INTERNAL_SIMULATORCLOCK_H
#define TKSV_INTERNAL_SIMULATORCLOCK_H

#include <chrono>

namespace Tksv
{

class Scheduler;

/**
 * The clock of simulated networks: the steady system clock, or a test clock in which hours pass
 * within seconds. The functions may be called from any thread.
 */
class SimulatorClock
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Source = Time (*)();

    static Time now();
    /// Sets another clock, which must never run backwards. Null restores the system clock.
    static void setSource(Source source);
    /// Notifies every scheduler that the clock has jumped. A test must call this function after it
    /// has advanced its clock.
    static void notifyJump();

private:
    friend class Scheduler;
    static void add(Scheduler *scheduler);
    static void remove(Scheduler *scheduler);
};

} // namespace Tksv

#endif
