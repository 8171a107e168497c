#include "CommandQueue.h"

CommandQueue::CommandQueue()
{
    m_marks.current = 1;
    m_marks.sent = 0;
    m_marks.handed = 0;
    m_marks.claimed = 0;
}

bool CommandQueue::isOpenHead(quint64 number) const
{
    return m_marks.current == number && m_marks.claimed != number;
}

void CommandQueue::append(const USSDCmdOrResp &command)
{
    m_commands.append(command);
}

CommandQueue::Claim CommandQueue::claimHead(Head &head, quint64 number)
{
    if (m_commands.isEmpty()) {
        head.number = m_marks.current - 1;
        return Empty;
    }
    if (m_marks.claimed == m_marks.current)
        return ClaimedByOther;
    if (number != 0 && number != m_marks.current)
        return ClaimedByOther;
    m_marks.claimed = m_marks.current;
    head.number = m_marks.current;
    head.command = m_commands.first();
    return Claimed;
}

CommandQueue::Claim CommandQueue::claimHeadInFlight(Head &head, quint64 number)
{
    const bool isMarked = !m_commands.isEmpty() && m_marks.sent == m_marks.current;
    if (!isMarked || m_marks.handed == m_marks.current || m_marks.claimed == m_marks.current)
        return claimHead(head, number);
    head.number = m_marks.current - 1;
    return WaitsForHandOver;
}

/// Marks the head as sent, so that it is sent only once. This is necessary because a command can
/// become the head, and be sent by another thread, before the thread that appended it checks the
/// queue.
bool CommandQueue::markHeadSent(Head &head)
{
    if (m_commands.isEmpty() || m_marks.sent == m_marks.current)
        return false;
    m_marks.sent = m_marks.current;
    head.number = m_marks.current;
    head.command = m_commands.first();
    return true;
}

bool CommandQueue::startHandOver(quint64 number)
{
    if (!isOpenHead(number))
        return false;
    m_marks.handed = number;
    return true;
}

void CommandQueue::removeHead(quint64 number)
{
    if (m_marks.current != number || m_commands.isEmpty())
        return;
    m_commands.removeFirst();
    ++m_marks.current;
}

void CommandQueue::clear()
{
    if (m_commands.isEmpty())
        return;
    m_commands.clear();
    ++m_marks.current;
}

void CommandQueue::keepOnly(bool (*keep)(const USSDCmdOrResp &))
{
    QList<USSDCmdOrResp> kept;
    for (int i = 0; i < m_commands.count(); ++i) {
        if (keep(m_commands.at(i)))
            kept.append(m_commands.at(i));
        else if (i == 0)
            ++m_marks.current;
    }
    m_commands = kept;
}
