#include "Chain.h"

#include <algorithm>
#include <glib.h>

#include "Words.h"

namespace Chains
{

namespace
{

const int SHORTEST_PHONE_NUMBER = 7;       // in digits
const std::size_t LONGEST_CODE = 182;      // in bytes
const std::size_t LONGEST_TEXT = 1000;     // in bytes
const char SEPARATOR[] = " \xe2\x80\xba "; // a single angle quotation mark

bool isBetweenDigits(gunichar character)
{
    return character == ' ' || character == '-' || character == '/' || character == '(' ||
           character == ')' || character == 0xa0 || character == 0x202f;
}

bool isUsable(const std::string &text, std::size_t longest)
{
    return !text.empty() && text.size() <= longest &&
           g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr);
}

bool isCodeCharacter(char character)
{
    return g_ascii_isdigit(character) || character == '*' || character == '#';
}

bool isCode(const std::string &code)
{
    return code.size() > 1 && code.size() <= LONGEST_CODE &&
           (code.front() == '*' || code.front() == '#') && code.back() == '#' &&
           std::all_of(code.begin(), code.end(), isCodeCharacter);
}

bool isKey(const std::string &key)
{
    const bool isNumber = !key.empty() && key.size() <= 3 &&
                          std::all_of(key.begin(), key.end(),
                                      [](char character) { return g_ascii_isdigit(character); });
    return isNumber || key == "*" || key == "#";
}

} // namespace

bool Chain::isSameWalk(const Chain &other) const
{
    const auto isSameStep = [](const Choice &a, const Choice &b) {
        return a.key == b.key && areSameWords(a.text, b.text);
    };
    return code == other.code && std::equal(steps.begin(), steps.end(), other.steps.begin(),
                                            other.steps.end(), isSameStep);
}

std::string Chain::keys() const
{
    std::string keys = code;
    for (const Choice &step : steps)
        keys += SEPARATOR + step.key;
    return keys;
}

bool mayBeKept(const Choice &choice)
{
    int digits = 0;
    for (const char *at = choice.text.c_str(); *at; at = g_utf8_next_char(at)) {
        const gunichar character = g_utf8_get_char(at);
        if (g_unichar_isdigit(character))
            ++digits;
        else if (!isBetweenDigits(character))
            digits = 0;
        if (digits >= SHORTEST_PHONE_NUMBER)
            return false;
    }
    return true;
}

bool isComplete(const Chain &chain)
{
    const auto isStep = [](const Choice &step) {
        return isKey(step.key) && isUsable(step.text, LONGEST_TEXT);
    };
    return isUsable(chain.name, LONGEST_TEXT) && isCode(chain.code) && !chain.steps.empty() &&
           chain.steps.size() <= MOST_STEPS &&
           std::all_of(chain.steps.begin(), chain.steps.end(), isStep);
}

} // namespace Chains
