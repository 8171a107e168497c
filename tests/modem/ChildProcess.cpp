#include "ChildProcess.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <iterator>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace FakeModems
{

namespace
{

/// Returns the path of the program. Also searches directories for daemons, which are often missing
/// from $PATH.
std::string findProgram(const std::string &name)
{
    const char *const path = std::getenv("PATH");
    const std::string folders = std::string(path ? path : "/usr/bin:/bin") + ":/usr/sbin:/sbin";
    for (std::size_t begin = 0; begin < folders.size();) {
        const std::size_t end = std::min(folders.find(':', begin), folders.size());
        std::string candidate = folders.substr(begin, end - begin) + "/" + name;
        if (::access(candidate.c_str(), X_OK) == 0)
            return candidate;
        begin = end + 1;
    }
    return std::string();
}

/// Runs in the child process after fork(), where only async-signal-safe functions are allowed.
[[noreturn]] void become(const char *program, char *const *arguments, int log, int kept,
                         pid_t parent)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::_exit(127); // the parent had already ended when prctl() was called
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    ::dup2(log, STDOUT_FILENO);
    ::dup2(log, STDERR_FILENO);
    if (kept >= 0)
        ::fcntl(kept, F_SETFD, 0);
    ::execv(program, arguments);
    ::_exit(127);
}

} // namespace

ChildProcess::~ChildProcess()
{
    kill();
}

bool ChildProcess::start(const std::vector<std::string> &arguments, const std::string &log,
                         int keptDescriptor)
{
    const std::string program = findProgram(arguments.front());
    if (program.empty() || m_pid >= 0)
        return false;
    std::vector<char *> values;
    std::transform(arguments.begin(), arguments.end(), std::back_inserter(values),
                   [](const std::string &text) { return const_cast<char *>(text.c_str()); });
    values.push_back(nullptr);
    const int output = ::open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    const pid_t parent = ::getpid();
    m_pid = ::fork();
    if (m_pid == 0)
        become(program.c_str(), values.data(), output, keptDescriptor, parent);
    ::close(output);
    if (m_pid > 0)
        m_handle = static_cast<int>(::syscall(SYS_pidfd_open, m_pid, 0));
    return m_pid > 0 && m_handle >= 0;
}

bool ChildProcess::isRunning()
{
    return m_pid >= 0 && !waitForEnd(std::chrono::milliseconds(0));
}

bool ChildProcess::waitForEnd(std::chrono::milliseconds limit)
{
    pollfd handle = {m_handle, POLLIN, 0};
    return ::poll(&handle, 1, static_cast<int>(limit.count())) == 1;
}

void ChildProcess::stop(std::chrono::milliseconds limit)
{
    if (m_pid < 0)
        return;
    ::kill(m_pid, SIGTERM);
    if (waitForEnd(limit))
        reap();
    else
        kill();
}

void ChildProcess::pause()
{
    if (m_pid >= 0)
        ::kill(m_pid, SIGSTOP);
}

void ChildProcess::resume()
{
    if (m_pid >= 0)
        ::kill(m_pid, SIGCONT);
}

void ChildProcess::kill()
{
    if (m_pid < 0)
        return;
    ::kill(m_pid, SIGKILL);
    reap();
}

void ChildProcess::reap()
{
    ::waitpid(std::exchange(m_pid, -1), nullptr, 0);
    ::close(std::exchange(m_handle, -1));
}

} // namespace FakeModems
