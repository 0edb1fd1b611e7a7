#include "engine/time/duration.h"
#include "format/dataformat.h"
#include <array>
#include <cmath>

namespace duration {

using worktime::WorkCalendar;
using Wall = LocalClock::Wall;

namespace {

struct UnitRow
{
    const char *name;
    int calendarDays; // 0 for working units
    int secs;         // of duration; a week has as many days as the calendar's week
    int shownDecimals;
};
constexpr UnitRow units[unitCount] = {
    {"year", 365, 365 * 86400, 3}, {"quarter", 90, 90 * 86400, 3}, {"month", 30, 30 * 86400, 1},
    {"week", 0, 86400, 1},         {"day", 0, 86400, 1},           {"hour", 0, 3600, 1},
    {"minute", 0, 60, 0},
};

constexpr int hoursPerDay = LocalClock::secsPerDay / worktime::secsPerHour;

// Seconds of dates off between two stored points.
qint64 offSecs(const WorkCalendar &calendar, Wall start, Wall finish)
{
    if (start.day == finish.day)
        return calendar.isWorkday(start.day) ? 0 : std::max(0, finish.secs - start.secs);
    constexpr int secsPerDay = LocalClock::secsPerDay;
    const qint64 first = calendar.isWorkday(start.day) ? 0 : secsPerDay - start.secs;
    const qint64 last = calendar.isWorkday(finish.day) ? 0 : finish.secs;
    return first + last + qint64(calendar.daysOff(start.day + 1, finish.day - 1)) * secsPerDay;
}

}

const char *unitName(unsigned int unit)
{
    return units[unit < unitCount ? unit : unsigned(Day)].name;
}

const char *shortUnitName(unsigned int unit)
{
    static constexpr std::array<const char *, unitCount> names{"y", "q", "mon", "w", "d", "h", "min"};
    return unit < unitCount ? names[unit] : "";
}

int calendarDays(unsigned int unit)
{
    return unit < unitCount ? units[unit].calendarDays : 0;
}

quint32 secs(const WorkCalendar &calendar, quint32 start, quint32 finish, unsigned int unit)
{
    if (start >= finish)
        return 0;
    const LocalClock &clock = calendar.clock();
    return secs(calendar, clock.wall(start), clock.wall(finish), unit);
}

quint32 secs(const WorkCalendar &calendar, Wall from, Wall to, unsigned int unit)
{
    if (unit < Week || unit > Minute || !calendar.hasWorkday())
        return worktime::clampSecs(worktime::elapsedSecs(from, to));
    if (calendar.oldVersion() && unit < Hour)
        return worktime::clampSecs(worktime::elapsedSecs(from, to) - offSecs(calendar, from, to));

    // The days are never divided out and multiplied again: that would lose a second to binary noise.
    const worktime::WorkedTime worked = worktime::workedTime(calendar, from, to, unit);
    if (worked.secsPerDay == 0)
        return 0;
    if (unit >= Hour)
        return worktime::clampSecs(worked.secs - worked.daysOff * worked.secsPerDay);
    // In hours, since overlapping intervals can make a day so long that its seconds times a day's overflow.
    const qint64 secsOfDays = worked.secs * hoursPerDay / (worked.secsPerDay / worktime::secsPerHour);
    return worktime::clampSecs(secsOfDays - qint64(worked.daysOff) * LocalClock::secsPerDay);
}

double value(const WorkCalendar &calendar, qint64 durationSecs, unsigned int unit)
{
    if (unit >= unitCount)
        return 0.0;
    const int perUnit = units[unit].secs * (unit == Week ? daysPerWeek(calendar) : 1);
    return double(durationSecs) / double(perUnit);
}

double roundedValue(double value, unsigned int unit)
{
    const int decimals = unit < unitCount ? units[unit].shownDecimals : 1;
    constexpr double scales[] = {1, 10, 100, 1000};
    const double scaled = value * scales[decimals];
    const double whole = std::floor(scaled + 0.5);
    // Away from a tie the text is the nearest decimal, and the division gives the double nearest to that.
    if (value >= 0 && scaled < 1e9 && std::abs(scaled - whole) < 0.499)
        return whole / scales[decimals];
    return DataFormat::formatNumber(value, 0, decimals, 1).toDouble();
}

double valueBetween(const WorkCalendar &calendar, quint32 start, quint32 finish, unsigned int unit,
                    bool rounded)
{
    if (start >= finish)
        return 0.0;
    const double exact = value(calendar, secs(calendar, start, finish, unit), unit);
    return rounded ? roundedValue(exact, unit) : exact;
}

double ofTask(const WorkCalendar &calendar, quint32 start, quint32 finish, unsigned int unit)
{
    const quint32 length = secs(calendar, start, finish, unit);
    // Kept on purpose: also a task that is no milestone.
    return length == milestoneSecs ? 0.0 : value(calendar, length, unit);
}

double stretchDayOff(const WorkCalendar &calendar, quint32 start, quint32 finish)
{
    if (start > finish || !calendar.hasWorkday())
        return 0.0;
    const LocalClock &clock = calendar.clock();
    return double(offSecs(calendar, clock.wall(start), clock.wall(finish))) / double(LocalClock::secsPerDay);
}
}
