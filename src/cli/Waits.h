#ifndef CLI_WAITS_H
#define CLI_WAITS_H

#include <chrono>
#include <functional>

#include <poll.h>

#include "Signals.h"

namespace Cli
{

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;

const Clock::time_point NEVER = Clock::time_point::max();

/**
 * Contains all functions in which the program waits. Except for wake(), all functions must be
 * called from the main thread. A wait ends when its condition becomes true, when its time limit
 * expires, or when a signal arrives that ends the program.
 */
class Waits
{
public:
    /// A function that returns true if the wait must end. It is called after each call of wake().
    using Condition = std::function<bool()>;

    Waits();
    ~Waits();
    Waits(const Waits &) = delete;
    Waits &operator=(const Waits &) = delete;

    /// Makes the current wait check its condition. May be called from any thread.
    void wake();

    /// Waits until the condition is true. Returns false if the time limit expires or a signal
    /// arrives first.
    bool until(const Condition &condition, Clock::time_point end);
    /// Waits until the condition is true or the time limit expires, even if a signal has arrived.
    bool untilDespiteSignal(const Condition &condition, Milliseconds limit);
    /// Waits until one of the poll() events in `events` occurs on the file, or until the condition
    /// is true. Returns true if an event has occurred. Does not wait if a signal has already
    /// arrived.
    bool untilReady(int file, short events, const Condition &condition);

    /// Returns the signal that has arrived, or 0.
    int signal() const { return m_signal; }
    /// Returns true if a signal has arrived, even if no wait has detected the signal yet.
    bool isEnding();

private:
    void sleep(Clock::time_point end, pollfd &extra);
    void drain();

    Signals m_signals;
    const int m_wakeUps; // an eventfd
    int m_signal = 0;
};

} // namespace Cli

#endif
