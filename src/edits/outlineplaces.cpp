#include "edits/outlineplaces.h"
#include "edits/oneedit.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <algorithm>
#include <limits>

namespace outlineplaces {

Target target(const OneEdit &edit, const TaskRecord &beside, PlanEdits::Place place)
{
    const outline::Tasks tasks = edit.tasks();
    const int pos = tasks.index.posOf(beside.ID);
    auto *self = const_cast<TaskRecord *>(&beside);
    Target target;
    switch (place) {
    case PlanEdits::FirstChild:
        return {self, 0, pos + 1};
    case PlanEdits::LastChild:
        return {self, beside.Childs.size(), endOf(tasks, beside)};
    case PlanEdits::Above:
    case PlanEdits::Below:
        break;
    }
    target.parent = edit.parentOf(beside);
    const int after = place == PlanEdits::Below ? 1 : 0;
    if (target.parent) {
        const int child = target.parent->Childs.indexOf(beside.ID);
        // A damaged file may hold a child that its parent does not name.
        target.child = child < 0 ? target.parent->Childs.size() : child + after;
    }
    target.pos = after ? endOf(tasks, beside) : pos;
    return target;
}

Target atEnd(const OneEdit &edit)
{
    const KWDocument &document = edit.document();
    const TaskRecord *last = document.getTaskInfoByRow(document.visibleRowCount() - 1);
    Target target;
    target.pos = document.taskCount();
    target.parent = last ? edit.parentOf(*last) : nullptr;
    if (target.parent)
        target.child = target.parent->Childs.size();
    return target;
}

int endOf(const outline::Tasks &tasks, const TaskRecord &task)
{
    int last = tasks.index.posOf(task.ID);
    for (const TaskRecord *below : outline::descendants(tasks, task))
        last = std::max(last, tasks.index.posOf(below->ID));
    return last + 1;
}

TaskRecord *sibling(const outline::Tasks &tasks, const TaskRecord &task, int places)
{
    const int step = places < 0 ? -1 : 1;
    int left = std::abs(places);
    int pos = tasks.index.posOf(task.ID);
    while (left > 0) {
        pos += step;
        if (pos < 0 || pos >= tasks.list.size())
            return nullptr;
        if (tasks.list[pos]->ParentID == task.ParentID)
            --left;
    }
    return tasks.list[pos];
}

void refreshBelow(const outline::Tasks &tasks, TaskRecord &task)
{
    const auto refresh = [&](TaskRecord &each) {
        const TaskRecord *parent = each.ParentID == 0 ? nullptr : tasks.byId(each.ParentID);
        constexpr qint32 deepest = std::numeric_limits<qint32>::max();
        each.Level = !parent ? 1 : parent->Level == deepest ? deepest : parent->Level + 1;
        each.HideID = !parent ? 0 : parent->IsToggler ? parent->ID.value() : parent->HideID.value();
    };
    refresh(task);
    for (TaskRecord *below : outline::descendants(tasks, task))
        refresh(*below);
}
}
