#pragma once
#include "engine/time/localclock.h"
#include <QDateTime>

// The chart's range and its unit boundaries. Units have the codes of durations; those above a day have
// boundaries of their own, hours and minutes share the day's.
namespace timerange {

// The midnight that begins the year, quarter, month, week (Monday) or day which contains the moment.
quint32 unitStart(const LocalClock &clock, quint32 secs, unsigned int unit);
// The same time of day on the Monday of that week.
quint32 mondayOf(const LocalClock &clock, quint32 secs);
// O for an earliest start: a unit boundary, one unit before it where 1970 leaves room. 0 below one day.
quint32 rangeStart(const LocalClock &clock, quint32 secs, unsigned int minor);
// E for a latest finish (exclusive): the start of the unit after it, and not before the least span of the
// chart.
quint32 rangeEnd(const LocalClock &clock, quint32 secs, quint32 origin, unsigned int minor);
// T: one unit after E, past the 32-bit range where need be.
qint64 chartEnd(const LocalClock &clock, quint32 lastUnit, unsigned int minor);
// E moved on by whole units, as far as there are times.
quint32 laterRangeEnd(const LocalClock &clock, quint32 lastUnit, unsigned int minor, int units);
// How many units begin from `first` up to and with the moment `last`; `first` always counts.
int unitsFrom(const LocalClock &clock, quint32 first, quint32 last, unsigned int minor);

// The start of a range and each unit boundary after it, up to and with its finish. Nothing is stored but the
// ends.
class UnitDates
{
public:
    UnitDates() = default;
    UnitDates(const QDateTime &start, const QDateTime &finish); // none when one is invalid
    int count(unsigned int minor) const;
    QDateTime at(unsigned int minor, int index) const; // invalid outside 0..count - 1

private:
    QDateTime m_start;
    QDate m_finish;
};
}
