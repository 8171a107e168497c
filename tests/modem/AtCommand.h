#ifndef MODEM_ATCOMMAND_H
#define MODEM_ATCOMMAND_H

#include <string>
#include <vector>

namespace modem
{

/** One command line, taken apart (3GPP TS 27.007, chapter 4). */
struct AtCommand {
    enum Form { Execute, Read, Test, Set };

    std::string name; // "+CUSD", "E0", "&C1"
    Form form = Execute;
    std::vector<std::string> values; // of Set; without their quotes

    /// The value, or an empty text when there are fewer.
    std::string value(std::size_t index) const;
};

/// `line` without "AT" at its beginning.
AtCommand parseAtCommand(const std::string &line);

/** What a modem answers to a command. */
struct AtAnswer {
    std::vector<std::string> lines;
    std::string result = "OK"; // empty: no answer yet, or none at all
};

AtAnswer ok();
AtAnswer info(const std::string &line);
AtAnswer error();
AtAnswer noAnswer();
/// 3GPP TS 27.007, 9.2.
AtAnswer equipmentError(int code);
/// 3GPP TS 27.005, 3.2.5.
AtAnswer messageError(int code);

} // namespace modem

#endif
