#pragma once
#include <QList>

class KWTaskInfo;

namespace pasted {

// Gives each of the tasks, from the last to the first, as many "1" behind its name as make it another name
// than that of any other task in the list, of which they are part. Names are compared trimmed.
//
// A thousand tasks of one name would have names of a thousand digits, and a million would not fit into
// memory: from there on a number takes the place of the ones.
void makeNamesDifferent(const QList<KWTaskInfo *> &list, const QList<KWTaskInfo *> &tasks);
}
