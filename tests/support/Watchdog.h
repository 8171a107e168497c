#ifndef WATCHDOG_H
#define WATCHDOG_H

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

/// Ends the process with a message when a test function takes too long: $USSD_TEST_SECONDS, or 90
/// s, which is less than what CTest allows, so that the message names the function.
class Watchdog
{
public:
    static Watchdog &instance();
    ~Watchdog();

    void watch(const std::string &what);
    void rest();

private:
    using Clock = std::chrono::steady_clock;

    Watchdog();
    void run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_what; // empty while nothing is watched
    Clock::time_point m_until;
    bool m_ending = false;
    std::thread m_thread; // last, since it uses all the others
};

#endif
