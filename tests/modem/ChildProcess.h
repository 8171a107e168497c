#ifndef MODEM_CHILDPROCESS_H
#define MODEM_CHILDPROCESS_H

#include <chrono>
#include <string>
#include <sys/types.h>
#include <vector>

namespace modem
{

/**
 * A program that ends with us, also when we crash. The kernel ends it with the thread that started
 * it: start it from one that stays.
 */
class ChildProcess
{
public:
    ChildProcess() = default;
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// `arguments[0]` is the program, looked for in $PATH and /usr/sbin; output and errors go to
    /// the file `log`. `keptDescriptor` (or -1) stays open in it.
    bool start(const std::vector<std::string> &arguments, const std::string &log,
               int keptDescriptor = -1);
    bool isRunning();
    /// SIGTERM, and SIGKILL when that is not obeyed within `limit`.
    void stop(std::chrono::milliseconds limit);
    /// SIGSTOP: it hangs until resume().
    void pause();
    void resume();
    /// SIGKILL; returns when the process has ended.
    void kill();

private:
    bool waitForEnd(std::chrono::milliseconds limit);
    void reap();

    pid_t m_pid = -1;
    int m_handle = -1; // readable when the process has ended
};

} // namespace modem

#endif
