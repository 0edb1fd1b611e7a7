#pragma once
#include "engine/record/outline.h"

namespace outline {

// Some branches of the outline in one walk: what lies below each of their tasks is then a range, found in no
// time. A walk of its own for every summary costs the square of the depth.
//
// Valid while neither the task list nor an ID or a child list changes.
class BranchRanges
{
public:
    // Nothing is known.
    BranchRanges() = default;
    // The branches of these tasks, the tasks included.
    BranchRanges(const Tasks &tasks, const std::vector<TaskRecord *> &roots);

    // Both need `knows`, and are in the order of `descendants`.
    std::vector<TaskRecord *> below(const TaskRecord &summary) const;
    std::vector<TaskRecord *> leavesBelow(const TaskRecord &summary) const;
    // Whether the task is a summary in one of the branches. Where branches meet or run in a ring, nothing is
    // known.
    bool knows(const TaskRecord &summary) const;

private:
    struct Range
    {
        const TaskRecord *summary;
        std::size_t first, last;         // in m_order, the summary itself not included
        std::size_t firstLeaf, lastLeaf; // in m_leaves
    };
    bool add(const Tasks &tasks, TaskRecord *root);
    const Range &placeOf(const TaskRecord &summary) const;

    std::vector<TaskRecord *> m_order;
    std::vector<TaskRecord *> m_leaves;
    std::vector<Range> m_places;
    TaskIndex m_placeOf; // 0 for the leaves, which have no place
};
}
