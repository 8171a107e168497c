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
 * Implements all waits of the program. A wait ends when its condition becomes true, when its time
 * limit expires, or when a signal arrives that ends the program. All functions except wake() must
 * be called from the main thread.
 */
class Waits
{
public:
    /// Returns true if the wait must end. The function is called after each call to wake().
    using Condition = std::function<bool()>;

    Waits();
    ~Waits();
    Waits(const Waits &) = delete;
    Waits &operator=(const Waits &) = delete;

    /// Makes the current wait evaluate its condition. May be called from any thread.
    void wake();

    /// Waits until the condition is true. Returns false if the time limit expires or a signal
    /// arrives first.
    bool until(const Condition &condition, Clock::time_point end);
    /// Waits until the condition is true, even if a signal has arrived. Returns false if the time
    /// limit expires first.
    bool untilDespiteSignal(const Condition &condition, Milliseconds limit);
    /// Waits until the file is ready for one of the poll() events in `events`, or until the
    /// condition is true. Returns true if the file is ready. Returns immediately if a signal has
    /// arrived.
    bool untilReady(int file, short events, const Condition &condition);

    /// Returns the signal that has arrived, or 0 if there is none.
    int signal() const { return m_signal; }
    /// Returns true if a signal has arrived, even if no wait has noticed it yet.
    bool isEnding();

private:
    void sleep(Clock::time_point end, pollfd &extra);
    void drain();

    Signals m_signals;
    const int m_wakeUps; // an eventfd file descriptor
    int m_signal = 0;
};

} // namespace Cli

#endif
