#include "Scenario.h"

namespace Tksv
{

namespace
{

/** A piece of a string with {placeholders}: plain text and the name that follows it, if any. */
struct TextPart {
    std::string plain;
    std::string name;
};

/// Reads the next piece of `text` at `position` and advances `position`. Returns false if a { is
/// not closed or the name after it is empty.
bool nextPart(const std::string &text, std::size_t &position, TextPart &part)
{
    const std::size_t open = text.find('{', position);
    part = TextPart{text.substr(position, open - position), std::string()};
    position = text.size();
    if (open == std::string::npos)
        return true;
    if (text.compare(open, 2, "{{") == 0) {
        part.plain += '{';
        position = open + 2;
        return true;
    }
    const std::size_t close = text.find('}', open);
    if (close == std::string::npos)
        return false;
    part.name = text.substr(open + 1, close - open - 1);
    position = close + 1;
    return !part.name.empty();
}

} // namespace

std::string expand(const std::string &text, const Placeholders &values)
{
    std::string result;
    TextPart part;
    for (std::size_t position = 0; position < text.size() && nextPart(text, position, part);) {
        result += part.plain;
        const auto value = values.find(part.name);
        if (value != values.end())
            result += value->second;
    }
    return result;
}

std::optional<std::vector<std::string>> placeholderNames(const std::string &text)
{
    std::vector<std::string> names;
    TextPart part;
    for (std::size_t position = 0; position < text.size();) {
        if (!nextPart(text, position, part))
            return std::nullopt;
        if (!part.name.empty())
            names.push_back(part.name);
    }
    return names;
}

std::string formatAmount(Amount amount, const std::string &currency)
{
    const Amount size = amount < 0 ? -amount : amount;
    const std::string cents = std::to_string(size % 100);
    const std::string number = std::to_string(size / 100) + (cents.size() < 2 ? ".0" : ".") + cents;
    return (amount < 0 ? "-" : "") + number + (currency.empty() ? "" : " " + currency);
}

} // namespace Tksv
