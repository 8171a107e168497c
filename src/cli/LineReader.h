#ifndef CLI_LINEREADER_H
#define CLI_LINEREADER_H

#include <string>

#include "Waits.h"

namespace Cli
{

/** Reads the lines of standard input as they arrive. */
class LineReader
{
public:
    enum class Result { Line, End, Interrupted };

    /// `waits` must outlive the object.
    explicit LineReader(Waits &waits) : m_waits(waits) {}

    /// Waits for the next line and copies it without its line end. Returns Interrupted when
    /// `isInterrupted` becomes true or a signal arrives.
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
