#pragma once
#include "kwgantt_export.h"
#include <QtGlobal>

class KWDocument;

namespace settling {

// Puts all tasks but summaries to one start, each with its own length. Settling everything afterwards gives
// the plan that is done as soon as possible.
//
// The start is a moment on the day clock, and moves off time that is not worked. 0: the first start of all
// tasks, the document's start where no task has one, today where there is neither.
KWGANTT_EXPORT void startTogether(KWDocument &document, quint32 start);

// The same to the first start of all tasks, but only for those that wait for a task with dates by a link of
// their own, have dates and have not begun. What else stands where somebody put it stays there.
KWGANTT_EXPORT void startLinkedTogether(KWDocument &document);
}
