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
 * The waits of the program, which all take place on the main thread. A wait ends when its condition
 * is true, when its time is over, or when a signal arrives that ends the program.
 */
class Waits
{
public:
    /// Returns true if the wait is over. It is called after each call of wake().
    using Condition = std::function<bool()>;

    Waits();
    ~Waits();
    Waits(const Waits &) = delete;
    Waits &operator=(const Waits &) = delete;

    /// Lets the current wait check its condition. May be called from any thread.
    void wake();

    /// Waits until the condition is true. Returns false if the time is over or a signal has
    /// arrived.
    bool until(const Condition &condition, Clock::time_point end);
    /// Waits in the same way, even if a signal has already arrived.
    bool untilDespiteSignal(const Condition &condition, Milliseconds limit);
    /// Waits until `events` of poll() occur on the file, or until the condition is true. Returns
    /// true if the events have occurred. After a signal has arrived, the function does not wait.
    bool untilReady(int file, short events, const Condition &condition);

    /// Returns the signal that has arrived, or 0.
    int signal() const { return m_signal; }
    /// Returns true if a signal has arrived, even if no wait has noticed the signal yet.
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
