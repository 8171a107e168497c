#ifndef THREADWATCH_H
#define THREADWATCH_H

#include <fstream>
#include <string>
#include <thread>

#include <sys/syscall.h>
#include <unistd.h>

/*
 * Detects that another thread of this process is waiting. Tests in which threads must run in a
 * certain order therefore do not need delays.
 */
namespace ThreadWatch
{

typedef long ThreadId;

inline ThreadId currentThread()
{
    return syscall(SYS_gettid);
}

/// Returns true if the thread has ended, or is waiting for a lock, a condition or a time-out.
inline bool isAsleepOrGone(ThreadId thread)
{
    std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
    std::string line;
    if (!std::getline(file, line))
        return true;
    const std::size_t nameEnd = line.rfind(')'); // the name may contain spaces
    return nameEnd != std::string::npos && line.compare(nameEnd, 3, ") S") == 0;
}

/// Waits until the thread is waiting or has ended. If this never happens, the watchdog ends the
/// test.
inline void waitUntilAsleepOrGone(ThreadId thread)
{
    while (!isAsleepOrGone(thread))
        std::this_thread::yield();
}

} // namespace ThreadWatch

#endif
