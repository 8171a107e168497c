#include "MenuLines.h"

#include <cstdlib>
#include <glib.h>
#include <memory>

#include "Words.h"

namespace Chains
{

namespace
{

// The dot or colon after the key must not be followed by a digit. Otherwise, the line starts with
// an amount, a date or a time.
const char CHOICE[] = "(*UCP)^\\s*(\\d{1,3}|[*#])(?:\\s*[.):\\x{ff1a}\\x{3001}](?:\\s+|(?!\\d))|"
                      "\\s+[-\\x{2013}\\x{2014}]\\s+|\\s+)(\\S.*)$";

using Match = std::unique_ptr<GMatchInfo, decltype(&g_match_info_unref)>;

GRegex *choiceForm()
{
    static GRegex *const form =
        g_regex_new(CHOICE, G_REGEX_DOTALL, GRegexMatchFlags(0), nullptr); // never freed
    return form;
}

std::string captured(const GMatchInfo *match, int number)
{
    const std::unique_ptr<char, decltype(&g_free)> text(g_match_info_fetch(match, number), g_free);
    return text ? text.get() : "";
}

/// Converts decimal digits of every script to ASCII, because the network expects ASCII digits.
std::string asciiKey(const std::string &key)
{
    std::string ascii;
    for (const char *at = key.c_str(); *at; at = g_utf8_next_char(at)) {
        const int digit = g_unichar_digit_value(g_utf8_get_char(at));
        ascii += digit < 0 ? *at : static_cast<char>('0' + digit);
    }
    return ascii;
}

bool readChoice(const std::string &line, Choice &choice)
{
    const std::string plain = withoutDirectionMarks(line);
    GMatchInfo *info = nullptr;
    const bool isChoice =
        g_regex_match(choiceForm(), plain.c_str(), GRegexMatchFlags(0), &info) != FALSE;
    const Match match(info, g_match_info_unref);
    if (!isChoice)
        return false;
    choice.key = asciiKey(captured(info, 1));
    choice.text = trimmed(captured(info, 2));
    return true;
}

/// Returns true if the key belongs to the end of a menu, where the order of the keys is arbitrary.
/// Such a key usually opens the previous menu or ends the session.
bool isLastKey(const std::string &key)
{
    return key == "0" || key == "00" || key == "*" || key == "#";
}

bool followsIn(const std::vector<Choice> &choices, const Choice &next)
{
    if (choiceWithKey(choices, next.key))
        return false;
    if (isLastKey(next.key) || choices.empty())
        return true;
    const std::string &last = choices.back().key;
    return !isLastKey(last) && std::atoi(last.c_str()) < std::atoi(next.key.c_str());
}

} // namespace

const Choice *choiceWithKey(const std::vector<Choice> &choices, const std::string &key)
{
    for (const Choice &choice : choices) {
        if (choice.key == key)
            return &choice;
    }
    return nullptr;
}

std::vector<Choice> menuChoices(const std::string &menu)
{
    std::vector<Choice> choices;
    if (!g_utf8_validate(menu.data(), static_cast<gssize>(menu.size()), nullptr))
        return choices;
    for (std::size_t start = 0; start <= menu.size();) {
        const std::size_t end = std::min(menu.find('\n', start), menu.size());
        Choice choice;
        if (readChoice(menu.substr(start, end - start), choice)) {
            if (!followsIn(choices, choice))
                return {};
            choices.push_back(choice);
        }
        start = end + 1;
    }
    return choices.size() < 2 ? std::vector<Choice>() : choices;
}

} // namespace Chains
