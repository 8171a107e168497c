#include "PipelineModel.h"

namespace
{

const int MAX_UNITS = 91;

} // namespace

int PipelineModel::send(int component, const QString &command)
{
    m_list << qMakePair(component, command);
    return m_list.count() == 1 ? handOverHead() : 0;
}

/// Sends the head of the list. On failure, removes the head without an answer; the remaining
/// entries keep waiting.
int PipelineModel::handOverHead()
{
    const QString command = m_list.first().second;
    if (command.length() > MAX_UNITS) {
        m_list.removeFirst();
        return 1;
    }
    handed << command;
    if (deviceAccepts())
        return 0;
    m_list.removeFirst();
    return 1;
}

void PipelineModel::announce(const QString &text)
{
    if (m_list.isEmpty())
        return;
    answers << Answer(m_list.takeFirst().first, text);
    if (!m_list.isEmpty())
        handOverHead();
}

void PipelineModel::deviceFailed(const QString &text)
{
    if (m_list.isEmpty())
        return;
    answers << Answer(m_list.first().first, text);
    m_list.clear();
}

void PipelineModel::clear(const std::function<bool(int)> &keep)
{
    for (int i = m_list.count() - 1; i >= 0; --i) {
        if (!keep(m_list.at(i).first))
            m_list.removeAt(i);
    }
}
