#ifndef CLI_SIGNALS_H
#define CLI_SIGNALS_H

#include <csignal>

namespace Cli
{

/**
 * The signals that end the program: SIGINT, SIGTERM and SIGHUP. They are blocked and arrive through
 * a file descriptor, so that no code runs in a signal handler. A signal that was ignored when the
 * program started stays ignored, as nohup requires.
 */
class Signals
{
public:
    /// Must be created before the program has a second thread, because a new thread inherits the
    /// blocked signals.
    Signals();
    ~Signals();
    Signals(const Signals &) = delete;
    Signals &operator=(const Signals &) = delete;

    /// Returns the descriptor that becomes readable when a signal has arrived.
    int descriptor() const { return m_descriptor; }
    /// Returns the signal that has arrived, or 0, and unblocks the signals. The next signal
    /// therefore ends the program at once.
    int take();

private:
    sigset_t m_set;
    int m_descriptor;
};

} // namespace Cli

#endif
