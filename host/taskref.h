#pragma once
#include "options.h"
#include "plan.h"

struct KWTaskLink;

// Tasks as users name them: the row number shown, #ID, or a name.
namespace taskref {

// The position of the one task that the words mean; -1 with a fault when it is none or more than one.
int find(const Plan &plan, const QString &words, options::Fault &fault);
// 5 "Build", as messages name a task.
QString named(const KWDocument &document, quint32 id);
// A ring of tasks, the first one again at its end; of a very long one not the middle.
QString ring(const KWDocument &document, const QList<quint32> &ids);
// Why a link cannot be made, and what to do about it.
options::Fault refusal(const KWDocument &document, const KWTaskLink &link);
}
