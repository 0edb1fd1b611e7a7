#pragma once
#include "engine/record/outline.h"
#include "engine/time/worktime.h"

struct TaskRecord;

// What a summary takes from the tasks below it.
namespace rollup {

// Start, Finish and DurationSecs from the direct children. False, and nothing changed, when there is no child
// or the children have no start or no finish.
bool dates(const worktime::WorkCalendar &calendar, const outline::Tasks &tasks, TaskRecord &summary);
// The same from those children that have both.
bool datesOfDated(const worktime::WorkCalendar &calendar, const outline::Tasks &tasks, TaskRecord &summary);
// Whether the task has a start and a finish.
template <typename Task>
bool isDated(const Task &task)
{
    return task.Start != 0 && task.Finish != 0;
}
// The completed fraction of the direct children, each weighted by its length in its own unit; milestones do
// not count. 0.0 when nothing is done or the children have no length.
double percent(const worktime::WorkCalendar &calendar, const outline::Tasks &tasks,
               const TaskRecord &summary);
// BaseStart and BaseFinish from the descendants that are no summaries; 0 without such a descendant.
void baseline(const std::vector<TaskRecord *> &below, TaskRecord &summary);
// The same for every ancestor of the task, nearest first.
void ancestorBaselines(const outline::Tasks &tasks, const TaskRecord &task);
}
