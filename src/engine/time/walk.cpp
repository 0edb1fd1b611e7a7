#include "engine/time/walk.h"
#include "engine/time/dayoff.h"
#include "engine/time/duration.h"
#include <cmath>
#include <limits>
#include <optional>

namespace walk {

using worktime::Breaks;
using worktime::HourPoint;
using worktime::WorkCalendar;
using Wall = LocalClock::Wall;

namespace {

constexpr int secsPerDay = LocalClock::secsPerDay;
constexpr int secsPerHour = worktime::secsPerHour;

// Past these nothing changes any more: the result lies outside the time range.
constexpr double largestValue = 1e15;
constexpr qint64 largestDays = 100000;

// A difference of one minute is still corrected, also when the value comes from a duration that was cut to a
// whole second.
constexpr double toleranceHours = 59.0 / secsPerHour;
constexpr int maxCorrections = 100;
// Dates that one correction passes while it looks for free hours; calendars without any would be walked to
// their end.
constexpr int maxCarries = 40;

qint64 clampDays(double days)
{
    return qint64(std::clamp(days, -double(largestDays), double(largestDays)));
}

struct DaysAndSecs
{
    qint64 days = 0;
    qint64 secs = 0;
};

// Where the search begins: whole dates on, and the rest as a fraction of a chart day.
DaysAndSecs coarseJump(const WorkCalendar &calendar, double value, unsigned int unit, int hoursPerDay)
{
    if (const int days = duration::calendarDays(unit)) {
        // 365 x (6 / 365.0) is 5.999999999999999.
        constexpr double binaryNoise = 1e-6;
        return {clampDays(std::trunc(days * value + std::copysign(binaryNoise, value))), 0};
    }
    double fraction = 0;
    qint64 wholeDays = 0;
    if (unit < duration::Hour) {
        const double days = unit == duration::Week ? duration::daysPerWeek(calendar) * value : value;
        wholeDays = clampDays(std::trunc(days));
        fraction = days - std::trunc(days);
    } else {
        const qint64 unitsPerHour = unit == duration::Minute ? 60 : 1;
        const qint64 unitsPerDay = hoursPerDay * unitsPerHour;
        const qint64 whole = qint64(value);
        wholeDays = std::clamp(whole / unitsPerDay, -largestDays, largestDays);
        const qint64 spanHours = calendar.finishHour() - calendar.startHour();
        if (spanHours > 0)
            fraction =
                (double(whole % unitsPerDay) + (value - double(whole))) / double(spanHours * unitsPerHour);
    }
    return {wholeDays, qint64(std::floor(fraction * secsPerDay + 0.5))};
}

Wall jumped(Wall from, DaysAndSecs jump)
{
    const Wall to = LocalClock::normalized(from.day + jump.days, from.secs + jump.secs);
    if (to.day < LocalClock::firstDay)
        return {LocalClock::firstDay, 0};
    return to.day > LocalClock::lastDay ? Wall{LocalClock::lastDay, 0} : to;
}

// Steps on the hour clock in working time. A finish stands at the end of the work before it (noon, not 13:00,
// and a day's end rather than the next day's beginning), a start at the beginning of the work after it.
class Stepper
{
public:
    explicit Stepper(const WorkCalendar &calendar)
        : m_calendar(calendar)
    {
    }

    HourPoint moveFinish(HourPoint point, qint64 days, qint64 secs) const
    {
        return count() == 0 ? point : finishAt(moved(point, days, secs));
    }

    HourPoint moveStart(HourPoint point, qint64 days, qint64 secs) const
    {
        return count() == 0 ? point : startAt(moved(point, days, secs));
    }

    // The finish whose working time since `from` is nearest to the target; the later one of equals.
    HourPoint nearestFinish(HourPoint from, qint64 targetSecs) const
    {
        if (count() == 0)
            return from;
        const qint64 own = indexOf(from.day);
        const qint64 ofOwnDate = workSecs(m_calendar, from, {from.day, spanTo()});
        if (targetSecs <= ofOwnDate)
            return finishAt({own, placeOf(from).workedSecs + targetSecs});
        const Reach reach = nearest(targetSecs - ofOwnDate, count() - own - 1,
                                    [&](qint64 dates) { return total(own + 1 + dates); });
        const qint64 index = std::min(own + 1 + reach.dates, count() - 1);
        if (reach.isWholeDate || index < own + 1 + reach.dates)
            return {dayAt(index), spanTo()};
        return finishAt({index, reach.secs});
    }

    // The start whose working time up to `to` is nearest to the target; the earlier one of equals.
    HourPoint nearestStart(HourPoint to, qint64 targetSecs) const
    {
        if (count() == 0)
            return to;
        const qint64 own = indexOf(to.day);
        const qint64 ofOwnDate = works(to.day) ? workSecs(m_calendar, {to.day, spanFrom()}, to) : 0;
        if (targetSecs <= ofOwnDate)
            return startAt({own, ofOwnDate - targetSecs});
        const Reach reach =
            nearest(targetSecs - ofOwnDate, own, [&](qint64 dates) { return total(own - 1 - dates); });
        const qint64 index = std::max<qint64>(own - 1 - reach.dates, 0);
        if (reach.isWholeDate || index > own - 1 - reach.dates)
            return asStart({dayAt(index), spanFrom()});
        return startAt({index, total(index) - reach.secs});
    }

    // The same moment as the beginning of the work after it: out of a break, off a day's end.
    HourPoint asStart(HourPoint point) const
    {
        if (m_calendar.spanSecs() == 0)
            return point;
        const Breaks &breaks = m_calendar.breaks(point.day);
        if (breaks.hours > 0 && point.secs < spanTo()) {
            const int hour = int(point.secs / secsPerHour);
            const auto end = breaks.freeHour.begin() + breaks.freeHours;
            const auto free = std::lower_bound(breaks.freeHour.begin(), end, hour);
            if (free == end)
                point.secs = spanTo();
            else if (*free > hour)
                point.secs = *free * secsPerHour;
        }
        if (point.secs < spanTo())
            return point;
        const qint64 next = indexAfter(point.day);
        return next < count() ? HourPoint{dayAt(next), spanFrom()} : point;
    }

    // The same moment as it is stored: a day's end is the next date's beginning.
    HourPoint asStored(HourPoint point) const
    {
        return m_calendar.spanSecs() > 0 && point.secs == spanTo() ? HourPoint{point.day + 1, spanFrom()}
                                                                   : point;
    }

private:
    // A working date by its place in the calendar, and the seconds of its work that are done.
    struct WorkPoint
    {
        qint64 index = 0;
        qint64 workedSecs = 0;
    };

    // How far a working time leads: whole dates, each worth the hours of a day, and a part of the date there.
    struct Reach
    {
        qint64 dates = 0;
        qint64 secs = 0;
        bool isWholeDate = false; // all of that date, though its own work may not be enough
    };

    // A date with fewer hours than a day is worth those hours up to its end and a day's hours past it, so
    // some working times are met nowhere; with more hours than a day, some are met on several dates. The
    // farthest one of equals. `totalOf` gives the work of a date; past `dateCount` dates nothing is asked.
    template <typename TotalOf>
    Reach nearest(qint64 targetSecs, qint64 dateCount, TotalOf totalOf) const
    {
        const qint64 perDay = qint64(m_calendar.hoursPerDay()) * secsPerHour;
        const qint64 farthest = targetSecs / perDay;
        if (farthest >= dateCount)
            return {farthest, 0, true};
        // A date has up to 24 hours and a day at least one.
        constexpr qint64 datesToTry = 24;
        Reach best;
        qint64 least = std::numeric_limits<qint64>::max();
        for (qint64 dates = farthest; dates >= std::max<qint64>(0, farthest - datesToTry); --dates) {
            const qint64 secs = targetSecs - dates * perDay;
            const qint64 ofDate = totalOf(dates);
            const qint64 missing = secs <= ofDate ? 0 : std::min(secs - ofDate, std::abs(perDay - secs));
            if (missing >= least)
                continue;
            best = {dates, secs, secs >= ofDate};
            least = missing;
        }
        return best;
    }

    HourPoint finishAt(WorkPoint place) const
    {
        const int day = dayAt(place.index);
        if (place.workedSecs == 0)
            return {day, spanFrom()};
        const qint64 hoursBefore = (place.workedSecs - 1) / secsPerHour;
        return {day, m_calendar.breaks(day).freeHour[size_t(hoursBefore)] * secsPerHour + place.workedSecs -
                         hoursBefore * secsPerHour};
    }
    HourPoint startAt(WorkPoint place) const
    {
        const int day = dayAt(place.index);
        const Breaks &breaks = m_calendar.breaks(day);
        const qint64 hoursBefore = place.workedSecs / secsPerHour;
        if (hoursBefore >= breaks.freeHours)
            return asStart({day, spanTo()});
        return {day, breaks.freeHour[size_t(hoursBefore)] * secsPerHour + place.workedSecs -
                         hoursBefore * secsPerHour};
    }

    qint64 spanFrom() const { return qint64(m_calendar.startHour()) * secsPerHour; }
    qint64 spanTo() const { return qint64(m_calendar.finishHour()) * secsPerHour; }

    // Without a working weekday no date is taken away, so every date counts.
    qint64 count() const
    {
        return m_calendar.hasWorkday() ? qint64(m_calendar.workdays().size())
                                       : LocalClock::lastDay - LocalClock::firstDay + 1;
    }
    int dayAt(qint64 index) const
    {
        return m_calendar.hasWorkday() ? m_calendar.workdays()[size_t(index)]
                                       : int(index) + LocalClock::firstDay;
    }
    bool works(int day) const { return !m_calendar.hasWorkday() || m_calendar.isWorkday(day); }
    qint64 indexOf(int day) const // of the first working date on or after it
    {
        return m_calendar.hasWorkday() ? qint64(m_calendar.workdaysBefore(day)) : day - LocalClock::firstDay;
    }
    qint64 indexAfter(int day) const { return indexOf(day) + (works(day) ? 1 : 0); }
    qint64 total(qint64 index) const
    {
        return qint64(m_calendar.breaks(dayAt(index)).freeHours) * secsPerHour;
    }

    WorkPoint placeOf(HourPoint point) const
    {
        // On a day off only its beginning or its end are met: the previous working date is done.
        if (!works(point.day)) {
            const qint64 before = indexOf(point.day) - 1;
            return before < 0 ? WorkPoint{0, 0} : WorkPoint{before, total(before)};
        }
        const Breaks &breaks = m_calendar.breaks(point.day);
        const qint64 hour = point.secs / secsPerHour;
        const auto end = breaks.freeHour.begin() + breaks.freeHours;
        const auto free = std::lower_bound(breaks.freeHour.begin(), end, hour);
        const qint64 fullHours = free - breaks.freeHour.begin();
        const qint64 ofHour = free != end && *free == hour ? point.secs - hour * secsPerHour : 0;
        return {indexOf(point.day), fullHours * secsPerHour + ofHour};
    }

    // Working dates on, and seconds of work on; within a date from none to all of its work.
    WorkPoint moved(HourPoint point, qint64 days, qint64 secs) const
    {
        WorkPoint place = placeOf(point);
        place.index += days;
        place.workedSecs += secs;
        for (int carries = 0; carries < maxCarries && clampToTable(place); ++carries) {
            if (place.workedSecs < 0) {
                if (--place.index >= 0)
                    place.workedSecs += total(place.index);
            } else if (place.workedSecs > total(place.index)) {
                place.workedSecs -= total(place.index);
                ++place.index;
            } else
                break;
        }
        clampToTable(place);
        place.workedSecs = std::clamp<qint64>(place.workedSecs, 0, total(place.index));
        return place;
    }

    // Brings a place before the first or after the last date to that date's beginning or end; false when it
    // did.
    bool clampToTable(WorkPoint &place) const
    {
        if (place.index >= 0 && place.index < count())
            return true;
        const bool below = place.index < 0;
        place.index = below ? 0 : count() - 1;
        place.workedSecs = below ? 0 : total(place.index);
        return false;
    }

    const WorkCalendar &m_calendar;
};

double targetHours(const WorkCalendar &calendar, double value, unsigned int unit)
{
    switch (unit) {
    case duration::Week:
        return duration::daysPerWeek(calendar) * value * calendar.hoursPerDay();
    case duration::Day:
        return value * calendar.hoursPerDay();
    case duration::Hour:
        return value;
    default:
        return value / 60.0;
    }
}

// In whole minutes, so that binary noise cannot turn a whole day into hours; half minutes go up.
qint64 wholeMinutes(double hours)
{
    return qint64(std::clamp(std::floor(hours * 60 + 0.5 + 1e-6), -largestValue, largestValue));
}

// Moves the point until the working time between it and the start is the target. `measure` gives the hours a
// point achieves, `move` takes it on by working time. Nothing where the steps jump over the target.
template <typename Measure, typename Move>
std::optional<HourPoint> corrected(HourPoint point, double target, int hoursPerDay, Measure measure,
                                   Move move)
{
    for (int i = 0; i < maxCorrections; ++i) {
        const double missing = target - measure(point);
        if (std::abs(missing) < toleranceHours)
            return point;
        const qint64 minutesPerDay = qint64(hoursPerDay) * 60;
        const qint64 minutes = wholeMinutes(missing);
        const qint64 days = std::clamp(minutes / minutesPerDay, -largestDays, largestDays);
        const HourPoint next = move(point, days, minutes % minutesPerDay * 60);
        if (next.day == point.day && next.secs == point.secs)
            break;
        point = next;
    }
    return std::nullopt;
}

// A start on a day off stands for the same time of the next working date, a finish for that of the last one.
Wall forward(const WorkCalendar &calendar, Wall start, Wall coarse, double target)
{
    const Stepper stepper(calendar);
    const HourPoint from = toHourClock(calendar, dayoff::startForward(calendar, start, false));
    const HourPoint begin = toHourClock(calendar, dayoff::finishForward(calendar, coarse, false));
    const std::optional<HourPoint> finish = corrected(
        begin, target, calendar.hoursPerDay(),
        [&](HourPoint point) { return workHours(calendar, from, stepper.asStored(point)); },
        [&](HourPoint point, qint64 days, qint64 secs) { return stepper.moveFinish(point, days, secs); });
    const HourPoint found = finish ? *finish : stepper.nearestFinish(from, wholeMinutes(target) * 60);
    return dayoff::finishBack(calendar, toDayWall(calendar, found), true);
}

Wall backward(const WorkCalendar &calendar, Wall finish, Wall coarse, double target)
{
    const Stepper stepper(calendar);
    const HourPoint to = toHourClock(calendar, dayoff::finishBack(calendar, finish, false));
    const HourPoint begin =
        stepper.asStart(toHourClock(calendar, dayoff::startBack(calendar, coarse, false)));
    const std::optional<HourPoint> start = corrected(
        begin, target, calendar.hoursPerDay(),
        [&](HourPoint point) { return workHours(calendar, point, to); },
        [&](HourPoint point, qint64 days, qint64 secs) { return stepper.moveStart(point, -days, -secs); });
    const HourPoint found = start ? *start : stepper.nearestStart(to, wholeMinutes(target) * 60);
    return dayoff::startBack(calendar, toDayWall(calendar, found), true);
}

// Documents of the old version: the coarse point, moved on by the days off in the range until their count
// stays.
Wall oldVersion(const WorkCalendar &calendar, Wall start, Wall coarse, bool isForward)
{
    Wall point = coarse;
    int known = 0;
    while (point.day >= LocalClock::firstDay && point.day <= LocalClock::lastDay) {
        const int off = isForward ? calendar.daysOff(start.day, worktime::dayBefore(point))
                                  : calendar.daysOff(point.day, worktime::dayBefore(start));
        if (off == known)
            break;
        point.day += isForward ? off - known : known - off;
        known = off;
    }
    return point;
}

}

quint32 byUnits(const WorkCalendar &calendar, quint32 start, double value, unsigned int unit)
{
    if (value == 0 || !std::isfinite(value) || unit >= duration::unitCount)
        return start;
    value = std::clamp(value, -largestValue, largestValue);
    const bool isForward = value > 0;
    const bool isOld = calendar.oldVersion();
    const int hoursPerDay = isOld ? calendar.finishHour() - calendar.startHour() : calendar.hoursPerDay();
    if (hoursPerDay == 0 && unit >= duration::Hour)
        return start;

    const LocalClock &clock = calendar.clock();
    const Wall from = clock.wall(start);
    const Wall coarse = jumped(from, coarseJump(calendar, value, unit, hoursPerDay));
    Wall result = coarse;
    if (unit >= duration::Week) {
        if (isOld)
            result = oldVersion(calendar, from, coarse, isForward);
        else if (hoursPerDay == 0)
            result = isForward ? dayoff::finishForward(calendar, coarse, false)
                               : dayoff::startBack(calendar, coarse, false);
        else if (isForward)
            result = forward(calendar, from, coarse, targetHours(calendar, value, unit));
        else
            result = backward(calendar, from, coarse, targetHours(calendar, -value, unit));
    }
    if (result.day == from.day && result.secs == from.secs)
        return start; // also where the wall clock shows that time twice
    const quint32 found = worktime::clampSecs(clock.moment(result.day, result.secs));
    // A value shorter than a minute can end at the finish before a day's first start, which is no finish of
    // this start.
    return isForward ? std::max(found, start) : found;
}

quint32 partOf(const WorkCalendar &calendar, quint32 start, quint32 finish, unsigned int unit,
               double fraction)
{
    constexpr bool rounded = true;
    const double length = duration::valueBetween(calendar, start, finish, unit, !rounded);
    return byUnits(calendar, start, length * fraction, unit);
}
}
