#include "Signals.h"

#include <initializer_list>
#include <pthread.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace Cli
{

namespace
{

bool isIgnored(int signal)
{
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

Signals::Signals()
{
    sigemptyset(&m_set);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (!isIgnored(signal))
            sigaddset(&m_set, signal);
    }
    pthread_sigmask(SIG_BLOCK, &m_set, nullptr);
    m_descriptor = signalfd(-1, &m_set, SFD_CLOEXEC | SFD_NONBLOCK);
}

Signals::~Signals()
{
    close(m_descriptor);
}

int Signals::take()
{
    signalfd_siginfo info = {};
    if (read(m_descriptor, &info, sizeof info) != sizeof info)
        return 0;
    pthread_sigmask(SIG_UNBLOCK, &m_set, nullptr);
    return static_cast<int>(info.ssi_signo);
}

} // namespace Cli
