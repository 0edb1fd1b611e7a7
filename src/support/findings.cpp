#include "support/findings.h"

void Findings::add(const QString &place, const QString &what, const QString &hint)
{
    if (m_list.size() < limit)
        m_list.append({place, what, hint});
    else
        ++m_dropped;
}

void Findings::clear()
{
    m_list.clear();
    m_dropped = 0;
}
