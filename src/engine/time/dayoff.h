#pragma once
#include "engine/time/worktime.h"

// Moves a start or a finish out of days off. Day-clock seconds in and out; with `hourClock` also out of hours
// that do not work. Unchanged when no weekday works or no working date can be reached.
//
// A finish is exclusive: it belongs to the date of the second before it.
namespace dayoff {

quint32 startForward(const worktime::WorkCalendar &calendar, quint32 secs, bool hourClock);
quint32 startBack(const worktime::WorkCalendar &calendar, quint32 secs, bool hourClock);
quint32 finishForward(const worktime::WorkCalendar &calendar, quint32 secs, bool hourClock);
quint32 finishBack(const worktime::WorkCalendar &calendar, quint32 secs, bool hourClock);
// The same on wall-clock points, which may leave the 32-bit range.
LocalClock::Wall startForward(const worktime::WorkCalendar &calendar, LocalClock::Wall stored,
                              bool hourClock);
LocalClock::Wall startBack(const worktime::WorkCalendar &calendar, LocalClock::Wall stored, bool hourClock);
LocalClock::Wall finishForward(const worktime::WorkCalendar &calendar, LocalClock::Wall stored,
                               bool hourClock);
LocalClock::Wall finishBack(const worktime::WorkCalendar &calendar, LocalClock::Wall stored, bool hourClock);

// A finish inside a day off goes to the midnight that ends the last working date.
quint32 removeLast(const worktime::WorkCalendar &calendar, quint32 secs);
// Dates off in a row, the date of secs first; up to the end of the 32-bit range. 0 when no weekday works.
unsigned int run(const worktime::WorkCalendar &calendar, quint32 secs);
}
