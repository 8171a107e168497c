#ifndef CLI_SIGNALS_H
#define CLI_SIGNALS_H

#include <csignal>

namespace Cli
{

/**
 * Receives the signals that end the program: SIGINT, SIGTERM and SIGHUP. The signals are blocked
 * and are read from a file descriptor, so that no code runs in a signal handler. A signal that was
 * ignored when the program started is still ignored, as nohup requires.
 */
class Signals
{
public:
    /// Blocks the signals. Must be called before the program starts any thread, because a new
    /// thread inherits the blocked signals.
    Signals();
    ~Signals();
    Signals(const Signals &) = delete;
    Signals &operator=(const Signals &) = delete;

    /// Returns the descriptor that becomes readable when a signal has arrived.
    int descriptor() const { return m_descriptor; }
    /// Returns the signal that has arrived, or 0 if there is none. Unblocks the signals, so that
    /// the next signal ends the program at once.
    int take();

private:
    sigset_t m_set;
    int m_descriptor;
};

} // namespace Cli

#endif
