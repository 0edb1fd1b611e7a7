// Dragging a bar and its finish.
#include "engine/network/moves.h"
#include "engine/record/outline.h"
#include "engine/time/dayoff.h"
#include "engine/time/timescale.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include <algorithm>
#include <cstdlib>

namespace {

using worktime::clampSecs;

constexpr int secsPerDay = LocalClock::secsPerDay;
constexpr int secsPerHour = worktime::secsPerHour;

bool isHourScale(const KWDocument &document)
{
    return document.getMinorUnit() >= duration::Hour;
}

// To the multiple of `step`, to its middle when that is nearer (`half`).
qint64 snapped(qint64 secs, int step, bool half)
{
    const int rest = int(secs % step);
    const int lower = half ? step / 4 : step / 2;
    const int upper = half ? step - step / 4 : step / 2;
    if (rest < lower)
        return secs - rest;
    return rest >= upper ? secs + step - rest : secs - rest + step / 2;
}

// Whether the edit may go on with the position's moment in `secs`, on the document's day clock.
bool dropSecs(KWDocument *document, const KWTaskInfo &task, double x, bool snap, quint32 &secs)
{
    secs = document->taskCollection()->secsFromPosition(x);
    if (secs == 0 || !snap)
        return secs != 0;
    secs = task.onHalfOrOneDaySecs(document, secs);
    if (secs == 0)
        return false;
    // The grid of an hour-based scale lies on the hour clock.
    if (isHourScale(*document))
        secs = worktime::secsHourTransDay(document->workCalendar(), secs);
    return true;
}

// The content of a summary has successors of its own.
void pushSuccessors(KWDocument *document, KWTaskInfo &task)
{
    std::vector<KWTaskInfo *> predecessors;
    for (TaskRecord *below : outline::descendants(document->outline(), task))
        predecessors.push_back(asTask(below));
    predecessors.push_back(&task);
    document->taskCollection()->pushSuccessorsOf(predecessors);
}
}

quint32 KWTaskInfo::onHalfOrOneDaySecs(KWDocument *document, quint32 secs) const
{
    if (!document || !document->taskCollection())
        return secs;
    const unsigned int minor = document->getMinorUnit();
    const bool hourScale = minor >= duration::Hour;
    if (s_isSetTime && !hourScale)
        return secs;

    KWTaskCollection *scale = document->taskCollection();
    const worktime::WorkCalendar &calendar = document->workCalendar();
    const LocalClock &clock = calendar.clock();
    const bool beforeOrigin = secs < scale->minDateStart();
    if (beforeOrigin)
        scale->setMinDateStart(clampSecs(clock.startOfDay(clock.wall(secs).day)));

    // From the midnight of the origin's date: an origin of 0 is none in most zones.
    const LocalClock::Wall origin{clock.wall(scale->minDateStart()).day, 0};
    const quint32 moment = hourScale ? worktime::secsDayTransHour(calendar, secs) : secs;
    qint64 offset = worktime::elapsedSecs(origin, clock.wall(moment));
    if (!hourScale)
        offset = snapped(offset, secsPerDay, true);
    else if (minor == duration::Hour && !s_isSetTime)
        offset = snapped(offset, secsPerHour, true);
    else if (minor == duration::Minute)
        offset = snapped(offset, 60, false);
    const quint32 result = clampSecs(clock.moment(origin.day, offset));
    if (!beforeOrigin)
        return result;

    // The same length holds other days off at the new place.
    const qint64 length = qint64(Finish) - 1 - Start;
    if (length < 0)
        return result;
    const qint64 daysOff = worktime::totalDayOff(calendar, Start, Finish - 1);
    const qint64 newDaysOff = worktime::totalDayOff(calendar, result, clampSecs(result + length));
    const LocalClock::Wall at = clock.wall(result);
    return clampSecs(clock.moment(at.day - int(newDaysOff - daysOff), at.secs));
}

void KWTaskInfo::moveStartTo(KWDocument *document, quint32 secs)
{
    if (document && moves::startTo(document->workCalendar(), *this, secs, isHourScale(*document)))
        document->setModified(true);
}

void KWTaskInfo::moveToStop(KWDocument *document, double x, const KWTaskInfo *reference, bool snap)
{
    quint32 secs = 0;
    if (!document || !document->taskCollection() || !dropSecs(document, *this, x, snap, secs))
        return;
    // Positions are rounded to the minute; that alone is no move.
    if (std::abs(qint64(secs) - Start) < 60)
        secs = Start;
    if (reference)
        secs = std::max(secs, reference->Finish);
    moveStartTo(document, secs);
}

void KWTaskInfo::updateMoveAfter(KWDocument *document, double x)
{
    if (!document || !document->taskCollection())
        return;
    const quint32 oldStart = Start;
    const bool snap = !s_isSetTime;
    moveToStop(document, x, nullptr, snap);
    if (Start == oldStart)
        return;
    KWTaskCollection *collection = document->taskCollection();
    collection->recalculateTask(this, oldStart);
    pushSuccessors(document, *this);
    collection->updateTaskInfoParentTime(this);
}

void KWTaskInfo::stretch(KWDocument *document, double x, bool snap)
{
    const ChangeWatch watch(document, this, ChangeWatch::WithSummaries);
    quint32 finish = 0;
    if (!document || !document->taskCollection() || !dropSecs(document, *this, x, snap, finish))
        return;
    const worktime::WorkCalendar &calendar = document->workCalendar();
    // Unsnapped, an hour-based scale still holds whole minutes of the hour clock.
    if (!snap && isHourScale(*document))
        finish = worktime::secsHourTransDay(calendar, worktime::secsDayTransHour(calendar, finish));
    if (finish <= Start) {
        finish =
            document->getMinorUnit() == duration::Hour
                ? worktime::secsHourTransDay(calendar, clampSecs(worktime::secsDayTransHour(calendar, Start) +
                                                                 qint64(secsPerHour / 2)))
                : clampSecs(qint64(Start) + 60);
    }
    const quint32 lastWorked = dayoff::removeLast(calendar, finish);
    Finish = lastWorked > Start ? lastWorked : dayoff::finishForward(calendar, finish, false);

    KWTaskCollection *collection = document->taskCollection();
    collection->refreshTask(this);
    pushSuccessors(document, *this);
    collection->updateTaskInfoParentTime(this);
}
