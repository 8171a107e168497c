#include "ChainRun.h"

#include "Words.h"

namespace Chains
{

ChainStep ChainRun::takeReply(const std::string &reply, bool waitsForAnswer)
{
    ChainStep step;
    if (m_next >= m_chain.steps.size())
        return step;
    const Choice &kept = m_chain.steps[m_next];
    step.key = kept.key;
    step.expected = kept.text;
    step.number = m_next + 2;
    if (!waitsForAnswer) {
        step.verdict = ChainStep::Verdict::NoMenu;
        return step;
    }
    const std::vector<Choice> choices = menuChoices(reply);
    const Choice *const choice = choiceWithKey(choices, kept.key);
    step.offered = choice ? choice->text : "";
    if (!choice || !areSameWords(choice->text, kept.text)) {
        step.verdict = ChainStep::Verdict::Changed;
        return step;
    }
    step.verdict = ChainStep::Verdict::Send;
    ++m_next;
    return step;
}

} // namespace Chains
