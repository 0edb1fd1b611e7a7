// Progress by the calendar, and the progress bars.
#include "engine/network/rollup.h"
#include "engine/time/timescale.h"
#include "format/dataformat.h"
#include "model/changewatch.h"
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

struct Bar
{
    double begin, end, width; // pixels
};

// The bar as it is drawn. The bars of hidden tasks are not, nor are those of a plan that was only loaded:
// theirs are where they would be.
Bar barOf(const timescale::Scale &scale, const KWTaskInfo &task)
{
    if (task.HideID == 0 && (task.x1 != 0 || task.x2 != 0))
        return {task.x1, task.x2, task.CountWidth};
    const double begin = scale.point(task, true);
    const double end = scale.point(task, false);
    return {begin, end, end - begin};
}
}

unsigned int KWDocument::getMinorUnit() const
{
    return timescale::minorUnit(MajorUnit, MinorUnit);
}

void KWDocument::updateAutoPercent()
{
    const ChangeWatch watch(this);
    if (!m_taskCollection || !Auto)
        return;
    // A plan that was only loaded has no range yet, and so no pixels to tell days apart by.
    if (m_taskCollection->maxDateFinish() == 0) {
        m_taskCollection->updateRange();
        m_taskCollection->updateTotalWidth();
    }
    const timescale::Scale scale = m_taskCollection->scale();
    const quint32 now = worktime::clampSecs(KWClock::now().toSecsSinceEpoch());
    const double x = scale.position(now);
    for (KWTaskInfo *task : taskList()) {
        if (task->Start == 0 || task->Finish == 0)
            continue;
        double percent = 0.0;
        double width = 0.0;
        const Bar bar = barOf(scale, *task);
        if (bar.begin < x && x < bar.end) {
            percent = elapsedFraction(scale.calendar(), *task, now);
            width = x - bar.begin;
        } else if (bar.begin < x) {
            percent = 1.0;
            width = bar.width;
        }
        task->setPercent(percent);
        task->Progress = KWTaskInfo::indexFromPercent(task->Percent);
        task->FirstWidth = width;
    }
}

void KWDocument::updateAllParentPercent()
{
    const ChangeWatch watch(this);
    if (!m_taskCollection)
        return;
    const timescale::Scale scale = m_taskCollection->scale();
    const outline::Tasks tasks = outline();
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
    const ChangeWatch watch(this);
    if (!m_taskCollection)
        return;
    const timescale::Scale scale = m_taskCollection->scale();
    for (KWTaskInfo *task : taskList())
        task->FirstWidth = scale.finishedWidth(*task);
}
