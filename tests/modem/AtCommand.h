#ifndef MODEM_ATCOMMAND_H
#define MODEM_ATCOMMAND_H

#include <string>
#include <vector>

namespace FakeModems
{

/** A parsed AT command line (3GPP TS 27.007, chapter 4). */
struct AtCommand {
    enum Form { Execute, Read, Test, Set };

    std::string name; // examples: "+CUSD", "E0", "&C1"
    Form form = Execute;
    std::vector<std::string> values; // the values of a Set command, without quotes

    /// Returns the value at `index`, or an empty string if the command has fewer values.
    std::string value(std::size_t index) const;
};

/// Parses a command line without its leading "AT".
AtCommand parseAtCommand(const std::string &line);

/** The modem's answer to a command. */
struct AtAnswer {
    std::vector<std::string> lines;
    // The final result code, or an empty string if the modem answers later or not at all.
    std::string result = "OK";
};

AtAnswer ok();
AtAnswer info(const std::string &line);
AtAnswer error();
AtAnswer noAnswer();
/// Returns the answer "+CME ERROR: CODE". The error codes are listed in 3GPP TS 27.007, 9.2.
AtAnswer equipmentError(int code);
/// Returns the answer "+CMS ERROR: CODE". The error codes are listed in 3GPP TS 27.005, 3.2.5.
AtAnswer messageError(int code);

} // namespace FakeModems

#endif
