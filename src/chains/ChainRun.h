#ifndef CHAINS_CHAINRUN_H
#define CHAINS_CHAINRUN_H

#include "Chain.h"

namespace Chains
{

/** What a program that runs a chain must do next, depending on the network's most recent reply. */
struct ChainStep {
    enum class Verdict {
        Send,    // the menu still offers the choice; send `key`
        Done,    // all strings of the chain have been sent; the reply belongs to the last one
        NoMenu,  // the chain has more steps, but the network did not open a menu
        Changed, // the menu offers a different choice for the key, or no choice
    };

    Verdict verdict = Verdict::Done;
    std::string key;
    std::string expected;   // the text of the choice that is stored in the chain
    std::string offered;    // the text that the menu now shows for the key; empty if there is none
    std::size_t number = 0; // the number of the string to send; the code has the number 1

    bool hasStopped() const { return verdict == Verdict::NoMenu || verdict == Verdict::Changed; }
};

/**
 * Decides for each reply whether the key of a chain's next step may be sent. It may be sent only if
 * the network is waiting for an answer to a menu in which the key still has the text that is stored
 * in the chain. The class itself does not send anything.
 */
class ChainRun
{
public:
    explicit ChainRun(const Chain &chain) : m_chain(chain) {}

    const Chain &chain() const { return m_chain; }
    /// Returns the number of steps that takeReply() has permitted so far.
    std::size_t stepsSent() const { return m_next; }
    /// Returns the next step. `reply` is the reply to the string that was sent last: the code, or
    /// the key of a step.
    ChainStep takeReply(const std::string &reply, bool waitsForAnswer);

private:
    Chain m_chain;
    std::size_t m_next = 0;
};

} // namespace Chains

#endif
