#ifndef WATCHDOG_H
#define WATCHDOG_H

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

/// Ends the process with a message if a test function takes longer than $USSD_TEST_SECONDS seconds
/// (90 by default). The limit is lower than that of CTest, so that the message can contain the name
/// of the function.
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
    std::string m_what; // the current test function, or an empty string
    Clock::time_point m_until;
    bool m_ending = false;
    std::thread m_thread; // declared last, because the thread uses the other members
};

#endif
