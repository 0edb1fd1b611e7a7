#include "edits/outlineplaces.h"
#include "edits/oneedit.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <algorithm>
#include <limits>

namespace outlineplaces {

Target target(const OneEdit &edit, const KWTaskInfo &beside, PlanEdits::Place place)
{
    const outline::Tasks tasks = edit.tasks();
    const int pos = tasks.index.posOf(beside.ID);
    auto *self = const_cast<KWTaskInfo *>(&beside);
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
    const KWTaskInfo *last = document.getTaskInfoByRow(document.visibleRowCount() - 1);
    Target target;
    target.pos = document.taskCount();
    target.parent = last ? edit.parentOf(*last) : nullptr;
    if (target.parent)
        target.child = target.parent->Childs.size();
    return target;
}

int endOf(const outline::Tasks &tasks, const KWTaskInfo &task)
{
    int last = tasks.index.posOf(task.ID);
    for (const KWTaskInfo *below : outline::descendants(tasks, task))
        last = std::max(last, tasks.index.posOf(below->ID));
    return last + 1;
}

KWTaskInfo *sibling(const outline::Tasks &tasks, const KWTaskInfo &task, int places)
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

void sort(const outline::Tasks &tasks, std::vector<KWTaskInfo *> &some)
{
    std::sort(some.begin(), some.end(), [&tasks](const KWTaskInfo *a, const KWTaskInfo *b) {
        return tasks.index.posOf(a->ID) < tasks.index.posOf(b->ID);
    });
}

std::vector<KWTaskInfo *> tops(const outline::Tasks &tasks, std::vector<KWTaskInfo *> some)
{
    TaskIndex ids;
    for (const KWTaskInfo *task : some)
        ids.add(task->ID);
    const auto isBelow = [&](const KWTaskInfo *task) {
        const std::vector<KWTaskInfo *> above = outline::ancestors(tasks, *task);
        return std::any_of(above.begin(), above.end(),
                           [&ids](const KWTaskInfo *each) { return ids.contains(each->ID); });
    };
    some.erase(std::remove_if(some.begin(), some.end(), isBelow), some.end());
    sort(tasks, some);
    return some;
}

void refreshBelow(const outline::Tasks &tasks, KWTaskInfo &task)
{
    const auto refresh = [&](KWTaskInfo &each) {
        const KWTaskInfo *parent = each.ParentID == 0 ? nullptr : tasks.byId(each.ParentID);
        constexpr qint32 deepest = std::numeric_limits<qint32>::max();
        each.Level = !parent ? 1 : parent->Level == deepest ? deepest : parent->Level + 1;
        each.HideID = !parent ? 0 : parent->IsToggler ? parent->ID.value() : parent->HideID.value();
    };
    refresh(task);
    for (KWTaskInfo *below : outline::descendants(tasks, task))
        refresh(*below);
}
}
