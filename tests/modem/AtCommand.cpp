#include "AtCommand.h"

namespace FakeModems
{

namespace
{

std::vector<std::string> splitValues(const std::string &text)
{
    std::vector<std::string> values(1);
    bool quoted = false;
    for (const char c : text) {
        if (c == '"')
            quoted = !quoted;
        else if (c == ',' && !quoted)
            values.emplace_back();
        else
            values.back() += c;
    }
    return values;
}

} // namespace

std::string AtCommand::value(std::size_t index) const
{
    return index < values.size() ? values[index] : std::string();
}

AtCommand parseAtCommand(const std::string &line)
{
    AtCommand command;
    const std::size_t end = line.find_first_of("=?");
    command.name = line.substr(0, end);
    if (end == std::string::npos)
        return command;
    const std::string rest = line.substr(end);
    if (rest == "?")
        command.form = AtCommand::Read;
    else if (rest == "=?")
        command.form = AtCommand::Test;
    else {
        command.form = AtCommand::Set;
        command.values = splitValues(rest.substr(1));
    }
    return command;
}

AtAnswer ok()
{
    return AtAnswer();
}

AtAnswer info(const std::string &line)
{
    return AtAnswer{{line}, "OK"};
}

AtAnswer error()
{
    return AtAnswer{{}, "ERROR"};
}

AtAnswer noAnswer()
{
    return AtAnswer{{}, std::string()};
}

AtAnswer equipmentError(int code)
{
    return AtAnswer{{}, "+CME ERROR: " + std::to_string(code)};
}

AtAnswer messageError(int code)
{
    return AtAnswer{{}, "+CMS ERROR: " + std::to_string(code)};
}

} // namespace FakeModems
