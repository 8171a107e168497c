#include "ForwardTrace.h"

namespace Tools
{

int ForwardTrace::seek(const char *name)
{
    const int count = m_elements.list.count();
    while (m_next < count && m_elements.list.at(m_next).name != QLatin1String(name))
        ++m_next;
    m_current = m_next < count ? m_next++ : -1;
    return m_current;
}

QString ForwardTrace::text()
{
    if (m_current < 0)
        return QString();
    const XmlElement &element = m_elements.list.at(m_current);
    m_next = element.behind;
    m_current = -1;
    return element.text;
}

int ForwardTrace::passed(const char *name) const
{
    for (int i = qMin(m_next, m_elements.list.count()) - 1; i >= 0; --i) {
        if (m_elements.list.at(i).name == QLatin1String(name))
            return i;
    }
    return -1;
}

} // namespace Tools
