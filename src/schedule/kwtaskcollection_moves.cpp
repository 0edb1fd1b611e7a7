// What follows when a bar is moved: its content, its length, its ancestors.
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "model/outline.h"
#include "schedule/kwtaskcollection.h"
#include "schedule/moves.h"
#include "schedule/timescale.h"

bool KWTaskCollection::isStrechOrMoveToChange(const KWTaskInfo *task, quint32 oldStart, quint32 oldFinish)
{
    return task && (task->Start != oldStart || task->Finish != oldFinish);
}

void KWTaskCollection::redraw(const timescale::Scale &scale, KWTaskInfo &task)
{
    task.updateResourceWorkSecs(m_document);
    scale.placeBar(task);
    task.FirstWidth = scale.finishedWidth(task);
}

void KWTaskCollection::refreshTask(KWTaskInfo *task)
{
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
    const outline::Tasks tasks{m_document->taskList(), m_document->taskIndex()};
    for (KWTaskInfo *task : moves::content(scale.calendar(), tasks, *summary, oldStart))
        redraw(scale, *task);
}

void KWTaskCollection::recalculateTask(KWTaskInfo *task, quint32 oldStart)
{
    if (!m_document || !task)
        return;
    if (task->isParent())
        moveAllSubTask(task, oldStart);
    else
        moves::keepDuration(m_document->workCalendar(), *task, oldStart);
    refreshTask(task);
    updateTaskInfoParentTime(task);
}
