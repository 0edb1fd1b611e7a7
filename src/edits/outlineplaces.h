#pragma once
#include "edits/planedits.h"
#include "engine/record/outline.h"

class OneEdit;

// Places in the outline, and what moves there. The list stands in outline order: a summary before what it
// holds, and all of that behind it in the order of the children.
namespace outlineplaces {

// Where a task goes: before anything is changed.
struct Target
{
    KWTaskInfo *parent = nullptr; // null: the top level
    int child = 0;                // place among the parent's children
    int pos = 0;                  // in the list
};
Target target(const OneEdit &edit, const KWTaskInfo &beside, PlanEdits::Place place);
Target atEnd(const OneEdit &edit);
// Behind the last entry that lies at or below the task.
int endOf(const outline::Tasks &tasks, const KWTaskInfo &task);
// The sibling that stands `places` further on (before, when negative); null when there is none.
KWTaskInfo *sibling(const outline::Tasks &tasks, const KWTaskInfo &task, int places);
// Into list order.
void sort(const outline::Tasks &tasks, std::vector<KWTaskInfo *> &some);
// The tasks that have none of the others above them, in list order.
std::vector<KWTaskInfo *> tops(const outline::Tasks &tasks, std::vector<KWTaskInfo *> some);
// Levels and hidden flags of a task and of all below it, from its parent downward. A task is hidden by the
// nearest collapsed summary above it.
void refreshBelow(const outline::Tasks &tasks, KWTaskInfo &task);
}
