#pragma once
#include "engine/time/worktime.h"
#include "kwgantt_export.h"

// What people see and type - a date and a time of day - and the starts and finishes that tasks store.
namespace shownmoment {

// On the clock on the wall, so a clock change cannot move it.
struct Moment
{
    int day = 0;          // as LocalClock::dayOf has it
    int secs = 0;         // since midnight; a day may end at 86400
    bool hasTime = false; // false: a date alone, `secs` is 0

    bool operator==(const Moment &other) const
    {
        return day == other.day && secs == other.secs && hasTime == other.hasTime;
    }
};

// Whether a moment on a day off goes on to the next working day.
enum DaysOff { MoveOn, StayOn };

// A start: a date alone is its first moment, a time before work begins is when it does, one after work ends
// is the next day's beginning. A time that a clock change skips is the first one behind the gap.
KWGANTT_EXPORT quint32 start(const worktime::WorkCalendar &calendar, const Moment &shown,
                             DaysOff daysOff = MoveOn);
// A finish: what is stored shows that moment again. A date alone, 00:00 and a time outside working hours are
// the end of their date; the moment when work begins is the end of the working day before.
KWGANTT_EXPORT quint32 finish(const worktime::WorkCalendar &calendar, const Moment &shown,
                              DaysOff daysOff = MoveOn);

// What a stored moment shows, to the minute. A finish at midnight belongs to the date that it ends.
KWGANTT_EXPORT Moment ofStart(const worktime::WorkCalendar &calendar, quint32 secs);
KWGANTT_EXPORT Moment ofFinish(const worktime::WorkCalendar &calendar, quint32 secs);

// Whether no working time lies between two stored moments, to the minute: the evening of a working day and
// the morning of the next are one moment.
KWGANTT_EXPORT bool isSame(const worktime::WorkCalendar &calendar, quint32 a, quint32 b);
}
