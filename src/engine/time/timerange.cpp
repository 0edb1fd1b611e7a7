#include "engine/time/timerange.h"
#include "engine/time/duration.h"
#include <algorithm>
#include <array>
#include <limits>

namespace timerange {
namespace {

using namespace duration;
using worktime::clampSecs;

constexpr quint32 lastSecs = std::numeric_limits<quint32>::max();
constexpr int secsPerDay = LocalClock::secsPerDay;
constexpr qint64 julianDayOf1970 = 2440588;

struct UnitRange
{
    quint32 roomSecs; // an earlier start has no unit before it
    int leastUnits;   // of the unit itself, days for hours and minutes
};
// By unit code.
constexpr std::array<UnitRange, unitCount> unitRanges{
    {{31536000, 10}, {7948800, 12}, {2678400, 10}, {604800, 10}, {86400, 10}, {86400, 2}, {86400, 0}}};

unsigned int boundaryUnit(unsigned int minor)
{
    return std::min<unsigned int>(minor, Day);
}

QDate dateOf(const LocalClock &clock, quint32 secs)
{
    return LocalClock::dateOf(clock.wall(secs).day);
}

QDate addUnits(const QDate &date, unsigned int unit, int count)
{
    switch (unit) {
    case Year:
        return date.addYears(count);
    case Quarter:
        return date.addMonths(3 * count);
    case Month:
        return date.addMonths(count);
    case Week:
        return date.addDays(7LL * count);
    default:
        return date.addDays(count);
    }
}

// Units are numbered without a gap, so that counting and finding boundaries needs no list.
qint64 unitNumber(const QDate &date, unsigned int unit)
{
    switch (unit) {
    case Year:
        return date.year();
    case Quarter:
        return date.year() * 4LL + (date.month() - 1) / 3;
    case Month:
        return date.year() * 12LL + date.month() - 1;
    case Week:
        return date.toJulianDay() / 7; // day 0 was a Monday
    default:
        return date.toJulianDay();
    }
}

QDate firstDateOf(qint64 number, unsigned int unit)
{
    switch (unit) {
    case Year:
        return QDate(int(number), 1, 1);
    case Quarter:
        return QDate(int(number / 4), int(number % 4) * 3 + 1, 1);
    case Month:
        return QDate(int(number / 12), int(number % 12) + 1, 1);
    case Week:
        return QDate::fromJulianDay(number * 7);
    default:
        return QDate::fromJulianDay(number);
    }
}

QDate firstDateOf(const QDate &date, unsigned int unit)
{
    return firstDateOf(unitNumber(date, unit), unit);
}

int unitsFrom(const QDate &first, const QDate &last, unsigned int unit)
{
    const qint64 later = unitNumber(last, unit) - unitNumber(first, unit);
    return 1 + int(qBound<qint64>(0, later, std::numeric_limits<int>::max() - 1));
}

qint64 momentAt(const LocalClock &clock, const QDate &date, int secsOfDay)
{
    return clock.moment(int(date.toJulianDay() - julianDayOf1970), secsOfDay);
}

quint32 midnight(const LocalClock &clock, const QDate &date)
{
    return clampSecs(momentAt(clock, date, 0));
}
}

quint32 unitStart(const LocalClock &clock, quint32 secs, unsigned int unit)
{
    return midnight(clock, firstDateOf(dateOf(clock, secs), boundaryUnit(unit)));
}

quint32 mondayOf(const LocalClock &clock, quint32 secs)
{
    const LocalClock::Wall at = clock.wall(secs);
    return clampSecs(clock.moment(at.day - LocalClock::weekday(at.day), at.secs));
}

quint32 rangeStart(const LocalClock &clock, quint32 secs, unsigned int minor)
{
    const LocalClock::Wall at = clock.wall(secs);
    QDate date = LocalClock::dateOf(at.day);
    qint64 moment = secs;
    if (minor < unitCount && secs > unitRanges[minor].roomSecs) {
        const unsigned int unit = boundaryUnit(minor);
        date = firstDateOf(addUnits(date, unit, -1), unit);
        // Weeks and days are stepped back with their time of day, longer units begin at midnight.
        moment = momentAt(clock, date, unit < Week ? 0 : at.secs);
    }
    return moment < secsPerDay ? 0 : midnight(clock, date);
}

quint32 rangeEnd(const LocalClock &clock, quint32 secs, quint32 origin, unsigned int minor)
{
    const unsigned int unit = boundaryUnit(minor);
    const quint32 lastCovered = secs > 0 ? secs - 1 : 0;
    const int leastUnits = minor < unitCount ? unitRanges[minor].leastUnits : 0;
    const QDate wanted = std::max(addUnits(dateOf(clock, origin), unit, leastUnits),
                                  addUnits(dateOf(clock, lastCovered), unit, 1));
    return midnight(clock, firstDateOf(std::min(wanted, dateOf(clock, lastSecs)), unit));
}

qint64 chartEnd(const LocalClock &clock, quint32 lastUnit, unsigned int minor)
{
    const LocalClock::Wall at = clock.wall(lastUnit);
    return momentAt(clock, addUnits(LocalClock::dateOf(at.day), boundaryUnit(minor), 1), at.secs);
}

quint32 laterRangeEnd(const LocalClock &clock, quint32 lastUnit, unsigned int minor, int units)
{
    const unsigned int unit = boundaryUnit(minor);
    const qint64 wanted = unitNumber(dateOf(clock, lastUnit), unit) + units;
    const qint64 last = unitNumber(dateOf(clock, lastSecs), unit);
    return std::max(lastUnit, midnight(clock, firstDateOf(std::min(wanted, last), unit)));
}

int unitsFrom(const LocalClock &clock, quint32 first, quint32 last, unsigned int minor)
{
    return unitsFrom(dateOf(clock, first), dateOf(clock, last), boundaryUnit(minor));
}

UnitDates::UnitDates(const QDateTime &start, const QDateTime &finish)
{
    if (start.isValid() && finish.isValid()) {
        m_start = start.toLocalTime();
        m_finish = finish.toLocalTime().date();
    }
}

int UnitDates::count(unsigned int minor) const
{
    if (!m_start.isValid())
        return 0;
    return unitsFrom(m_start.date(), m_finish, boundaryUnit(minor));
}

QDateTime UnitDates::at(unsigned int minor, int index) const
{
    if (index < 0 || index >= count(minor))
        return QDateTime();
    const unsigned int unit = boundaryUnit(minor);
    return index == 0 ? m_start : firstDateOf(unitNumber(m_start.date(), unit) + index, unit).startOfDay();
}
}
