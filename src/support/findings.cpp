#include "support/findings.h"

const char *Finding::kindName(Kind kind)
{
    static constexpr const char *names[] = {"read", "changed", "lost", "refused"};
    return names[kind];
}

Finding::Kind Finding::kindOf(const QString &taken)
{
    static constexpr const char *nothing[] = {"left out",         "not read",    "no predecessor",  "cut",
                                              "nothing imported", "not written", "nothing was read"};
    for (const char *words : nothing) {
        if (taken.startsWith(QLatin1String(words)))
            return Lost;
    }
    return Changed;
}

void Findings::add(Finding::Kind kind, const QString &place, const QString &what, const QString &hint)
{
    ++m_counts[kind];
    if (m_list.size() < limit)
        m_list.append({place, what, hint, kind});
    else
        ++m_dropped;
}

void Findings::append(const Findings &others)
{
    for (std::size_t kind = 0; kind < m_counts.size(); ++kind)
        m_counts[kind] += others.m_counts[kind];
    for (const Finding &finding : others.m_list) {
        if (m_list.size() < limit)
            m_list.append(finding);
        else
            ++m_dropped;
    }
    m_dropped += others.m_dropped;
}

void Findings::clear()
{
    *this = Findings();
}
