#ifndef CHAINS_CHAINRUN_H
#define CHAINS_CHAINRUN_H

#include "Chain.h"

namespace Chains
{

/** What follows from a reply to a string that the run has sent. */
struct ChainStep {
    enum class Verdict {
        Send,    // the menu still offers the choice; send `key`
        Done,    // the reply is the last one of the chain
        NoMenu,  // the network has opened no menu, although there are more steps
        Changed, // the menu offers another choice for the key, or none
    };

    Verdict verdict = Verdict::Done;
    std::string key;
    std::string expected;   // the words of the choice that was kept
    std::string offered;    // the words that now belong to the key; empty if there are none
    std::size_t number = 0; // of the string to send; the code is number 1

    bool hasStopped() const { return verdict == Verdict::NoMenu || verdict == Verdict::Changed; }
};

/**
 * Decides for each reply whether the next step of a chain may be sent. A step may be sent only if
 * the network waits for an answer to a menu in which the key stands for the same words as when the
 * chain was kept. The run sends nothing itself.
 */
class ChainRun
{
public:
    explicit ChainRun(const Chain &chain) : m_chain(chain) {}

    const Chain &chain() const { return m_chain; }
    /// Returns the number of steps that have been permitted so far.
    std::size_t stepsSent() const { return m_next; }
    /// Takes the reply to the string that was sent last: the code, or the key of a step.
    ChainStep takeReply(const std::string &reply, bool waitsForAnswer);

private:
    Chain m_chain;
    std::size_t m_next = 0;
};

} // namespace Chains

#endif
