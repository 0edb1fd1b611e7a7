#include "engine/time/dayoff.h"

namespace dayoff {

using worktime::HourPoint;
using worktime::WorkCalendar;
using Wall = LocalClock::Wall;

namespace {

constexpr int secsPerHour = worktime::secsPerHour;
constexpr quint32 allHours = (1u << 24) - 1;

// The time of day is kept.
Wall toStartDate(const WorkCalendar &calendar, Wall stored, bool forward)
{
    const int day = forward ? calendar.workdayOnOrAfter(stored.day) : calendar.workdayOnOrBefore(stored.day);
    return day == WorkCalendar::noDay ? stored : Wall{day, stored.secs};
}

Wall toFinishDate(const WorkCalendar &calendar, Wall stored, bool forward)
{
    const int own = worktime::dayBefore(stored);
    const int day = forward ? calendar.workdayOnOrAfter(own) : calendar.workdayOnOrBefore(own);
    return day == WorkCalendar::noDay ? stored : Wall{stored.day + day - own, stored.secs};
}

// Whether the second before the point lies in an hour that works, or the point begins the day (S:00 is the
// end of the date before).
bool isFinish(const WorkCalendar &calendar, HourPoint point)
{
    if (point.secs <= calendar.startHour() * secsPerHour)
        return true;
    return calendar.isWorkHour(point.day, int((point.secs - 1) / secsPerHour));
}

// An hour of the date that works at or after (before) `hour`; -1 when there is none.
int workHourOnOrAfter(const WorkCalendar &calendar, int day, int hour)
{
    const quint32 hours = calendar.hoursMask(day) & (allHours << unsigned(hour)) & allHours;
    return hours ? int(qCountTrailingZeroBits(hours)) : -1;
}

int workHourOnOrBefore(const WorkCalendar &calendar, int day, int hour)
{
    const quint32 hours = calendar.hoursMask(day) & (allHours >> unsigned(23 - hour));
    return hours ? 31 - int(qCountLeadingZeroBits(hours)) : -1;
}

// To the beginning of the first hour that works, when the point's own hour does not.
HourPoint startHourForward(const WorkCalendar &calendar, HourPoint point)
{
    HourPoint at = point;
    if (at.secs >= LocalClock::secsPerDay)
        at = {at.day + 1, at.secs - LocalClock::secsPerDay};
    int hour = int(at.secs / secsPerHour);
    if (calendar.isWorkHour(at.day, hour))
        return point;
    for (int day = at.day; day <= LocalClock::lastDay; ++day, hour = 0) {
        const int found = workHourOnOrAfter(calendar, day, hour);
        if (found >= 0)
            return {day, qint64(found) * secsPerHour};
    }
    return point;
}

// Whole hours back until the point lies in an hour that works.
HourPoint startHourBack(const WorkCalendar &calendar, HourPoint point)
{
    HourPoint at = point;
    if (at.secs >= LocalClock::secsPerDay)
        at = {at.day + 1, at.secs - LocalClock::secsPerDay};
    int hour = int(at.secs / secsPerHour);
    if (calendar.isWorkHour(at.day, hour))
        return point;
    for (int day = at.day; day >= LocalClock::firstDay; --day, hour = 23) {
        const int found = workHourOnOrBefore(calendar, day, hour);
        if (found >= 0)
            return {day, qint64(found) * secsPerHour + at.secs % secsPerHour};
    }
    return point;
}

// Whole hours on until the second before works.
HourPoint finishHourForward(const WorkCalendar &calendar, HourPoint point)
{
    HourPoint at = point;
    // A day has no more than 24 hours to try: past midnight the first hours lie before S.
    for (int hour = 0; hour < 24 && !isFinish(calendar, at); ++hour) {
        at.secs += secsPerHour;
        if (at.secs > LocalClock::secsPerDay)
            at = {at.day + 1, at.secs - LocalClock::secsPerDay};
    }
    return isFinish(calendar, at) ? at : point;
}

// To full hours back until the second before works.
HourPoint finishHourBack(const WorkCalendar &calendar, HourPoint point)
{
    while (!isFinish(calendar, point)) {
        const qint64 ofHour = point.secs % secsPerHour;
        point.secs -= ofHour > 0 ? ofHour : secsPerHour;
    }
    return point;
}

// A start's step of hours can end on the next date, when no hour from its own to F works.
constexpr int dateRounds = 3;

template <typename Point>
quint32 onMoments(const WorkCalendar &calendar, quint32 secs, bool hourClock, Point point)
{
    if (!calendar.hasWorkday())
        return secs;
    const Wall stored = calendar.clock().wall(secs);
    const Wall moved = point(calendar, stored, hourClock);
    if (moved.day == stored.day && moved.secs == stored.secs)
        return secs;
    const qint64 moment = calendar.clock().moment(moved.day, moved.secs);
    return moment == qint64(worktime::clampSecs(moment)) ? quint32(moment) : secs;
}

}

Wall startForward(const WorkCalendar &calendar, Wall stored, bool hourClock)
{
    if (!calendar.hasWorkday())
        return stored;
    stored = toStartDate(calendar, stored, true);
    if (!hourClock)
        return stored;
    for (int round = 0; round < dateRounds; ++round) {
        stored = toDayWall(calendar, startHourForward(calendar, toHourClock(calendar, stored)));
        if (calendar.isWorkday(stored.day))
            break;
        stored = toStartDate(calendar, stored, true);
    }
    return stored;
}

Wall startBack(const WorkCalendar &calendar, Wall stored, bool hourClock)
{
    if (!calendar.hasWorkday())
        return stored;
    stored = toStartDate(calendar, stored, false);
    return hourClock ? toDayWall(calendar, startHourBack(calendar, toHourClock(calendar, stored))) : stored;
}

Wall finishForward(const WorkCalendar &calendar, Wall stored, bool hourClock)
{
    if (!calendar.hasWorkday())
        return stored;
    stored = toFinishDate(calendar, stored, true);
    return hourClock ? toDayWall(calendar, finishHourForward(calendar, toHourClock(calendar, stored)))
                     : stored;
}

Wall finishBack(const WorkCalendar &calendar, Wall stored, bool hourClock)
{
    if (!calendar.hasWorkday())
        return stored;
    stored = toFinishDate(calendar, stored, false);
    if (!hourClock)
        return stored;
    stored = toDayWall(calendar, finishHourBack(calendar, toHourClock(calendar, stored)));
    // Seconds after a midnight round down to it, and so to the date before.
    return calendar.spanSecs() > 0 ? toFinishDate(calendar, stored, false) : stored;
}

quint32 startForward(const WorkCalendar &calendar, quint32 secs, bool hourClock)
{
    return onMoments(calendar, secs, hourClock, [](const auto &...args) { return startForward(args...); });
}

quint32 startBack(const WorkCalendar &calendar, quint32 secs, bool hourClock)
{
    return onMoments(calendar, secs, hourClock, [](const auto &...args) { return startBack(args...); });
}

quint32 finishForward(const WorkCalendar &calendar, quint32 secs, bool hourClock)
{
    return onMoments(calendar, secs, hourClock, [](const auto &...args) { return finishForward(args...); });
}

quint32 finishBack(const WorkCalendar &calendar, quint32 secs, bool hourClock)
{
    return onMoments(calendar, secs, hourClock, [](const auto &...args) { return finishBack(args...); });
}

quint32 removeLast(const WorkCalendar &calendar, quint32 secs)
{
    const Wall stored = calendar.clock().wall(secs);
    const int own = worktime::dayBefore(stored);
    if (!calendar.hasWorkday() || calendar.isWorkday(own))
        return secs;
    const int day = calendar.workdayOnOrBefore(own);
    const qint64 end = day == WorkCalendar::noDay ? -1 : calendar.clock().startOfDay(day + 1);
    return end < 0 ? secs : worktime::clampSecs(end);
}

unsigned int run(const WorkCalendar &calendar, quint32 secs)
{
    if (!calendar.hasWorkday())
        return 0;
    const LocalClock &clock = calendar.clock();
    const int day = clock.wall(secs).day;
    const int next = calendar.workdayOnOrAfter(day);
    const int afterLast = clock.wall(4294967295LL).day + 1;
    return unsigned(next == WorkCalendar::noDay ? afterLast - day : std::min(next, afterLast) - day);
}
}
