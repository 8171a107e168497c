#ifndef CHAINS_MENULINES_H
#define CHAINS_MENULINES_H

#include <string>
#include <vector>

namespace Chains
{

/** A choice in a menu: the key that the user sends, and the text that follows it in the menu. */
struct Choice {
    std::string key; // "1" to "999", "0", "00", "*" or "#", always in ASCII
    std::string text;

    bool operator==(const Choice &other) const { return key == other.key && text == other.text; }
    bool operator!=(const Choice &other) const { return !(*this == other); }
};

/**
 * Returns the choices that a menu of the network offers, in the order of the menu. Call this
 * function only if the network is waiting for an answer to `menu`, because other messages may also
 * contain lines such as "1 GB for 2 EUR". A menu that is not valid UTF-8 has no choices.
 *
 * A choice is a line of the form "1 Text", "1. Text", "1) Text", "1: Text" or "1 - Text". The keys
 * must be in ascending order. The keys 0, 00, * and # may be in any order, but must follow all
 * other keys. Returns an empty list if the order is wrong or if there is only one choice, because
 * the lines may then be ordinary text.
 */
std::vector<Choice> menuChoices(const std::string &menu);

/// Returns the choice with this key, or null if there is none.
const Choice *choiceWithKey(const std::vector<Choice> &choices, const std::string &key);

} // namespace Chains

#endif
