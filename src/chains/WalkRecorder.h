#ifndef CHAINS_WALKRECORDER_H
#define CHAINS_WALKRECORDER_H

#include "Chain.h"

namespace Chains
{

/**
 * Records the user's walk through the menus of the network: the code that opens the first menu, and
 * the choice made in each menu. An answer that is not a choice may be a PIN or a phone number. The
 * recorded walk therefore ends before this answer, and the user must enter the answer each time the
 * chain is run.
 */
class WalkRecorder
{
public:
    /// Records a reply. `sent` is the code or the answer to which the network has replied; it is
    /// empty for a network-initiated message. If `mayKeepCode` is false, the walk is not recorded,
    /// because the code contains a number or a PIN.
    void takeReply(const std::string &sent, bool isCode, bool mayKeepCode, const std::string &reply,
                   bool waitsForAnswer);
    /// Records that the session has ended without a reply.
    void end();
    /// Discards the recorded walk. Call this function if a command has failed or if the SIM has
    /// been replaced.
    void forget();

    /// Returns the recorded walk if the session has ended. Otherwise, or if no choice was recorded,
    /// returns a chain without steps.
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
