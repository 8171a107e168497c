#include "Misbehaviour.h"

namespace FakeModems
{

bool Misbehaviours::take(const std::string &line, Misbehaviour &found)
{
    for (auto entry = m_list.begin(); entry != m_list.end(); ++entry) {
        if (line.compare(0, entry->start.size(), entry->start) != 0)
            continue;
        found = *entry;
        if (entry->times != ALWAYS && --entry->times == 0)
            m_list.erase(entry);
        return true;
    }
    return false;
}

std::string garbled(std::string line)
{
    const std::size_t colon = line.find(':');
    for (std::size_t i = colon == std::string::npos ? 0 : colon + 2; i < line.size(); i += 3)
        line[i] = '~';
    return line;
}

} // namespace FakeModems
