#pragma once
#include <QList>

class KWTaskInfo;

namespace pasted {

// Gives each of the tasks, from the last to the first, as many "1" behind its name as make it another name
// than that of any other task in the list, of which they are part. Names are compared trimmed.
// Where there would be more than maxOnes of them, a number takes their place.
void makeNamesDifferent(const QList<KWTaskInfo *> &list, const QList<KWTaskInfo *> &tasks);
}
