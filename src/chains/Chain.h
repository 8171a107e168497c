#ifndef CHAINS_CHAIN_H
#define CHAINS_CHAIN_H

#include <string>
#include <vector>

#include "MenuLines.h"

namespace Chains
{

const std::size_t MOST_STEPS = 20;

/**
 * A named series of menu choices that can be repeated: the code that opens the first menu, and the
 * choice made in each menu. Each step contains the key to send, such as "2", and the text of its
 * menu line. The key is sent only if the menu still shows the same text for it.
 */
struct Chain {
    std::string name;
    std::string code;
    std::vector<Choice> steps;

    /// Returns true if both chains have the same code, and the same keys and menu lines in each
    /// step. The names of the chains may differ.
    bool isSameWalk(const Chain &other) const;
    /// Returns the number of strings that the chain sends: the code and the key of each step.
    std::size_t length() const { return steps.size() + 1; }
    /// Returns the code and the keys, such as "*123# › 2 › 1".
    std::string keys() const;
};

/// Returns true if the choice may be stored in a chain. A choice must not be stored if its menu
/// line contains a phone number.
bool mayBeKept(const Choice &choice);

/// Returns true if the chain can be run: it has a name, a code and at least one step, and every
/// step has the form of a menu choice.
bool isComplete(const Chain &chain);

} // namespace Chains

#endif
