#ifndef CHAINS_CHAIN_H
#define CHAINS_CHAIN_H

#include <string>
#include <vector>

#include "MenuLines.h"

namespace Chains
{

const std::size_t MOST_STEPS = 20;

/**
 * A walk through the menus of a code: the code, and the choice of each menu. A step contains the
 * words of its line, so that the key is sent only while the menu offers the same choice.
 */
struct Chain {
    std::string name;
    std::string code;
    std::vector<Choice> steps;

    /// Returns true if both chains send the same strings for the same reasons.
    bool isSameWalk(const Chain &other) const;
    /// Returns the number of strings that the chain sends: the code and the key of each step.
    std::size_t length() const { return steps.size() + 1; }
    /// Returns the code and the keys, such as "*123# › 2 › 1".
    std::string keys() const;
};

/// Returns true if the choice may be kept. A line that contains a phone number may not.
bool mayBeKept(const Choice &choice);

/// Returns true if the chain can be run: it has a name, a code and steps of the form of choices.
bool isComplete(const Chain &chain);

} // namespace Chains

#endif
