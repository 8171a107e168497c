#ifndef WATCHDOG_H
#define WATCHDOG_H

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

/// Ends the process with a message when a test function takes longer than $USSD_TEST_SECONDS, or 90
/// s by default. The limit is below that of CTest, so that the message names the function.
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
    std::string m_what; // the watched test function; empty when there is none
    Clock::time_point m_until;
    bool m_ending = false;
    std::thread m_thread; // the last member because the thread uses the others
};

#endif
