#ifndef CHAINS_WALKRECORDER_H
#define CHAINS_WALKRECORDER_H

#include "Chain.h"

namespace Chains
{

/**
 * Records the walk that the user takes through the menus of a code. Only choices are recorded. An
 * answer that is not a choice may be a PIN or a phone number, so the walk ends before this answer,
 * and the network asks for it again each time the chain is run.
 */
class WalkRecorder
{
public:
    /// Takes a reply. `sent` is the code or the answer that it answers; it is empty for a message
    /// that the network initiated. `mayKeepCode` is false if the code contains a number or a PIN.
    void takeReply(const std::string &sent, bool isCode, bool mayKeepCode, const std::string &reply,
                   bool waitsForAnswer);
    /// Records that the session has ended without a reply.
    void end();
    /// Forgets the walk, because it has failed or belongs to another SIM.
    void forget();

    /// Returns the walk if it has ended and can be kept; otherwise, a chain without steps.
    Chain finished() const;

private:
    void start(const std::string &code, bool mayKeepCode);
    void addStep(const std::string &answer);

    Chain m_walk;
    std::vector<Choice> m_offered; // the choices of the open menu
    bool m_isRecording = false;    // false after an answer that is not recorded
    bool m_hasEnded = false;
};

} // namespace Chains

#endif
