#ifndef CHAINS_MENULINES_H
#define CHAINS_MENULINES_H

#include <string>
#include <vector>

namespace Chains
{

/** A choice of a menu: the key that the user sends, and the words of the menu after the key. */
struct Choice {
    std::string key; // "1" to "999", "0", "00", "*" or "#", always in ASCII
    std::string text;

    bool operator==(const Choice &other) const { return key == other.key && text == other.text; }
    bool operator!=(const Choice &other) const { return !(*this == other); }
};

/**
 * Returns the choices that a menu of the network offers, in the order of the menu. The menu must be
 * a message for which the network waits for an answer, because other messages may also contain
 * lines such as "1 GB for 2 EUR". Strings are in UTF-8; a menu that is not has no choices.
 *
 * A choice is a line of the form "1 Text", "1. Text", "1) Text", "1: Text" or "1 - Text". Returns
 * an empty list unless there are at least two choices and the keys are in ascending order, except
 * for the keys 0, 00, * and #, which may only follow the other keys. In this case, the program
 * cannot be certain that the lines are choices.
 */
std::vector<Choice> menuChoices(const std::string &menu);

/// Returns the choice with this key, or null if no choice has it.
const Choice *choiceWithKey(const std::vector<Choice> &choices, const std::string &key);

} // namespace Chains

#endif
