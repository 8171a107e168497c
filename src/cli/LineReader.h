#ifndef CLI_LINEREADER_H
#define CLI_LINEREADER_H

#include <string>

#include "Waits.h"

namespace Cli
{

/** Reads standard input line by line, without waiting for the end of the input. */
class LineReader
{
public:
    enum class Result { Line, End, Interrupted };

    /// `waits` must outlive the object.
    explicit LineReader(Waits &waits) : m_waits(waits) {}

    /// Waits for the next line and stores it in `line` without its line terminator. Returns
    /// Interrupted if `isInterrupted` returns true or a signal arrives first.
    Result next(std::string &line, const Waits::Condition &isInterrupted);

private:
    bool takeLine(std::string &line);
    void read();

    Waits &m_waits;
    std::string m_buffer;
    bool m_hasEnded = false;
};

} // namespace Cli

#endif
