#pragma once
#include "edits/planedits.h"
#include "engine/record/outline.h"
#include "engine/record/taskrecord.h"
#include <algorithm>
#include <vector>

class OneEdit;

// Places in the outline, and what moves there. The list stands in outline order: a summary before what it
// holds, and all of that behind it in the order of the children.
namespace outlineplaces {

// Where a task goes: before anything is changed.
struct Target
{
    TaskRecord *parent = nullptr; // null: the top level
    int child = 0;                // place among the parent's children
    int pos = 0;                  // in the list
};
Target target(const OneEdit &edit, const TaskRecord &beside, PlanEdits::Place place);
Target atEnd(const OneEdit &edit);
// Behind the last entry that lies at or below the task.
int endOf(const outline::Tasks &tasks, const TaskRecord &task);
// The sibling that stands `places` further on (before, when negative); null when there is none.
TaskRecord *sibling(const outline::Tasks &tasks, const TaskRecord &task, int places);
// Into list order.
template <typename Task>
void sort(const outline::Tasks &tasks, std::vector<Task *> &some)
{
    std::sort(some.begin(), some.end(), [&tasks](const Task *a, const Task *b) {
        return tasks.index.posOf(a->ID) < tasks.index.posOf(b->ID);
    });
}
// The tasks that have none of the others above them, in list order.
template <typename Task>
std::vector<Task *> tops(const outline::Tasks &tasks, std::vector<Task *> some)
{
    TaskIndex ids;
    for (const Task *task : some)
        ids.add(task->ID);
    const auto isBelow = [&](const Task *task) {
        const std::vector<TaskRecord *> above = outline::ancestors(tasks, *task);
        return std::any_of(above.begin(), above.end(),
                           [&ids](const TaskRecord *each) { return ids.contains(each->ID); });
    };
    some.erase(std::remove_if(some.begin(), some.end(), isBelow), some.end());
    sort(tasks, some);
    return some;
}
// Levels and hidden flags of a task and of all below it, from its parent downward. A task is hidden by the
// nearest collapsed summary above it.
void refreshBelow(const outline::Tasks &tasks, TaskRecord &task);
}
