#ifndef MODEM_CHILDPROCESS_H
#define MODEM_CHILDPROCESS_H

#include <chrono>
#include <string>
#include <sys/types.h>
#include <vector>

namespace FakeModems
{

/**
 * A program that ends together with the test, even if the test crashes. The kernel kills the
 * program when the thread that started it ends, so this thread must exist for as long as the
 * program is needed.
 */
class ChildProcess
{
public:
    ChildProcess() = default;
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// Starts the program `arguments[0]`, which is searched for in $PATH, /usr/sbin and /sbin. Its
    /// standard output and standard error are written to the file `log`. The program inherits
    /// `keptDescriptor` unless it is -1.
    bool start(const std::vector<std::string> &arguments, const std::string &log,
               int keptDescriptor = -1);
    bool isRunning();
    /// Sends SIGTERM, and SIGKILL if the process is still running after `limit`.
    void stop(std::chrono::milliseconds limit);
    /// Suspends the process with SIGSTOP until resume() is called.
    void pause();
    void resume();
    /// Sends SIGKILL and waits until the process has ended.
    void kill();

private:
    bool waitForEnd(std::chrono::milliseconds limit);
    void reap();

    pid_t m_pid = -1;
    int m_handle = -1; // becomes readable when the process has ended
};

} // namespace FakeModems

#endif
