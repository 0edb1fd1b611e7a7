// Durations of tasks in their units, and the walk from a start by a duration.
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/dayoff.h"
#include "schedule/duration.h"
#include "schedule/walk.h"

quint32 KWTaskInfo::durationSecs(KWDocument *document, quint32 start, quint32 finish, unsigned int unit)
{
    return document ? duration::secs(document->workCalendar(), start, finish, unit) : 0;
}

double KWTaskInfo::getDurationValue(KWDocument *document, quint32 durationSecs, unsigned int unit)
{
    return document ? duration::value(document->workCalendar(), durationSecs, unit) : 0.0;
}

quint32 KWTaskInfo::backwardsDateTime(KWDocument *document, quint32 start, double value, unsigned int unit)
{
    if (!document || !document->taskCollection())
        return start;
    return walk::byUnits(document->workCalendar(), start, value, unit);
}

quint32 KWTaskInfo::getTaskPercentFinishSecs(KWDocument *document, const KWTaskInfo *task)
{
    if (!document || !task)
        return 0;
    if (!document->taskCollection())
        return task->Start;
    return walk::partOf(document->workCalendar(), task->Start, task->Finish, task->DurationUnits,
                        task->Percent);
}

double KWTaskInfo::getDurValueByTaskInfo(KWDocument *document, const KWTaskInfo *task)
{
    if (!document || !task)
        return 0.0;
    return duration::ofTask(document->workCalendar(), task->Start, task->Finish, task->DurationUnits);
}

double KWTaskInfo::stretchDayOff(KWDocument *document, quint32 start, quint32 finish)
{
    return document ? duration::stretchDayOff(document->workCalendar(), start, finish) : 0.0;
}

quint32 KWTaskInfo::removeLastDayOff(KWDocument *document, quint32 secs)
{
    return document ? dayoff::removeLast(document->workCalendar(), secs) : secs;
}
