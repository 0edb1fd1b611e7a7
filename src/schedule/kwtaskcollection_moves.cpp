// What follows when a bar is moved: its content, its length, its ancestors; and the steps off days off.
#include "engine/cost/cost.h"
#include "engine/network/moves.h"
#include "engine/record/outline.h"
#include "engine/time/dayoff.h"
#include "engine/time/timescale.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"

// ---- Moves ------------------------------------------------------------------------------------------------

bool KWTaskCollection::isStrechOrMoveToChange(const KWTaskInfo *task, quint32 oldStart, quint32 oldFinish)
{
    return task && (task->Start != oldStart || task->Finish != oldFinish);
}

void KWTaskCollection::redraw(const timescale::Scale &scale, TaskRecord &task)
{
    cost::updateWorkSecs(task);
    scale.placeBar(task);
    task.FirstWidth = scale.finishedWidth(task);
}

void KWTaskCollection::refreshTask(KWTaskInfo *task)
{
    const ChangeWatch watch(m_document, task, ChangeWatch::Alone);
    if (!m_document || !task)
        return;
    const timescale::Scale scale = this->scale();
    task->DurationSecs = duration::secs(scale.calendar(), task->Start, task->Finish, task->DurationUnits);
    redraw(scale, *task);
}

void KWTaskCollection::moveAllSubTask(KWTaskInfo *summary, quint32 oldStart)
{
    if (!m_document || !summary || !summary->isParent())
        return;
    const timescale::Scale scale = this->scale();
    const outline::Tasks tasks = m_document->outline();
    const ChangeWatch summaryWatch(m_document, summary, ChangeWatch::Alone);
    const ChangeWatch contentWatch(m_document, m_document->isModified()
                                                   ? std::vector<TaskRecord *>()
                                                   : outline::descendants(tasks, *summary));
    for (TaskRecord *task : moves::content(scale.calendar(), tasks, *summary, oldStart))
        redraw(scale, *task);
}

void KWTaskCollection::recalculateTask(KWTaskInfo *task, quint32 oldStart)
{
    const ChangeWatch watch(m_document, task, ChangeWatch::WithSummaries);
    if (!m_document || !task)
        return;
    if (task->isParent())
        moveAllSubTask(task, oldStart);
    else
        moves::keepDuration(m_document->workCalendar(), *task, oldStart);
    refreshTask(task);
    updateTaskInfoParentTime(task);
}

// ---- Days off ---------------------------------------------------------------------------------------------

quint32 KWTaskCollection::moveBackOneDayStartOnDayOff(KWDocument *document, quint32 secs, bool hourClock)
{
    return document ? dayoff::startBack(document->workCalendar(), secs, hourClock) : 0;
}

quint32 KWTaskCollection::moveForwarstartOnDayOff(KWDocument *document, quint32 secs, bool hourClock)
{
    return document ? dayoff::startForward(document->workCalendar(), secs, hourClock) : 0;
}

quint32 KWTaskCollection::addFinishOnDayOff(KWDocument *document, quint32 secs, bool hourClock)
{
    return document ? dayoff::finishForward(document->workCalendar(), secs, hourClock) : 0;
}

quint32 KWTaskCollection::reduceFinishOnDayOff(KWDocument *document, quint32 secs, bool hourClock)
{
    return document ? dayoff::finishBack(document->workCalendar(), secs, hourClock) : 0;
}

unsigned int KWTaskCollection::continuousDayOff(KWDocument *document, quint32 secs)
{
    return document ? dayoff::run(document->workCalendar(), secs) : 0;
}
