#include "Output.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>

#include <unistd.h>

#include "SafeText.h"

namespace Cli
{

namespace
{

/// Writes a message to standard error. Errors are ignored, because they cannot be reported
/// anywhere.
void tell(const std::string &text)
{
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, text.data(), text.size());
}

} // namespace

Output::Output(Waits &waits, bool isQuiet) : m_waits(waits), m_isQuiet(isQuiet) {}

void Output::line(const std::string &text)
{
    write(safeText(text) + '\n');
}

void Output::line(const Json &object)
{
    write(object.text() + '\n');
}

void Output::notice(const std::string &text)
{
    if (!m_isQuiet)
        error(text);
}

void Output::error(const std::string &text)
{
    tell(safeText(text) + '\n');
}

void Output::prompt(const std::string &text)
{
    tell(safeText(text));
}

/// Writes the string in small pieces, so that the program never blocks on a full pipe. A blocking
/// write could not be interrupted by a signal, because signals are blocked and handled by Waits.
void Output::write(const std::string &text)
{
    std::size_t done = 0;
    while (!m_error && done < text.size()) {
        if (!m_waits.untilReady(STDOUT_FILENO, POLLOUT, [] { return false; }))
            return; // a signal has arrived while nothing was reading the output
        const std::size_t size = std::min<std::size_t>(text.size() - done, PIPE_BUF);
        const ssize_t written = ::write(STDOUT_FILENO, text.data() + done, size);
        if (written >= 0)
            done += static_cast<std::size_t>(written);
        else if (errno != EINTR && errno != EAGAIN)
            m_error = errno;
    }
}

bool Output::finish()
{
    if (!m_error && close(STDOUT_FILENO) != 0)
        m_error = errno;
    if (m_error)
        error(std::string("Standard output cannot be written: ") + std::strerror(m_error) + ".");
    return !m_error;
}

} // namespace Cli
