#include "engine/record/branches.h"
#include "engine/record/taskrecord.h"

namespace outline {

BranchRanges::BranchRanges(const Tasks &tasks, const std::vector<TaskRecord *> &roots)
{
    for (TaskRecord *root : roots) {
        if (!add(tasks, root)) {
            *this = BranchRanges();
            return;
        }
    }
}

bool BranchRanges::add(const Tasks &tasks, TaskRecord *root)
{
    struct Branch
    {
        std::size_t place;
        int nextChild;
    };
    std::vector<Branch> path;
    const auto enter = [&](TaskRecord *task) {
        const bool isLeaf = !task->isParent();
        // An ID that is there already: a ring, a task with two parents, or two tasks of one ID. A range could
        // not say what lies below them, so the caller walks such an outline in the plain way.
        if (!m_placeOf.add(task->ID, isLeaf ? 0 : int(m_places.size())))
            return false;
        m_order.push_back(task);
        if (isLeaf) {
            m_leaves.push_back(task);
            return true;
        }
        path.push_back({m_places.size(), 0});
        m_places.push_back({task, m_order.size(), m_order.size(), m_leaves.size(), m_leaves.size()});
        return true;
    };
    if (!enter(root))
        return false;
    while (!path.empty()) {
        // Good until the next enter(), which may move what both stand in.
        Branch &branch = path.back();
        Range &place = m_places[branch.place];
        if (branch.nextChild < place.summary->Childs.size()) {
            TaskRecord *child = tasks.byId(place.summary->Childs[branch.nextChild++]);
            if (child && !enter(child))
                return false;
        } else {
            place.last = m_order.size();
            place.lastLeaf = m_leaves.size();
            path.pop_back();
        }
    }
    return true;
}

const BranchRanges::Range &BranchRanges::placeOf(const TaskRecord &summary) const
{
    return m_places[std::size_t(m_placeOf.posOf(summary.ID))];
}

bool BranchRanges::knows(const TaskRecord &summary) const
{
    return !m_places.empty() && m_placeOf.contains(summary.ID) && placeOf(summary).summary == &summary;
}

std::vector<TaskRecord *> BranchRanges::below(const TaskRecord &summary) const
{
    const Range &place = placeOf(summary);
    return {m_order.begin() + std::ptrdiff_t(place.first), m_order.begin() + std::ptrdiff_t(place.last)};
}

std::vector<TaskRecord *> BranchRanges::leavesBelow(const TaskRecord &summary) const
{
    const Range &place = placeOf(summary);
    return {m_leaves.begin() + std::ptrdiff_t(place.firstLeaf),
            m_leaves.begin() + std::ptrdiff_t(place.lastLeaf)};
}
}
