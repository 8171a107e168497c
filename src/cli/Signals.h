#ifndef CLI_SIGNALS_H
#define CLI_SIGNALS_H

#include <csignal>

namespace Cli
{

/**
 * Receives SIGINT, SIGTERM and SIGHUP, which end the program. The signals are blocked and read from
 * a file descriptor, so that no code has to run in a signal handler. Signals that were ignored when
 * the program was started remain ignored, as nohup requires.
 */
class Signals
{
public:
    /// Blocks the signals. Must be called before any thread is started, because threads inherit the
    /// signal mask.
    Signals();
    ~Signals();
    Signals(const Signals &) = delete;
    Signals &operator=(const Signals &) = delete;

    /// Returns a file descriptor that becomes readable when a signal arrives.
    int descriptor() const { return m_descriptor; }
    /// Returns the signal that has arrived, or 0 if there is none. Unblocks the signals, so that
    /// another signal ends the program immediately.
    int take();

private:
    sigset_t m_set;
    int m_descriptor;
};

} // namespace Cli

#endif
