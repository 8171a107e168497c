#include "Watchdog.h"

#include <cstdio>
#include <cstdlib>

namespace
{
std::chrono::seconds allowedTime()
{
    const char *text = std::getenv("USSD_TEST_SECONDS");
    const long seconds = text ? std::strtol(text, nullptr, 10) : 0;
    return std::chrono::seconds(seconds > 0 ? seconds : 90);
}
} // namespace

Watchdog &Watchdog::instance()
{
    static Watchdog watchdog;
    return watchdog;
}

Watchdog::Watchdog() : m_thread([this] { run(); }) {}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
        m_changed.notify_all();
    }
    m_thread.join();
}

void Watchdog::watch(const std::string &what)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_what = what;
    m_until = Clock::now() + allowedTime();
    m_changed.notify_all();
}

void Watchdog::rest()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_what.clear();
    m_changed.notify_all();
}

void Watchdog::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_ending) {
        if (m_what.empty()) {
            m_changed.wait(lock);
        } else if (Clock::now() < m_until) {
            m_changed.wait_until(lock, m_until);
        } else {
            std::fprintf(stderr, "watchdog: %s hangs; ending the test\n", m_what.c_str());
            std::abort();
        }
    }
}
