#pragma once
#include "engine/record/taskrecord.h"

// Asks the memory for a task that a walk over the list will reach soon, for what the scheduling rules read of
// it.
//
// A record is larger than a cache line and the walks do little with each, so on a large project they would
// wait for most of them. Changes nothing but the time.
template <typename Task>
void fetchTaskAhead(const QList<Task *> &tasks, int pos)
{
    if (pos < 0 || pos >= tasks.size())
        return;
    const TaskRecord *task = tasks[pos];
    __builtin_prefetch(&task->Start);
    __builtin_prefetch(&task->HideID);
    __builtin_prefetch(&task->CountWidth);
}

// How far ahead: memory answers in the time that this many tasks take.
constexpr int tasksAhead = 16;
