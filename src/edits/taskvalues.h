#pragma once
#include "edits/planedits.h"

class KWTaskInfo;
class OneEdit;

// What can be set of a task: judging it, and doing it.
namespace taskvalues {

// Whether a task can take the values; refuses. Null: a task that is going to be made.
bool judge(OneEdit &edit, const KWTaskInfo *task, const TaskValues &values);
// Keeps what setting them changes.
void keep(OneEdit &edit, KWTaskInfo &task, const TaskValues &values);
// Sets them and adds to the edit's changes. They have been judged.
void apply(OneEdit &edit, KWTaskInfo &task, const TaskValues &values);
// Whether dates of tasks can follow.
bool movesTasks(const TaskValues &values);

// The task's own length in its unit; of a task without dates that which it is to have. 0 for a milestone.
double lengthOf(const KWDocument &document, const KWTaskInfo &task);
// The finish of a task that lasts `value` units from its start.
void setLength(const KWDocument &document, KWTaskInfo &task, double value);
}
