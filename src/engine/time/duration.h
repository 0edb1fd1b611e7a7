#pragma once
#include "engine/record/codes.h"
#include "engine/time/worktime.h"

// Durations in working time and their units.
namespace duration {

// "year" .. "minute"; any other code is "day".
const char *unitName(unsigned int unit);
// "y" .. "min"; empty for any other code.
const char *shortUnitName(unsigned int unit);
// Days of one year, quarter or month, whatever the calendar; 0 for other units.
int calendarDays(unsigned int unit);
// Working days of a week; 7 when no weekday works.
inline int daysPerWeek(const worktime::WorkCalendar &calendar)
{
    return calendar.hasWorkday() ? calendar.workdaysPerWeek() : 7;
}
// Working seconds from start to finish as the unit counts them: a working day is 86400 for weeks and days,
// clock seconds for hours and minutes; years, quarters and months count elapsed seconds. 0 when start >=
// finish.
quint32 secs(const worktime::WorkCalendar &calendar, quint32 start, quint32 finish, unsigned int unit);
// The same of points as a zone shows them, whichever it is.
quint32 secs(const worktime::WorkCalendar &calendar, LocalClock::Wall start, LocalClock::Wall finish,
             unsigned int unit);
// Duration seconds in units; 0.0 for an unknown unit.
double value(const worktime::WorkCalendar &calendar, qint64 durationSecs, unsigned int unit);
// Both together; 0.0 when start >= finish. `rounded` formats and reads back with the decimals of the unit.
double valueBetween(const worktime::WorkCalendar &calendar, quint32 start, quint32 finish, unsigned int unit,
                    bool rounded);
// The length of a task from start to finish. A single second is a milestone's length and counts as none.
double ofTask(const worktime::WorkCalendar &calendar, quint32 start, quint32 finish, unsigned int unit);
// A value as it reads after being shown with the decimals of its unit.
double roundedValue(double value, unsigned int unit);
// Days off inside a range, the last date in part.
double stretchDayOff(const worktime::WorkCalendar &calendar, quint32 start, quint32 finish);
}
