#ifndef CLI_OUTPUT_H
#define CLI_OUTPUT_H

#include <string>

#include "Json.h"
#include "Waits.h"

namespace Cli
{

/**
 * Prints results to standard output, and prints notices and errors to standard error. Replaces or
 * escapes all characters that are unsafe for a terminal.
 */
class Output
{
public:
    /// If `isQuiet` is true, notices are not printed.
    Output(Waits &waits, bool isQuiet);

    void line(const std::string &text); ///< prints a line of the result
    void line(const Json &object);
    void notice(const std::string &text);
    void error(const std::string &text);
    void prompt(const std::string &text); ///< prints the text without a line feed

    /// Closes standard output. Returns false if any of the results could not be written.
    bool finish();
    /// Returns true if an error has occurred while writing to standard output.
    bool hasFailed() const { return m_error != 0; }

private:
    void write(const std::string &text);

    Waits &m_waits;
    const bool m_isQuiet;
    int m_error = 0; // the errno of the first error on standard output
};

} // namespace Cli

#endif
