#include "engine/network/keptnetwork.h"
#include "engine/record/taskahead.h"

namespace linkgraph {

namespace {

// Shares the list again where it only has the same content.
bool isSame(const QList<quint32> &list, QList<quint32> &known)
{
    if (list.isSharedWith(known))
        return true;
    if (list != known)
        return false;
    known = list;
    return true;
}
}

bool KeptNetwork::isOf(const outline::Tasks &tasks)
{
    if (!m_network || m_list != &tasks.list || int(m_known.size()) != tasks.list.size())
        return false;
    for (std::size_t pos = 0; pos < m_known.size(); ++pos) {
        fetchTaskAhead(tasks.list, int(pos) + tasksAhead);
        const TaskRecord &task = *tasks.list[int(pos)];
        Known &known = m_known[pos];
        if (task.ID != known.id || task.ParentID != known.parent || !isSame(task.Childs, known.children) ||
            !isSame(task.Depends, known.links))
            return false;
    }
    return true;
}

void KeptNetwork::update(const outline::Tasks &tasks)
{
    if (isOf(tasks))
        return;
    m_list = &tasks.list;
    m_known.clear();
    m_known.reserve(std::size_t(tasks.list.size()));
    for (const TaskRecord *task : tasks.list)
        m_known.push_back({task->ID, task->ParentID, task->Childs, task->Depends});
    m_network.emplace(tasks);
    m_schedule = linkgraph::schedule(*m_network, tasks);
}
}
