// Progress by the calendar, and the progress bars.
#include "engine/network/rollup.h"
#include "engine/time/timescale.h"
#include "format/dataformat.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"

namespace {

// The part of a task's length that lies before now.
double elapsedFraction(const worktime::WorkCalendar &calendar, const KWTaskInfo &task, quint32 now)
{
    const double length =
        duration::valueBetween(calendar, task.Start, task.Finish, task.DurationUnits, false);
    // A milestone, or a bar that lies on days off only, is done at its end.
    if (length == 0.0)
        return now >= task.Finish ? 1.0 : 0.0;
    const double done = duration::valueBetween(calendar, task.Start, now, task.DurationUnits, false);
    constexpr int decimals = 10;
    return DataFormat::formatNumber(done / length, 0, decimals, 1).toDouble();
}
}

unsigned int KWDocument::getMinorUnit() const
{
    return timescale::minorUnit(MajorUnit, MinorUnit);
}

void KWDocument::updateAutoPercent()
{
    if (!m_taskCollection || !Auto)
        return;
    const timescale::Scale scale = m_taskCollection->scale();
    const quint32 now = worktime::clampSecs(KWClock::now().toSecsSinceEpoch());
    const double x = scale.position(now);
    for (KWTaskInfo *task : taskList()) {
        double percent = 0.0;
        double width = 0.0;
        if (task->x1 < x && x < task->x2) {
            percent = elapsedFraction(scale.calendar(), *task, now);
            width = x - task->x1;
        } else if (task->x1 < x) {
            percent = 1.0;
            width = task->CountWidth;
        }
        task->setPercent(percent);
        task->Progress = KWTaskInfo::indexFromPercent(task->Percent);
        task->FirstWidth = width;
    }
}

void KWDocument::updateAllParentPercent()
{
    if (!m_taskCollection)
        return;
    const timescale::Scale scale = m_taskCollection->scale();
    const outline::Tasks tasks{taskList(), taskIndex()};
    // The list is in outline order.
    for (int pos = taskCount() - 1; pos >= 0; --pos) {
        KWTaskInfo *task = taskList().at(pos);
        if (!task->isParent())
            continue;
        task->setPercent(rollup::percent(scale.calendar(), tasks, *task));
        task->FirstWidth = scale.finishedWidth(*task);
    }
}

void KWDocument::updateAllTaskFirstWidth()
{
    if (!m_taskCollection)
        return;
    const timescale::Scale scale = m_taskCollection->scale();
    for (KWTaskInfo *task : taskList())
        task->FirstWidth = scale.finishedWidth(*task);
}
