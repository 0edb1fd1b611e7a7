#include "engine/time/shownmoment.h"
#include "engine/time/dayoff.h"
#include "engine/time/duration.h"

using worktime::HourPoint;
using worktime::secsPerHour;
using worktime::WorkCalendar;
using Wall = LocalClock::Wall;

namespace shownmoment {
namespace {

constexpr int secsPerMinute = 60;

// The moment when the wall clock shows that time, or the first one behind the gap that swallows it.
qint64 nextExisting(const LocalClock &clock, Wall wall)
{
    const auto exists = [&](int secs) { return clock.wall(clock.moment(wall.day, secs)).secs == secs; };
    if (exists(wall.secs))
        return clock.moment(wall.day, wall.secs);
    // A date has one gap at most, and what is asked for lies in it.
    int before = -1;
    int within = wall.secs;
    while (within - before > 1) {
        const int middle = before + (within - before) / 2;
        (exists(middle) ? before : within) = middle;
    }
    // The first moment of a date without midnight counts as one.
    return clock.moment(wall.day, within == 1 ? 0 : within);
}

bool endsItsDate(const WorkCalendar &calendar, const Moment &shown)
{
    const int hour = shown.secs / secsPerHour;
    return !shown.hasTime || shown.secs < secsPerMinute || hour < calendar.startHour() ||
           shown.secs > calendar.finishHour() * secsPerHour;
}
}

quint32 start(const WorkCalendar &calendar, const Moment &shown, DaysOff daysOff)
{
    const int hour = shown.secs / secsPerHour;
    Wall stored{shown.day, 0};
    if (shown.hasTime && hour > calendar.finishHour())
        ++stored.day;
    else if (shown.hasTime && hour >= calendar.startHour())
        stored = toDayWall(calendar, HourPoint{shown.day, shown.secs});
    if (daysOff == MoveOn)
        stored = dayoff::startForward(calendar, stored, false);
    return worktime::clampSecs(nextExisting(calendar.clock(), stored));
}

quint32 finish(const WorkCalendar &calendar, const Moment &shown, DaysOff daysOff)
{
    constexpr bool hourClock = false;
    Wall stored{shown.day + 1, 0};
    if (!endsItsDate(calendar, shown)) {
        stored = toDayWall(calendar, HourPoint{shown.day, shown.secs});
        if (stored.day == shown.day && stored.secs == 0)
            stored = dayoff::finishBack(calendar, stored, hourClock);
    }
    if (daysOff == MoveOn)
        stored = dayoff::finishForward(calendar, stored, hourClock);
    const LocalClock &clock = calendar.clock();
    const qint64 moment = nextExisting(clock, stored);
    // What is shown is the second before, which must not lie in front of a gap.
    const bool isBehindGap = stored.secs > 0 && clock.wall(moment - 1).secs + 1 != clock.wall(moment).secs;
    return worktime::clampSecs(moment + (isBehindGap ? 1 : 0));
}

Moment ofStart(const WorkCalendar &calendar, quint32 secs)
{
    const HourPoint shown = toHourClock(calendar, qint64(secs));
    return {shown.day, int(shown.secs), true};
}

Moment ofFinish(const WorkCalendar &calendar, quint32 secs)
{
    const HourPoint shown = toHourClock(calendar, qint64(secs) - 1);
    return {shown.day, int(shown.secs), true};
}

bool isSame(const WorkCalendar &calendar, quint32 a, quint32 b)
{
    if (calendar.hoursPerDay() == 0)
        return a == b;
    return duration::secs(calendar, std::min(a, b), std::max(a, b), duration::Minute) < secsPerMinute / 2;
}
}
