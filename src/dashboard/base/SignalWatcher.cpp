#include "SignalWatcher.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace Dashboard
{

namespace
{

const int SIGNALS[] = {SIGINT, SIGTERM, SIGHUP};

int pipeEnds[2] = {-1, -1}; // the signal handler writes to the second end

// Calls only async-signal-safe functions, because it is a signal handler.
void onSignal(int number)
{
    const int error = errno;
    const unsigned char byte = static_cast<unsigned char>(number);
    const ssize_t written = write(pipeEnds[1], &byte, sizeof byte);
    static_cast<void>(written);
    errno = error;
}

bool isIgnored(int number)
{
    struct sigaction current = {};
    return sigaction(number, nullptr, &current) == 0 && current.sa_handler == SIG_IGN;
}

void handle(int number)
{
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    if (!isIgnored(number))
        sigaction(number, &action, nullptr);
}

void stopHandling(int number)
{
    if (!isIgnored(number))
        signal(number, SIG_DFL);
}

} // namespace

SignalWatcher::SignalWatcher()
{
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    QSocketNotifier *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, SIGNAL(activated(int)), this, SLOT(readPipe()));
    for (const int number : SIGNALS)
        handle(number);
}

SignalWatcher::~SignalWatcher()
{
    for (const int number : SIGNALS)
        stopHandling(number);
    for (int &end : pipeEnds) {
        if (end >= 0)
            close(end);
        end = -1;
    }
}

void SignalWatcher::readPipe()
{
    unsigned char byte = 0;
    if (read(pipeEnds[0], &byte, sizeof byte) != sizeof byte || m_signalNumber)
        return;
    m_signalNumber = byte;
    emit received();
}

} // namespace Dashboard
