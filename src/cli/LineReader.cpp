#include "LineReader.h"

#include <cerrno>

#include <unistd.h>

namespace Cli
{

namespace
{
const std::size_t LONGEST_LINE = 65536; // bytes; longer lines cannot be valid codes
}

LineReader::Result LineReader::next(std::string &line, const Waits::Condition &isInterrupted)
{
    while (!takeLine(line)) {
        if (m_hasEnded)
            return Result::End;
        if (!m_waits.untilReady(STDIN_FILENO, POLLIN, isInterrupted))
            return Result::Interrupted;
        read();
    }
    return Result::Line;
}

/// Moves the first line from the buffer to `line`. The last line of a file does not have to end
/// with a line feed, and neither does a line that is longer than LONGEST_LINE. Returns false if the
/// buffer does not contain a complete line.
bool LineReader::takeLine(std::string &line)
{
    const std::size_t end = m_buffer.find('\n');
    const bool isWhole = m_hasEnded || m_buffer.size() > LONGEST_LINE;
    if (end == std::string::npos && (!isWhole || m_buffer.empty()))
        return false;
    line = m_buffer.substr(0, end);
    m_buffer.erase(0, end == std::string::npos ? end : end + 1);
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return true;
}

void LineReader::read()
{
    char bytes[4096];
    const ssize_t size = ::read(STDIN_FILENO, bytes, sizeof bytes);
    if (size > 0)
        m_buffer.append(bytes, static_cast<std::size_t>(size));
    else if (size == 0 || (errno != EINTR && errno != EAGAIN))
        m_hasEnded = true;
}

} // namespace Cli
