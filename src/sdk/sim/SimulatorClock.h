#ifndef TKSV_INTERNAL_SIMULATORCLOCK_H
#define TKSV_INTERNAL_SIMULATORCLOCK_H

#include <chrono>

namespace Tksv
{

class Scheduler;

/**
 * The clock of simulated networks. It is either the steady system clock or a test clock, in which
 * hours can pass within seconds. The functions may be called from any thread.
 */
class SimulatorClock
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Source = Time (*)();

    static Time now();
    /// Sets the clock source, which must never run backwards. Null restores the system clock.
    static void setSource(Source source);
    /// Notifies all schedulers that the clock has jumped. Tests must call this function after they
    /// have advanced their clock.
    static void notifyJump();

private:
    friend class Scheduler;
    static void add(Scheduler *scheduler);
    static void remove(Scheduler *scheduler);
};

} // namespace Tksv

#endif
