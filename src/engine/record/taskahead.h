#pragma once
#include "engine/record/taskrecord.h"
#include <cstring>

// Asks the memory for a task that a walk over the list will reach soon, for what the scheduling rules read of
// it.
//
// A record is larger than a cache line and the walks do little with each, so on a large project they would
// wait for most of them. Changes nothing but the time.
template <typename Tasks>
void fetchTaskAhead(const Tasks &tasks, int pos)
{
    if (pos < 0 || pos >= int(tasks.size()))
        return;
    const TaskRecord *task = tasks[pos];
    __builtin_prefetch(&task->Start);
    __builtin_prefetch(&task->HideID);
    __builtin_prefetch(&task->Percent);
    __builtin_prefetch(&task->CountWidth);
}

// The same for what late dates are compared with: links, dates and texts.
template <typename Tasks>
void fetchLateAhead(const Tasks &tasks, int pos)
{
    if (pos < 0 || pos >= int(tasks.size()))
        return;
    const TaskRecord *task = tasks[pos];
    __builtin_prefetch(task);
    __builtin_prefetch(&task->Depends);
    __builtin_prefetch(&task->LateFinish);
    __builtin_prefetch(&task->LateSlack);
}

// What a list or a text of a task that has arrived by now refers to.
template <typename Shared>
void fetchContentAhead(const Shared &shared)
{
    static_assert(sizeof(Shared) == sizeof(void *), "nothing but the pointer to its content");
    const void *content = nullptr;
    std::memcpy(&content, &shared, sizeof content);
    __builtin_prefetch(content);
}

// How far ahead: memory answers in the time that this many tasks take.
constexpr int tasksAhead = 16;

// For a walk over the names: the tasks' places in the memory, and later the texts.
template <typename Tasks>
void fetchNamesAhead(const Tasks &tasks, int pos)
{
    if (pos + 2 * tasksAhead < int(tasks.size()))
        __builtin_prefetch(&tasks[pos + 2 * tasksAhead]->Name);
    if (pos + tasksAhead < int(tasks.size()))
        fetchContentAhead(tasks[pos + tasksAhead]->Name);
}

// The lists of IDs of a task that has arrived by now.
template <typename Tasks>
void fetchListsAhead(const Tasks &tasks, int pos)
{
    if (pos >= int(tasks.size()))
        return;
    fetchContentAhead(tasks[pos]->Childs);
    fetchContentAhead(tasks[pos]->Depends);
    fetchContentAhead(tasks[pos]->Predecessors);
}
