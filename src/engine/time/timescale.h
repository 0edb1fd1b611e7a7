#pragma once
#include "engine/time/duration.h"
#include "engine/time/worktime.h"
#include "kwgantt_export.h"

struct TaskRecord;

// The chart's time axis as arithmetic: its width, the choice of its units, and the mapping between moments
// and positions.
namespace timescale {

// ---- Width ------------------------------------------------------------------------------------------------

// Pixels of the whole chart, `units` being what UnitDates counts for the minor unit. 0..2147483647.
KWGANTT_EXPORT int chartWidth(const worktime::WorkCalendar &calendar, unsigned int minor, int units,
                              qint32 unitWidth, double screenScale);
// How many units make a chart at least that wide; 0 when no number does.
KWGANTT_EXPORT int unitsFor(const worktime::WorkCalendar &calendar, unsigned int minor, int width,
                            qint32 unitWidth, double screenScale);

// The stored choice of units and width.
struct Zoom
{
    quint32 majorUnit = 3;
    quint32 storedMinor = 0;
    qint32 unitWidth = 100; // pixels
};
constexpr qint32 wideUnit = 100;
constexpr qint32 middleUnit = 60;
constexpr qint32 narrowUnit = 20;

// Of duration::Unit; above that the stored values make no unit.
KWGANTT_EXPORT unsigned int minorUnit(quint32 majorUnit, quint32 storedMinor);
// The other way, for a minor unit that is finer than the major one.
KWGANTT_EXPORT quint32 storedMinor(quint32 majorUnit, unsigned int minor);
// The minor unit for a project's length; keeps it where the major unit is too fine for that length.
KWGANTT_EXPORT Zoom chosen(const LocalClock &clock, Zoom zoom, quint32 start, quint32 finish);
// The same chart, narrowed step by step until it is at most 1300 pixels wide (at 96 dpi) or cannot be
// narrowed.
KWGANTT_EXPORT Zoom narrowed(const worktime::WorkCalendar &calendar, Zoom zoom, quint32 start, quint32 finish,
                             double screenScale);

// ---- Mapping ----------------------------------------------------------------------------------------------

// Truncated toward zero; the nearest number there is, 0 for none.
KWGANTT_EXPORT int wholePixels(double x);

// One scale, prepared for many questions. Positions are pixels from the chart's left edge.
class KWGANTT_EXPORT Scale
{
public:
    Scale(const worktime::WorkCalendar &calendar, unsigned int minor, quint32 origin, quint32 lastUnit,
          int width, qint32 unitWidth, double screenScale);

    const worktime::WorkCalendar &calendar() const { return m_calendar; }
    bool isHourBased() const { return m_minor >= duration::Hour; }

    double position(quint32 secs) const;    // any minor unit; day clock in
    double dayPosition(quint32 secs) const; // 0.0 before O
    double hourPosition(worktime::HourPoint point) const;
    double minutePosition(worktime::HourPoint point) const;
    // The whole minute (day clock) at a position; 0 when the chart has no width or no such moment.
    quint32 secsAt(double x) const;

    // Where a milestone with that finish is anchored: the beginning of its unit.
    quint32 milestoneAnchor(quint32 finish) const;
    int dayPoint(const TaskRecord &task, bool start) const; // whole pixels
    int hourPoint(const TaskRecord &task, bool start) const;
    int minutePoint(const TaskRecord &task, bool start) const;
    int point(const TaskRecord &task, bool start) const; // as the minor unit asks
    // Sets the bar's x values and CountWidth to the task's points.
    void placeBar(TaskRecord &task) const;
    // Sets the bar of a summary to its dates, whatever its milestone flag.
    void placeSummaryBar(TaskRecord &summary) const;
    // FirstWidth: what of CountWidth is finished.
    double finishedWidth(const TaskRecord &task) const;
    // The same for a bar that begins at x1 and is `width` wide.
    double finishedWidth(const TaskRecord &task, double x1, double width) const;

private:
    qint64 workHoursBefore(worktime::HourPoint point) const;

    const worktime::WorkCalendar &m_calendar;
    unsigned int m_minor;
    quint32 m_origin;
    qint64 m_end;
    int m_width;
    double m_unitWidth;
    double m_screenScale;
    LocalClock::Wall m_originWall;
    int m_endDay;
};
}
