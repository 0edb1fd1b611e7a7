#include "engine/record/outline.h"
#include "model/kwtaskinfo.h"

namespace outline {

KWTaskInfo *Tasks::byId(quint32 id) const
{
    const int pos = index.posOf(id);
    return pos < 0 ? nullptr : list[pos];
}

std::vector<KWTaskInfo *> descendants(const Tasks &tasks, const KWTaskInfo &task)
{
    std::vector<KWTaskInfo *> found;
    anyDescendant(tasks, task, [&found](KWTaskInfo *descendant) {
        found.push_back(descendant);
        return false;
    });
    return found;
}

bool anyDescendant(const Tasks &tasks, const KWTaskInfo &task, const std::function<bool(KWTaskInfo *)> &visit)
{
    if (task.Childs.isEmpty())
        return false;

    struct Branch
    {
        const KWTaskInfo *task;
        int nextChild;
    };
    std::vector<Branch> path{{&task, 0}};
    TaskIndex seen;
    seen.add(task.ID);
    while (!path.empty()) {
        Branch &branch = path.back();
        if (branch.nextChild >= branch.task->Childs.size()) {
            path.pop_back();
            continue;
        }
        KWTaskInfo *child = tasks.byId(branch.task->Childs[branch.nextChild++]);
        if (!child || !seen.add(child->ID))
            continue;
        if (visit(child))
            return true;
        if (child->isParent())
            path.push_back({child, 0});
    }
    return false;
}

std::vector<KWTaskInfo *> ancestors(const Tasks &tasks, const KWTaskInfo &task)
{
    // Outlines are a few levels deep: looking through the ancestors found so far costs less than a set.
    constexpr std::size_t shortChain = 16;
    std::vector<KWTaskInfo *> found;
    TaskIndex seen;
    const auto isMet = [&](const KWTaskInfo *ancestor) {
        if (found.size() < shortChain)
            return ancestor->ID == task.ID || std::find(found.begin(), found.end(), ancestor) != found.end();
        if (seen.size() == 0) {
            seen.add(task.ID);
            for (const KWTaskInfo *earlier : found)
                seen.add(earlier->ID);
        }
        return !seen.add(ancestor->ID);
    };
    for (quint32 id = task.ParentID; id != 0; id = found.back()->ParentID) {
        KWTaskInfo *ancestor = tasks.byId(id);
        if (!ancestor || isMet(ancestor))
            break;
        found.push_back(ancestor);
    }
    return found;
}

std::vector<KWTaskInfo *> withAncestors(const Tasks &tasks, const std::vector<KWTaskInfo *> &changed)
{
    TaskIndex seen;
    std::vector<int> found;
    for (const KWTaskInfo *task : changed) {
        int pos = tasks.index.posOf(task->ID);
        while (pos >= 0 && seen.add(tasks.list[pos]->ID)) {
            found.push_back(pos);
            const quint32 parent = tasks.list[pos]->ParentID;
            pos = parent == 0 ? -1 : tasks.index.posOf(parent);
        }
    }
    std::sort(found.rbegin(), found.rend());
    std::vector<KWTaskInfo *> ordered;
    for (const int pos : found)
        ordered.push_back(tasks.list[pos]);
    return ordered;
}

KWTaskInfo *commonSummary(const Tasks &tasks, const KWTaskInfo &a, const KWTaskInfo &b)
{
    TaskIndex aboveB;
    for (const KWTaskInfo *ancestor : ancestors(tasks, b))
        aboveB.add(ancestor->ID);
    for (KWTaskInfo *ancestor : ancestors(tasks, a)) {
        if (aboveB.contains(ancestor->ID))
            return ancestor;
    }
    return nullptr;
}

void addChilds(const Tasks &tasks, KWTaskInfo &summary, const std::vector<KWTaskInfo *> &children)
{
    // Looking for each among all the others would be quadratic.
    TaskIndex held;
    for (const quint32 id : qAsConst(summary.Childs))
        held.add(id);
    for (const KWTaskInfo *child : children) {
        const int pos = tasks.index.posOf(child->ID);
        if (pos < 0 || !held.add(child->ID))
            continue;
        QList<quint32> &ids = summary.Childs;
        const bool beforeLast = !ids.isEmpty() && pos < tasks.index.posOf(ids.last());
        ids.insert(beforeLast ? ids.size() - 1 : ids.size(), child->ID);
    }
}

namespace {

void removeIds(QList<quint32> &list, const TaskIndex &ids)
{
    const auto isGone = [&](quint32 id) { return ids.contains(id); };
    list.erase(std::remove_if(list.begin(), list.end(), isGone), list.end());
}
}

void removeChilds(KWTaskInfo &summary, const TaskIndex &ids)
{
    removeIds(summary.Childs, ids);
}

void cutLinks(const Tasks &tasks, const std::vector<KWTaskInfo *> &leaving, const TaskIndex &leavingIds)
{
    TaskIndex done;
    for (const KWTaskInfo *task : leaving) {
        for (const QList<quint32> *linked : {&task->Depends, &task->Predecessors}) {
            for (const quint32 id : *linked) {
                KWTaskInfo *other = tasks.byId(id);
                if (!other || leavingIds.contains(id) || !done.add(id))
                    continue;
                removeIds(other->Depends, leavingIds);
                removeIds(other->Predecessors, leavingIds);
            }
        }
    }
}

void LevelBuilder::add(KWTaskInfo &task)
{
    const bool isNewId = m_addedIds.add(task.ID);
    const auto parent = m_lastOfLevel.find(qint64(task.Level) - 1);
    if (task.Level == 1 || parent == m_lastOfLevel.end()) {
        task.ParentID = 0;
    } else {
        KWTaskInfo *summary = parent->second.task;
        task.ParentID = summary->ID;
        // Looking through all children would make a flat outline quadratic; a new ID cannot be among those
        // given here.
        if (isNewId && !parent->second.hasForeignChilds)
            summary->Childs.append(task.ID);
        else
            summary->insertTaskChildID(summary->Childs.size(), task.ID);
        summary->font.setWeight(QFont::Bold);
    }
    m_lastOfLevel[task.Level] = {&task, !task.Childs.isEmpty()};
    task.initFont();
}
}
