#pragma once
#include "engine/record/outline.h"
#include "engine/time/worktime.h"

struct TaskRecord;

// What a move does to the dates of a task and of a summary's content. No chart, no links, no ancestors.
namespace moves {

// The start goes to `secs` (day clock), pushed off non-working time (off non-working hours too on an
// hour-based scale); the finish moves by the same seconds. False when that leaves the task where it is.
bool startTo(const worktime::WorkCalendar &calendar, TaskRecord &task, quint32 secs, bool hourScale);
// After the start moved away from oldStart and took the finish along: the finish that keeps the duration in
// working time, and DurationSecs.
void keepDuration(const worktime::WorkCalendar &calendar, TaskRecord &task, quint32 oldStart);
// After a summary's start moved away from oldStart: every task below it that takes no dates from children
// keeps its working distance from that start and its duration; summaries are rolled up innermost first, this
// one last. Returns what lies below the summary, in pre-order.
std::vector<TaskRecord *> content(const worktime::WorkCalendar &calendar, const outline::Tasks &tasks,
                                  TaskRecord &summary, quint32 oldStart);
}
