#include "WalkRecorder.h"

namespace Chains
{

void WalkRecorder::takeReply(const std::string &sent, bool isCode, bool mayKeepCode,
                             const std::string &reply, bool waitsForAnswer)
{
    if (sent.empty()) {
        if (waitsForAnswer)
            forget(); // the next answer belongs to the menu that the network has initiated
        return;
    }
    if (isCode)
        start(sent, mayKeepCode);
    else
        addStep(sent);
    m_hasEnded = !waitsForAnswer;
    m_offered = waitsForAnswer ? menuChoices(reply) : std::vector<Choice>();
}

void WalkRecorder::start(const std::string &code, bool mayKeepCode)
{
    forget();
    m_walk.code = code;
    m_isRecording = mayKeepCode;
}

void WalkRecorder::addStep(const std::string &answer)
{
    const Choice *const choice = choiceWithKey(m_offered, answer);
    const bool isOpen = m_isRecording && !m_hasEnded;
    m_isRecording = isOpen && choice && mayBeKept(*choice) && m_walk.steps.size() < MOST_STEPS;
    if (m_isRecording)
        m_walk.steps.push_back(*choice);
}

void WalkRecorder::end()
{
    m_hasEnded = true;
    m_offered.clear();
}

void WalkRecorder::forget()
{
    *this = WalkRecorder();
}

Chain WalkRecorder::finished() const
{
    return m_hasEnded ? m_walk : Chain();
}

} // namespace Chains
