#ifndef CLI_OUTPUT_H
#define CLI_OUTPUT_H

#include <string>

#include "Json.h"
#include "Waits.h"

namespace Cli
{

/**
 * Prints results to standard output, and notices and errors to standard error. Characters that are
 * not safe for a terminal are replaced or escaped.
 */
class Output
{
public:
    /// If `isQuiet` is true, notices are suppressed.
    Output(Waits &waits, bool isQuiet);

    void line(const std::string &text); ///< prints a line of the result
    void line(const Json &object);
    void notice(const std::string &text);
    void error(const std::string &text);
    void prompt(const std::string &text); ///< prints the text without a line feed

    /// Closes standard output. Returns false if any part of the results could not be written.
    bool finish();
    /// Returns true if writing to standard output has failed.
    bool hasFailed() const { return m_error != 0; }

private:
    void write(const std::string &text);

    Waits &m_waits;
    const bool m_isQuiet;
    int m_error = 0; // errno of the first failure on standard output
};

} // namespace Cli

#endif
