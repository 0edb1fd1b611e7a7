#pragma once
#include "engine/record/taskindex.h"
#include "kwgantt_export.h"
#include <QList>
#include <algorithm>
#include <functional>
#include <unordered_map>
#include <vector>

struct TaskRecord;

// The outline: parents, children and levels, walked without recursion and safe against rings.
namespace outline {

// The tasks with their index. Refers to the list; valid while neither the list nor an ID changes.
struct KWGANTT_EXPORT Tasks
{
    const QList<TaskRecord *> &list;
    const TaskIndex &index;
    TaskRecord *byId(quint32 id) const; // null when there is none
};

// Descendants in pre-order, each once; a ring or a doubled child is entered only the first time.
// The task itself is not part of the result.
KWGANTT_EXPORT std::vector<TaskRecord *> descendants(const Tasks &tasks, const TaskRecord &task);
// Visits them in that order up to the first for which `visit` is true; whether there is one.
KWGANTT_EXPORT bool anyDescendant(const Tasks &tasks, const TaskRecord &task,
                                  const std::function<bool(TaskRecord *)> &visit);
// Ancestors, nearest first; stops at an unknown ID and at a task met before, the task itself included.
KWGANTT_EXPORT std::vector<TaskRecord *> ancestors(const Tasks &tasks, const TaskRecord &task);
// These tasks and all above them, each once; the last in the list comes first, so that in a sound outline
// what is below comes before what is above.
KWGANTT_EXPORT std::vector<TaskRecord *> withAncestors(const Tasks &tasks,
                                                       const std::vector<TaskRecord *> &changed);
// Of these the ones that hold others.
KWGANTT_EXPORT std::vector<TaskRecord *> summariesWithAncestors(const Tasks &tasks,
                                                                const std::vector<TaskRecord *> &changed);
// The nearest ancestor of a that is also one of b; null when there is none.
KWGANTT_EXPORT TaskRecord *commonSummary(const Tasks &tasks, const TaskRecord &a, const TaskRecord &b);

// Gives a summary more children, one after the other as KWTaskInfo::addTaskInfoChildID would.
KWGANTT_EXPORT void addChilds(const Tasks &tasks, TaskRecord &summary,
                              const std::vector<TaskRecord *> &children);
KWGANTT_EXPORT void removeChilds(TaskRecord &summary, const TaskIndex &ids);
// Cuts the links of tasks that leave, on the side of the tasks that stay.
KWGANTT_EXPORT void cutLinks(const Tasks &tasks, const std::vector<TaskRecord *> &leaving,
                             const TaskIndex &leavingIds);

// Moves `count` entries one after the other from place `from` + i to place `to` + i; what lies outside the
// list stays.
template <typename T>
void moveEntries(QList<T> &list, int from, int to, int count)
{
    count = std::min(count, list.size() - std::max(from, to));
    if (count <= 0 || from < 0 || to < 0)
        return;
    const auto begin = list.begin();
    if (to < from) { // each of them lands behind the one before: the block stays together
        std::rotate(begin + to, begin + from, begin + from + count);
        return;
    }
    for (int i = 0; i < count; ++i)
        list.move(from + i, to + i);
}

// Builds the outline from levels, one task at a time in row order.
//
// A task of level n becomes the last child of the most recent task of exactly level n - 1, wherever that is,
// and the parent's font becomes bold; a task of level 1, and one for which there is no such task, gets
// ParentID 0. Either way its own row font is set. The tasks must stay alive and keep their IDs as long as the
// builder is used.
class KWGANTT_EXPORT LevelBuilder
{
public:
    void add(TaskRecord &task);

private:
    struct Parent
    {
        TaskRecord *task = nullptr;
        bool hasForeignChilds = false; // children that this builder did not give it
    };
    std::unordered_map<qint64, Parent> m_lastOfLevel;
    TaskIndex m_addedIds;
};
}
