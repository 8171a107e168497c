#include "ScenarioValue.h"

#include <charconv>

#include "../base/Text.h"

namespace Tksv
{

namespace
{

const int MAX_MILLISECONDS = 24 * 60 * 60 * 1000;
/// The maximum number of digits before the decimal point, which prevents sums from overflowing.
const std::size_t MAX_MONEY_DIGITS = 9;

std::optional<int> parseInt(const std::string &text)
{
    int value = 0;
    const char *end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

std::optional<int> parseIntBetween(const std::string &text, int min, int max)
{
    const std::optional<int> value = parseInt(text);
    return value && *value >= min && *value <= max ? value : std::nullopt;
}

/// Parses an unsigned amount such as "12", "12.5" or "12.50".
std::optional<Amount> parseMoney(const std::string &text)
{
    const std::size_t point = text.find('.');
    const std::string whole = text.substr(0, point);
    std::string cents = point == std::string::npos ? "00" : text.substr(point + 1);
    if (!isDigits(whole) || !isDigits(cents) || whole.size() > MAX_MONEY_DIGITS || cents.size() > 2)
        return std::nullopt;
    cents.resize(2, '0');
    return *parseInt(whole) * Amount(100) + *parseInt(cents);
}

std::optional<Amount> parseAmount(const std::string &text)
{
    const bool negative = startsWith(text, "-");
    const std::optional<Amount> amount = parseMoney(negative ? text.substr(1) : text);
    return amount && negative ? std::optional<Amount>(-*amount) : amount;
}

} // namespace

std::string enumerate(const std::vector<std::string> &words)
{
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool isLast = i + 1 == words.size();
        text += (i == 0 ? "" : isLast ? " or " : ", ") + words[i];
    }
    return text;
}

std::string ScenarioValue::name(std::size_t maxBytes) const
{
    if (text().empty() || text().size() > maxBytes)
        expected("a text of 1 to " + std::to_string(maxBytes) + " bytes");
    return text();
}

int ScenarioValue::number(int min, int max) const
{
    const std::optional<int> value = parseIntBetween(text(), min, max);
    if (!value)
        expected("a whole number from " + std::to_string(min) + " to " + std::to_string(max));
    return value.value_or(min);
}

Milliseconds ScenarioValue::milliseconds() const
{
    const std::optional<int> value = parseIntBetween(text(), 0, MAX_MILLISECONDS);
    if (!value)
        expected("milliseconds from 0 to " + std::to_string(MAX_MILLISECONDS));
    return Milliseconds(value.value_or(0));
}

AwayTime ScenarioValue::away() const
{
    if (text() == "never")
        return std::nullopt;
    const std::optional<int> value = parseIntBetween(text(), 0, MAX_MILLISECONDS);
    if (!value)
        expected("never, or milliseconds from 0 to " + std::to_string(MAX_MILLISECONDS));
    return Milliseconds(value.value_or(0));
}

Amount ScenarioValue::amount() const
{
    const std::optional<Amount> value = parseAmount(text());
    if (!value)
        expected("an amount such as 12.50");
    return value.value_or(0);
}

std::string ScenarioValue::digits(std::size_t min, std::size_t max) const
{
    if (!isDigits(text()) || text().size() < min || text().size() > max)
        expected(std::to_string(min) + " to " + std::to_string(max) + " digits");
    return text();
}

int ScenarioValue::deviceEvent() const
{
    const Word<int> events[] = {{"6016", TKSV_DEV_EVENT_GONE}, {"6601", TKSV_DEV_EVENT_RESET}};
    return word(events);
}

void ScenarioValue::digitCount(std::size_t &min, std::size_t &max) const
{
    const std::size_t dash = text().find('-');
    const std::string last = dash == std::string::npos ? text() : text().substr(dash + 1);
    const std::optional<int> from = parseIntBetween(text().substr(0, dash), 1, MAX_CODE_DIGITS);
    const std::optional<int> to = parseIntBetween(last, from.value_or(1), MAX_CODE_DIGITS);
    if (!from || !to) {
        expected("how many digits, such as 12 or 12-16, from 1 to " +
                 std::to_string(MAX_CODE_DIGITS));
        return;
    }
    min = static_cast<std::size_t>(*from);
    max = static_cast<std::size_t>(*to);
}

void ScenarioValue::credit(Rule &rule) const
{
    if (text() == ANY_DIGITS || text() == std::string("-") + ANY_DIGITS) {
        rule.creditDigits = startsWith(text(), "-") ? -1 : 1;
        return;
    }
    const std::optional<Amount> value = parseAmount(text());
    if (!value)
        expected("an amount such as 10.00 or -2.50, or %s or -%s for the digits of the code");
    rule.credit = value.value_or(0);
}

void ScenarioValue::expected(const std::string &what) const
{
    m_complaints.add(m_entry.line,
                     m_entry.key + ": expected " + what + ", found \"" + text() + "\"");
}

} // namespace Tksv
