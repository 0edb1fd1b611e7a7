#include "engine/network/moves.h"
#include "engine/network/rollup.h"
#include "engine/record/taskrecord.h"
#include "engine/time/dayoff.h"
#include "engine/time/duration.h"
#include "engine/time/walk.h"
#include <algorithm>

namespace moves {
namespace {

using worktime::clampSecs;
using worktime::WorkCalendar;

// Start and finish go to another moment together. A finish that is not set, while the start is, stays so.
void shift(TaskRecord &task, quint32 start)
{
    const qint64 by = qint64(start) - task.Start;
    if (task.Finish || !task.Start)
        task.Finish = clampSecs(task.Finish + by);
    task.Start = start;
}

// Without working days or hours a length in working time says nothing, or is the elapsed one.
bool measuresWork(const WorkCalendar &calendar)
{
    return calendar.hasWorkday() && calendar.hoursPerDay() > 0;
}

// `secs` as far on the wall clock from `to` as it was from `from`: a day stays a day when the clock changes.
quint32 carried(const LocalClock &clock, quint32 secs, quint32 from, quint32 to)
{
    const LocalClock::Wall target = clock.wall(to);
    const qint64 distance = worktime::elapsedSecs(clock.wall(from), clock.wall(secs));
    return clampSecs(clock.moment(target.day, target.secs + distance));
}

// Working dates from `from` up to and without `to`; negative when `to` lies before `from`.
int workdaysBetween(const WorkCalendar &calendar, int from, int to)
{
    if (from > to)
        return -workdaysBetween(calendar, to, from);
    return to - from - calendar.daysOff(from, to - 1);
}

// Where a start goes when the start it is tied to moves.
class Carrier
{
public:
    Carrier(const WorkCalendar &calendar, quint32 oldStart, quint32 newStart)
        : m_calendar(calendar)
        , m_oldStart(oldStart)
        , m_newStart(newStart)
        , m_old(calendar.clock().wall(oldStart))
        , m_new(calendar.clock().wall(newStart))
    {
    }

    quint32 start(quint32 secs) const
    {
        if (secs == m_oldStart)
            return m_newStart;
        if (!measuresWork(m_calendar))
            return dayoff::startForward(m_calendar, carriedElapsed(secs), false);
        return m_old.secs == m_new.secs ? byDates(secs) : byMinutes(secs);
    }

private:
    quint32 carriedElapsed(quint32 secs) const
    {
        return carried(m_calendar.clock(), secs, m_oldStart, m_newStart);
    }

    quint32 byDates(quint32 secs) const
    {
        const LocalClock::Wall at = m_calendar.clock().wall(secs);
        const int distance = workdaysBetween(m_calendar, m_old.day, at.day);
        const int day = distance ? m_calendar.addWorkdays(m_new.day, distance) : m_new.day;
        if (day == WorkCalendar::noDay)
            return carriedElapsed(secs);
        return clampSecs(m_calendar.clock().moment(day, at.secs));
    }

    quint32 byMinutes(quint32 secs) const
    {
        const bool after = secs > m_oldStart;
        const double minutes = duration::valueBetween(m_calendar, std::min(secs, m_oldStart),
                                                      std::max(secs, m_oldStart), duration::Minute, false);
        if (minutes == 0.0)
            return m_newStart;
        const quint32 point =
            walk::byUnits(m_calendar, m_newStart, after ? minutes : -minutes, duration::Minute);
        // A walk forward ends where a finish would lie, at a day's end or before a break.
        return after ? dayoff::startForward(m_calendar, point, true) : point;
    }

    const WorkCalendar &m_calendar;
    quint32 m_oldStart;
    quint32 m_newStart;
    LocalClock::Wall m_old;
    LocalClock::Wall m_new;
};

}

bool startTo(const WorkCalendar &calendar, TaskRecord &task, quint32 secs, bool hourScale)
{
    const quint32 start = dayoff::startForward(calendar, secs, hourScale);
    if (start == task.Start)
        return false;
    shift(task, start);
    return true;
}

void keepDuration(const WorkCalendar &calendar, TaskRecord &task, quint32 oldStart)
{
    const quint32 oldFinish = clampSecs(qint64(task.Finish) - (qint64(task.Start) - oldStart));
    const bool elapsed = task.Milestone || task.DurationUnits <= duration::Month ||
                         task.DurationUnits > duration::Minute || !measuresWork(calendar);
    if (oldFinish > oldStart && oldFinish - oldStart > 1) {
        if (elapsed) {
            task.Finish = carried(calendar.clock(), oldFinish, oldStart, task.Start);
        } else {
            const double value =
                duration::valueBetween(calendar, oldStart, oldFinish, task.DurationUnits, false);
            task.Finish = walk::byUnits(calendar, task.Start, value, task.DurationUnits);
        }
    }
    task.DurationSecs = duration::secs(calendar, task.Start, task.Finish, task.DurationUnits);
}

std::vector<TaskRecord *> content(const WorkCalendar &calendar, const outline::Tasks &tasks,
                                  TaskRecord &summary, quint32 oldStart)
{
    std::vector<TaskRecord *> below = outline::descendants(tasks, summary);
    const Carrier carrier(calendar, oldStart, summary.Start);
    // From the last to the first, so that what lies below a summary is in place before it is rolled up.
    for (auto it = below.rbegin(); it != below.rend(); ++it) {
        TaskRecord &task = **it;
        if (rollup::datesOfDated(calendar, tasks, task) || task.Start == 0)
            continue;
        const quint32 taskStart = task.Start;
        shift(task, carrier.start(taskStart));
        keepDuration(calendar, task, taskStart);
    }
    if (!rollup::datesOfDated(calendar, tasks, summary))
        keepDuration(calendar, summary, oldStart);
    return below;
}
}
