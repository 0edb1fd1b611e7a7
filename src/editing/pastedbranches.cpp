#include "editing/pastedbranches.h"
#include "model/kwtaskinfo.h"
#include <algorithm>
#include <limits>
#include <utility>

namespace pasted {

quint32 NewIds::next()
{
    if (m_last < std::numeric_limits<quint32>::max())
        return ++m_last;
    while (m_taken.contains(m_lowest))
        ++m_lowest;
    return m_lowest++;
}

QList<quint32> relinked(const QList<quint32> &ids, const TaskIndex &oldIds,
                        const QList<KWTaskInfo *> &newTasks)
{
    QList<quint32> result;
    TaskIndex seen;
    for (const quint32 id : ids) {
        const int pos = id == 0 ? -1 : oldIds.posOf(id);
        if (pos >= 0 && pos < newTasks.size() && seen.add(newTasks[pos]->ID))
            result.append(newTasks[pos]->ID);
    }
    return result;
}

Branches::Branches(const QList<KWTaskInfo *> &tasks)
    : m_tasks(tasks)
    , m_index(tasks)
    , m_rank(std::size_t(tasks.size()), -1)
    , m_end(std::size_t(tasks.size()), -1)
{
}

bool Branches::isTop(int pos) const
{
    const quint32 parent = m_tasks[pos]->ParentID;
    return parent == 0 || !m_index.contains(parent);
}

void Branches::number(int pos, qint64 levels, NewIds &ids)
{
    KWTaskInfo &task = *m_tasks[pos];
    task.ID = ids.next();
    m_rank[std::size_t(pos)] = m_numbered++;
    numberBelow(task, levels, ids);
    m_end[std::size_t(pos)] = m_numbered;
}

namespace {

void addLevels(KWTaskInfo &task, qint64 levels)
{
    task.Level = qint32(qBound(qint64(std::numeric_limits<qint32>::min()), task.Level + levels,
                               qint64(std::numeric_limits<qint32>::max())));
}
}

void Branches::numberBelow(KWTaskInfo &top, qint64 levels, NewIds &ids)
{
    struct Open
    {
        KWTaskInfo *task;
        int pos; // -1: the one at the top
        QList<quint32> children;
        int next;
    };
    std::vector<Open> path{{&top, -1, std::exchange(top.Childs, {}), 0}};
    while (!path.empty()) {
        Open &open = path.back();
        if (open.next == open.children.size()) {
            if (open.task->Childs.size() < open.children.size())
                m_robbed.push_back(open.task);
            if (open.pos >= 0)
                m_end[std::size_t(open.pos)] = m_numbered;
            path.pop_back();
            continue;
        }
        const quint32 id = open.children[open.next++];
        const int pos = id == 0 ? -1 : m_index.posOf(id);
        if (pos < 0 || isNumbered(pos) || m_tasks[pos] == &top)
            continue;
        KWTaskInfo &child = *m_tasks[pos];
        child.ID = ids.next();
        child.ParentID = open.task->ID;
        addLevels(child, levels);
        open.task->Childs.append(child.ID);
        m_rank[std::size_t(pos)] = m_numbered++;
        path.push_back({&child, pos, std::exchange(child.Childs, {}), 0});
    }
}

bool Branches::isBelow(int pos, int above) const
{
    const int rank = m_rank[std::size_t(pos)];
    return rank > m_rank[std::size_t(above)] && rank < m_end[std::size_t(above)];
}

void Branches::relinkTask(int pos)
{
    KWTaskInfo &task = *m_tasks[pos];
    for (QList<quint32> *ids : {&task.Depends, &task.Predecessors}) {
        if (ids->isEmpty())
            continue;
        // A task can wait neither for itself nor for what it holds.
        const auto isImpossible = [&](quint32 id) {
            const int other = m_index.posOf(id);
            return other == pos || (other >= 0 && (isBelow(pos, other) || isBelow(other, pos)));
        };
        ids->erase(std::remove_if(ids->begin(), ids->end(), isImpossible), ids->end());
        *ids = relinked(*ids, m_index, m_tasks);
    }
    const int hiding = task.HideID == 0 ? -1 : m_index.posOf(task.HideID);
    task.HideID = hiding >= 0 && isBelow(pos, hiding) ? m_tasks[hiding]->ID.value() : 0;
}

// Every link stands on both sides.
void Branches::mirrorLinks()
{
    using Link = std::pair<int, int>; // from the predecessor's place to the successor's
    TaskIndex newIds(m_tasks);
    std::vector<Link> forward;
    std::vector<Link> backward;
    for (int pos = 0; pos < m_tasks.size(); ++pos) {
        for (const quint32 id : qAsConst(m_tasks[pos]->Depends))
            forward.emplace_back(pos, newIds.posOf(id));
        for (const quint32 id : qAsConst(m_tasks[pos]->Predecessors))
            backward.emplace_back(newIds.posOf(id), pos);
    }
    std::sort(forward.begin(), forward.end());
    std::sort(backward.begin(), backward.end());
    std::vector<Link> missing;
    std::set_difference(forward.begin(), forward.end(), backward.begin(), backward.end(),
                        std::back_inserter(missing));
    for (const auto &[from, to] : missing)
        m_tasks[to]->Predecessors.append(m_tasks[from]->ID);
    missing.clear();
    std::set_difference(backward.begin(), backward.end(), forward.begin(), forward.end(),
                        std::back_inserter(missing));
    for (const auto &[from, to] : missing)
        m_tasks[from]->Depends.append(m_tasks[to]->ID);
}

void Branches::relink()
{
    for (int pos = 0; pos < m_tasks.size(); ++pos)
        relinkTask(pos);
    mirrorLinks();
}
}
