#include "engine/time/timescale.h"
#include "engine/record/taskrecord.h"
#include "engine/time/timerange.h"
#include "engine/time/walk.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace timescale {
namespace {

using namespace duration;
using worktime::clampSecs;
using worktime::HourPoint;
using worktime::WorkCalendar;

constexpr int maxPixels = std::numeric_limits<int>::max();
constexpr int secsPerDay = LocalClock::secsPerDay;
constexpr int minutesPerHour = 60;

constexpr std::array<int, Day + 1> milestoneDays{365, 90, 30, 7, 1};

double bandHours(const WorkCalendar &calendar)
{
    return calendar.finishHour() - calendar.startHour();
}

// Pixels of that many units before truncation.
double rawWidth(const WorkCalendar &calendar, unsigned int minor, int units, qint32 unitWidth,
                double screenScale)
{
    switch (minor) {
    case Hour:
        return bandHours(calendar) * units * unitWidth * screenScale;
    case Minute:
        return bandHours(calendar) * units * minutesPerHour * unitWidth * screenScale;
    default:
        return double(units) * unitWidth * screenScale;
    }
}

// One step narrower, or a finer unit at full width: false when there is none.
//
// Kept on purpose: the step below a major unit's first minor unit is the finest unit of the next major one,
// so the search passes through far wider charts before it ends on a coarse unit.
bool narrow(Zoom &zoom)
{
    // A width between the steps counts as the step below it.
    if (zoom.unitWidth >= wideUnit) {
        zoom.unitWidth = middleUnit;
        return true;
    }
    if (zoom.unitWidth >= middleUnit) {
        zoom.unitWidth = narrowUnit;
        return true;
    }
    const unsigned int minor = minorUnit(zoom.majorUnit, zoom.storedMinor);
    if (minor < Month)
        return false;
    if (minor > Minute) {
        // Stored values that make no unit: on to the finest one, if the major unit has any.
        if (zoom.majorUnit >= Minute)
            return false;
        zoom.storedMinor = storedMinor(zoom.majorUnit, Minute);
    } else if (zoom.storedMinor > 0) {
        --zoom.storedMinor;
    } else {
        zoom.storedMinor = Minute - zoom.majorUnit;
        --zoom.majorUnit;
    }
    zoom.unitWidth = wideUnit;
    return true;
}
}

// ---- Width ------------------------------------------------------------------------------------------------

int chartWidth(const WorkCalendar &calendar, unsigned int minor, int units, qint32 unitWidth,
               double screenScale)
{
    return std::max(0, wholePixels(rawWidth(calendar, minor, units, unitWidth, screenScale)));
}

int unitsFor(const WorkCalendar &calendar, unsigned int minor, int width, qint32 unitWidth,
             double screenScale)
{
    const double oneUnit = rawWidth(calendar, minor, 1, unitWidth, screenScale);
    if (!(oneUnit > 0))
        return 0;
    int units = wholePixels(width / oneUnit);
    while (units < maxPixels && chartWidth(calendar, minor, units, unitWidth, screenScale) < width)
        ++units;
    return units;
}

unsigned int minorUnit(quint32 majorUnit, quint32 storedMinor)
{
    // Kept on purpose: below the year the stored value counts from the unit after the major one. Stored
    // documents depend on it.
    const quint64 unit = majorUnit == 0 ? storedMinor : quint64(majorUnit) + storedMinor + 1;
    return unsigned(std::min<quint64>(unit, std::numeric_limits<unsigned int>::max()));
}

quint32 storedMinor(quint32 majorUnit, unsigned int minor)
{
    return majorUnit == 0 ? minor : minor - majorUnit - 1;
}

Zoom chosen(const LocalClock &clock, Zoom zoom, quint32 start, quint32 finish)
{
    struct Span
    {
        int days;
        unsigned int unit;
    };
    constexpr std::array<Span, 4> spans{
        {{1096, Year}, {304, Quarter}, {70, Month}, {std::numeric_limits<int>::min(), Week}}};
    const int days = clock.wall(finish).day - clock.wall(start).day;
    const auto span = std::find_if(spans.begin(), spans.end(), [&](const Span &s) { return days >= s.days; });
    if (span->unit >= zoom.majorUnit)
        zoom.storedMinor = span->unit - zoom.majorUnit;
    zoom.unitWidth = wideUnit;
    return zoom;
}

Zoom narrowed(const WorkCalendar &calendar, Zoom zoom, quint32 start, quint32 finish, double screenScale)
{
    constexpr double widestPixels = 1300;
    const LocalClock &clock = calendar.clock();
    const auto isTooWide = [&] {
        const unsigned int minor = minorUnit(zoom.majorUnit, zoom.storedMinor);
        const quint32 origin = timerange::rangeStart(clock, start, minor);
        const quint32 lastUnit = timerange::rangeEnd(clock, finish, origin, minor);
        const int units = timerange::unitsFrom(clock, origin, lastUnit, minor);
        return chartWidth(calendar, minor, units, zoom.unitWidth, screenScale) > widestPixels * screenScale;
    };
    while (isTooWide() && narrow(zoom)) {
    }
    return zoom;
}

// ---- Mapping ----------------------------------------------------------------------------------------------

int wholePixels(double x)
{
    if (!(x > std::numeric_limits<int>::min()))
        return std::isnan(x) ? 0 : std::numeric_limits<int>::min();
    return x < maxPixels ? int(x) : maxPixels;
}

Scale::Scale(const WorkCalendar &calendar, unsigned int minor, quint32 origin, quint32 lastUnit, int width,
             qint32 unitWidth, double screenScale)
    : m_calendar(calendar)
    , m_minor(minor)
    , m_origin(origin)
    , m_end(timerange::chartEnd(calendar.clock(), lastUnit, minor))
    , m_width(width)
    , m_unitWidth(unitWidth)
    , m_screenScale(screenScale)
    , m_originWall(calendar.clock().wall(origin))
    , m_endDay(calendar.clock().wall(lastUnit).day + 1)
{
}

double Scale::position(quint32 secs) const
{
    switch (m_minor) {
    case Hour:
        return hourPosition(worktime::toHourClock(m_calendar, secs));
    case Minute:
        return minutePosition(worktime::toHourClock(m_calendar, secs));
    default:
        return m_minor < Hour ? dayPosition(secs) : 0.0;
    }
}

double Scale::dayPosition(quint32 secs) const
{
    const qint64 span = m_end - m_origin;
    if (span <= 0 || m_origin > secs)
        return 0.0;
    return double(m_width) * double(secs - m_origin) / double(span);
}

qint64 Scale::workHoursBefore(HourPoint point) const
{
    const qint64 hour = point.secs / 3600;
    return qint64(m_calendar.finishHour() - m_calendar.startHour()) * (point.day - m_originWall.day) +
           std::max<qint64>(hour - m_calendar.startHour(), 0);
}

double Scale::hourPosition(HourPoint point) const
{
    const qint64 minute = point.secs / 60 % minutesPerHour;
    return (double(workHoursBefore(point)) + double(minute) / minutesPerHour) * m_unitWidth * m_screenScale;
}

double Scale::minutePosition(HourPoint point) const
{
    const qint64 minute = point.secs / 60 % minutesPerHour;
    return double(workHoursBefore(point) * minutesPerHour + minute) * m_unitWidth * m_screenScale;
}

quint32 Scale::secsAt(double x) const
{
    if (m_width <= 0 || !std::isfinite(x))
        return 0;
    const LocalClock &clock = m_calendar.clock();
    // An hour scale counts whole dates, each with the same band, whatever the clock does on it, and also the
    // origin's own one, which begins before an origin of 0.
    const double span =
        isHourBased() ? double(m_endDay - m_originWall.day) * secsPerDay : double(m_end - m_origin);
    constexpr double farSecs = 1e11;
    const qint64 offset = qint64(qBound(-farSecs, span * x / m_width, farSecs));
    qint64 moment = m_origin + offset;
    if (isHourBased()) {
        const qint64 days = qBound<qint64>(-LocalClock::lastDay, offset / secsPerDay, LocalClock::lastDay);
        moment = clock.moment(m_originWall.day + int(days), offset - days * secsPerDay);
    }
    const quint32 secs = clampSecs(moment);
    const int secsOfMinute = clock.wall(secs).secs % 60;
    return clampSecs(qint64(secs) - secsOfMinute + (secsOfMinute >= 30 ? 60 : 0));
}

quint32 Scale::milestoneAnchor(quint32 finish) const
{
    if (isHourBased())
        return finish;
    // A day's milestone ends with its date; the longer units contain the finish itself.
    const quint32 inside = m_minor == Day && finish > 0 ? finish - 1 : finish;
    return timerange::unitStart(m_calendar.clock(), inside, m_minor);
}

int Scale::dayPoint(const TaskRecord &task, bool start) const
{
    if (!task.Milestone)
        return wholePixels(dayPosition(start ? task.Start : task.Finish));
    const quint32 anchor = milestoneAnchor(task.Finish);
    if (start || isHourBased())
        return wholePixels(dayPosition(anchor));
    const LocalClock::Wall at = m_calendar.clock().wall(anchor);
    return wholePixels(
        dayPosition(clampSecs(m_calendar.clock().moment(at.day + milestoneDays[m_minor], at.secs))));
}

int Scale::hourPoint(const TaskRecord &task, bool start) const
{
    return wholePixels(hourPosition(worktime::toHourClock(m_calendar, start ? task.Start : task.Finish)));
}

int Scale::minutePoint(const TaskRecord &task, bool start) const
{
    return wholePixels(minutePosition(worktime::toHourClock(m_calendar, start ? task.Start : task.Finish)));
}

int Scale::point(const TaskRecord &task, bool start) const
{
    switch (m_minor) {
    case Hour:
        return hourPoint(task, start);
    case Minute:
        return minutePoint(task, start);
    default:
        return m_minor < Hour ? dayPoint(task, start) : 0;
    }
}

void Scale::placeBar(TaskRecord &task) const
{
    task.x1 = point(task, true);
    task.x2 = point(task, false);
    task.CountWidth = task.x2 - task.x1;
}

void Scale::placeSummaryBar(TaskRecord &summary) const
{
    summary.x1 = wholePixels(position(summary.Start));
    summary.x2 = wholePixels(position(summary.Finish));
    summary.CountWidth = summary.x2 - summary.x1;
}

double Scale::finishedWidth(const TaskRecord &task) const
{
    return finishedWidth(task, task.x1, task.CountWidth);
}

double Scale::finishedWidth(const TaskRecord &task, double x1, double width) const
{
    if (task.Milestone || !(task.Percent > 0.0))
        return 0.0;
    if (task.Percent >= 1.0)
        return width;
    const quint32 reached =
        walk::partOf(m_calendar, task.Start, task.Finish, task.DurationUnits, task.Percent);
    return std::max(0.0, std::min(position(reached) - x1, width));
}
}
