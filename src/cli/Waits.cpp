#include "Waits.h"

#include <algorithm>
#include <cstdint>

#include <sys/eventfd.h>
#include <unistd.h>

namespace Cli
{

namespace
{

const pollfd NO_FILE = {-1, 0, 0};
const Milliseconds LONGEST_SLEEP = std::chrono::hours(1);

/// Returns the time-out for poll(), or -1 for NEVER. The time-out is rounded up, because poll()
/// would otherwise return too early.
int pollTimeout(Clock::time_point end)
{
    if (end == NEVER)
        return -1;
    const auto left = std::chrono::ceil<Milliseconds>(end - Clock::now());
    return static_cast<int>(std::clamp(left, Milliseconds(0), LONGEST_SLEEP).count());
}

} // namespace

Waits::Waits() : m_wakeUps(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

Waits::~Waits()
{
    close(m_wakeUps);
}

void Waits::wake()
{
    const std::uint64_t one = 1;
    // This write can fail only if a wake-up is already pending.
    [[maybe_unused]] const ssize_t written = write(m_wakeUps, &one, sizeof one);
}

bool Waits::until(const Condition &condition, Clock::time_point end)
{
    pollfd none = NO_FILE;
    while (!condition()) {
        if (m_signal || Clock::now() >= end)
            return false;
        sleep(end, none);
    }
    return true;
}

bool Waits::untilDespiteSignal(const Condition &condition, Milliseconds limit)
{
    const Clock::time_point end = Clock::now() + limit;
    pollfd none = NO_FILE;
    while (!condition()) {
        if (Clock::now() >= end)
            return false;
        sleep(end, none);
    }
    return true;
}

bool Waits::untilReady(int file, short events, const Condition &condition)
{
    pollfd polled = {file, events, 0};
    while (!condition()) {
        const bool isEnding = m_signal != 0;
        sleep(isEnding ? Clock::now() : NEVER, polled);
        if (polled.revents || isEnding)
            return polled.revents != 0;
    }
    return false;
}

bool Waits::isEnding()
{
    pollfd none = NO_FILE;
    sleep(Clock::now(), none);
    return m_signal != 0;
}

/// Sleeps until there is a wake-up, a signal or an event on the file, or until `end`. Errors on the
/// file count as events, because the next read or write operation reports them.
void Waits::sleep(Clock::time_point end, pollfd &extra)
{
    pollfd files[] = {{m_wakeUps, POLLIN, 0}, {m_signals.descriptor(), POLLIN, 0}, extra};
    if (poll(files, sizeof files / sizeof *files, pollTimeout(end)) <= 0)
        return;
    if (files[0].revents)
        drain();
    if (files[1].revents && !m_signal)
        m_signal = m_signals.take();
    extra.revents = files[2].revents;
}

void Waits::drain()
{
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t size = read(m_wakeUps, &count, sizeof count);
}

} // namespace Cli
