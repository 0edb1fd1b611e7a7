// Durations of tasks, the walk by a duration, late dates and slack, and where a task stands on the chart.
#include "engine/network/latedates.h"
#include "engine/record/outline.h"
#include "engine/time/dayoff.h"
#include "engine/time/duration.h"
#include "engine/time/timescale.h"
#include "engine/time/walk.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"

// ---- Durations --------------------------------------------------------------------------------------------

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

// ---- Late dates and slack ---------------------------------------------------------------------------------

void KWTaskInfo::updateEarlyLate(KWDocument *document, quint32 projectFinish)
{
    const ChangeWatch watch(document, this, ChangeWatch::Alone);
    if (!document || !document->taskCollection())
        return;
    const unsigned int unit = latedates::slackUnit(document->getMinorUnit());
    latedates::LateDates late(document->workCalendar(), projectFinish, unit,
                              KWDocument::getNameByMinorUnit(unit, false));
    const latedates::Network network = latedates::networkAfter(document->outline(), *this);
    std::vector<quint32> lengths;
    for (const TaskRecord *task : network.tasks)
        lengths.push_back(late.length(*task));
    late.apply(*this, lengths.front(), latedates::tails(network, lengths).front());
}

void KWTaskInfo::recurDependTaskMaxDurValue(KWDocument *document, const KWTaskInfo *task, double &sum,
                                            QList<double> &sums)
{
    if (!document || !document->taskCollection() || !task)
        return;
    const unsigned int unit = latedates::slackUnit(document->getMinorUnit());
    const latedates::Network network = latedates::networkAfter(document->outline(), *task);
    const worktime::WorkCalendar &calendar = document->workCalendar();
    std::vector<double> lengths;
    for (const TaskRecord *other : network.tasks)
        lengths.push_back(duration::valueBetween(calendar, other->Start, other->Finish, unit, false));
    for (const double pathSum : latedates::pathSums(network, lengths, sum))
        sums.append(pathSum);
}

// ---- Chart positions --------------------------------------------------------------------------------------

namespace {

bool hasScale(const KWDocument *document)
{
    return document && document->taskCollection();
}
}

quint32 KWTaskInfo::milestoneSecs(KWDocument *document, quint32 secs)
{
    return hasScale(document) ? document->taskCollection()->scale().milestoneAnchor(secs) : 0;
}

int KWTaskInfo::taskDayPoint(KWDocument *document, bool start) const
{
    return hasScale(document) ? document->taskCollection()->scale().dayPoint(*this, start) : 0;
}

int KWTaskInfo::taskHourPoint(KWDocument *document, bool start) const
{
    return hasScale(document) ? document->taskCollection()->scale().hourPoint(*this, start) : 0;
}

int KWTaskInfo::taskMinutePoint(KWDocument *document, bool start) const
{
    return hasScale(document) ? document->taskCollection()->scale().minutePoint(*this, start) : 0;
}

void KWTaskInfo::updateOneTaskFirstWidth(KWDocument *document)
{
    const ChangeWatch watch(document, this, ChangeWatch::Alone);
    if (hasScale(document))
        FirstWidth = document->taskCollection()->scale().finishedWidth(*this);
}
