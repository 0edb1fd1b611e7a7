#include "engine/time/worktime.h"
#include "engine/time/duration.h"

namespace worktime {

int WorkCalendar::addWorkdays(int day, int count) const
{
    if (day < LocalClock::firstDay || day > LocalClock::lastDay)
        return noDay;
    // From a date off the next working date is already one step.
    const qint64 place = qint64(workdaysBefore(day)) + count - (count > 0 && !isWorkday(day) ? 1 : 0);
    return place >= 0 && place < qint64(m_workdays.size()) ? m_workdays[size_t(place)] : noDay;
}

LocalClock::Wall toDayWall(const WorkCalendar &calendar, HourPoint shown)
{
    constexpr int secsPerDay = LocalClock::secsPerDay;
    const int finishHour = calendar.finishHour();
    const qint64 spanFrom = qint64(calendar.startHour()) * secsPerHour;
    if (calendar.spanSecs() == 0)
        return LocalClock::normalized(shown.day, shown.secs);
    if (finishHour == 24) {
        if (shown.secs == secsPerDay)
            return {shown.day + 1, 0};
    } else if (shown.secs >= spanFrom && shown.secs <= qint64(finishHour) * secsPerHour) {
        // The usual case, in 32 bits: seconds x 86400 / (hours x 3600).
        const unsigned int ofDay =
            unsigned(shown.secs - spanFrom) * 24 / unsigned(finishHour - calendar.startHour());
        return ofDay == secsPerDay ? LocalClock::Wall{shown.day + 1, 0}
                                   : LocalClock::Wall{shown.day, int(ofDay)};
    }
    const LocalClock::Wall wall = LocalClock::normalized(shown.day, shown.secs);
    if (wall.secs < spanFrom && !calendar.oldVersion())
        return wall;
    // Kept on purpose: with F = 24 the span ends at 23:59:59, so the day clock runs up to three seconds fast.
    const qint64 span = calendar.spanSecs() - (finishHour == 24 ? 1 : 0);
    const qint64 scaled = (wall.secs - spanFrom) * secsPerDay;
    return LocalClock::normalized(wall.day, scaled >= 0 ? scaled / span : -((-scaled + span - 1) / span));
}

quint32 secsDayTransHour(const WorkCalendar &calendar, quint32 secs)
{
    const HourPoint shown = toHourClock(calendar, qint64(secs));
    return clampSecs(calendar.clock().moment(shown.day, shown.secs));
}

quint32 secsHourTransDay(const WorkCalendar &calendar, quint32 secs)
{
    const LocalClock::Wall wall = calendar.clock().wall(secs);
    if (calendar.spanSecs() == 0 ||
        (wall.secs < calendar.startHour() * secsPerHour && !calendar.oldVersion()))
        return secs;
    return clampSecs(toDayClock(calendar, {wall.day, wall.secs}));
}

qint64 workSecs(const WorkCalendar &calendar, HourPoint a, HourPoint b)
{
    if (a.day == b.day)
        return std::max<qint64>(0, b.secs - a.secs - calendar.breakSecs(a.day, a.secs, b.secs));
    if (a.day > b.day)
        return 0;
    const qint64 from = qint64(calendar.startHour()) * secsPerHour;
    const qint64 to = qint64(calendar.finishHour()) * secsPerHour;
    const qint64 first =
        std::max<qint64>(0, to - std::clamp(a.secs, from, to) - calendar.breakSecs(a.day, a.secs, to));
    const qint64 last =
        std::max<qint64>(0, std::clamp(b.secs, from, to) - from - calendar.breakSecs(b.day, from, b.secs));
    return first + last + qint64(b.day - a.day - 1) * calendar.hoursPerDay() * secsPerHour;
}

int daysOffInside(const WorkCalendar &calendar, HourPoint a, HourPoint b)
{
    const qint64 from = qint64(calendar.startHour()) * secsPerHour;
    const qint64 to = qint64(calendar.finishHour()) * secsPerHour;
    // Within the span the day clock keeps the date; S:00 is the midnight that ends the date before.
    const int last = b.secs > from && b.secs <= to ? b.day : dayBefore(toDayWall(calendar, b));
    return calendar.daysOff(a.day, last);
}

double workHours(const WorkCalendar &calendar, HourPoint a, HourPoint b)
{
    const qint64 offSecs = qint64(daysOffInside(calendar, a, b)) * calendar.hoursPerDay() * secsPerHour;
    return double(std::max<qint64>(0, workSecs(calendar, a, b) - offSecs)) / secsPerHour;
}

quint32 totalDayOff(const WorkCalendar &calendar, quint32 startSecs, quint32 finishSecs)
{
    if (startSecs > finishSecs)
        return 0;
    const LocalClock &clock = calendar.clock();
    return quint32(calendar.daysOff(clock.wall(startSecs).day, clock.wall(finishSecs).day));
}

WorkedTime workedTime(const WorkCalendar &calendar, LocalClock::Wall start, LocalClock::Wall finish,
                      unsigned int unit)
{
    WorkedTime worked;
    worked.daysOff = calendar.daysOff(start.day, dayBefore(finish));
    if (calendar.oldVersion()) {
        if (unit < duration::Hour) {
            worked.secs = std::max<qint64>(0, elapsedSecs(start, finish));
            worked.secsPerDay = LocalClock::secsPerDay;
        } else {
            const HourPoint a = toHourClock(calendar, start);
            const HourPoint b = toHourClock(calendar, finish);
            worked.secs = std::max<qint64>(0, b.secs - a.secs + (b.day - a.day) * calendar.spanSecs());
            worked.secsPerDay = calendar.spanSecs();
        }
    } else {
        HourPoint b = toHourClock(calendar, finish);
        // Back out of an hour that does not work, once.
        const qint64 ofHour = b.secs % secsPerHour;
        if (ofHour > 0 && !calendar.isWorkHour(b.day, int(b.secs / secsPerHour)))
            b.secs -= ofHour;
        worked.secs = workSecs(calendar, toHourClock(calendar, start), b);
        worked.secsPerDay = qint64(calendar.hoursPerDay()) * secsPerHour;
    }
    if (worked.secs == 1)
        worked.secs = 0;
    return worked;
}

double totalWorkDays(const WorkCalendar &calendar, quint32 startSecs, quint32 finishSecs, unsigned int unit)
{
    const LocalClock &clock = calendar.clock();
    const WorkedTime worked = workedTime(calendar, clock.wall(startSecs), clock.wall(finishSecs), unit);
    if (worked.secsPerDay == 0)
        return 0.0;
    const qint64 secs = worked.secs - worked.daysOff * worked.secsPerDay;
    return secs <= 0 ? 0.0 : double(secs) / double(worked.secsPerDay);
}
}
