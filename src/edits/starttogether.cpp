#include "edits/starttogether.h"
#include "edits/taskvalues.h"
#include "engine/network/rollup.h"
#include "engine/time/dayoff.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/kwclock.h"
#include <algorithm>

namespace settling {

namespace {

quint32 projectStart(const KWDocument &document)
{
    quint32 start = 0;
    for (const KWTaskInfo *task : document.taskList()) {
        if (rollup::isDated(*task))
            start = start == 0 ? task->Start : std::min(start, task->Start);
    }
    if (start == 0)
        start = document.StartDate;
    return start != 0 ? start : worktime::clampSecs(KWClock::now().date().startOfDay().toSecsSinceEpoch());
}

template <typename Condition>
void startThose(KWDocument &document, quint32 start, Condition condition)
{
    constexpr bool hourClock = false;
    start =
        dayoff::startForward(document.workCalendar(), start != 0 ? start : projectStart(document), hourClock);
    for (KWTaskInfo *task : document.taskList()) {
        if (task->isParent() || !condition(*task))
            continue;
        const double length = taskvalues::lengthOf(document, *task);
        task->Start = start;
        taskvalues::setLength(document, *task, length);
    }
}
}

void startTogether(KWDocument &document, quint32 start)
{
    startThose(document, start, [](const KWTaskInfo &) { return true; });
}

void startLinkedTogether(KWDocument &document)
{
    const auto isDated = [&document](quint32 id) {
        const KWTaskInfo *task = document.getTaskInfoByID(id);
        return task && rollup::isDated(*task);
    };
    startThose(document, 0, [&](const KWTaskInfo &task) {
        return rollup::isDated(task) && task.Percent == 0 &&
               std::any_of(task.Predecessors.begin(), task.Predecessors.end(), isDated);
    });
}
}
