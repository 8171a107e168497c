#ifndef THREADWATCH_H
#define THREADWATCH_H

#include <fstream>
#include <string>
#include <thread>

#include <sys/syscall.h>
#include <unistd.h>

/*
 * Tells when another thread of this process has come to a place where it waits, so that a test that
 * orders threads needs no pause that is "long enough".
 */
namespace ThreadWatch
{

typedef long ThreadId;

inline ThreadId currentThread()
{
    return syscall(SYS_gettid);
}

/// Whether the thread sleeps in the kernel, waiting for a lock, a condition or a time, or has
/// ended.
inline bool isAsleepOrGone(ThreadId thread)
{
    std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
    std::string line;
    if (!std::getline(file, line))
        return true;
    const std::size_t nameEnd = line.rfind(')'); // a name may hold blanks
    return nameEnd != std::string::npos && line.compare(nameEnd, 3, ") S") == 0;
}

/// Returns when the thread sleeps or has ended. The watchdog ends what never does.
inline void waitUntilAsleepOrGone(ThreadId thread)
{
    while (!isAsleepOrGone(thread))
        std::this_thread::yield();
}

} // namespace ThreadWatch

#endif
