#pragma once
#include "engine/time/worktime.h"

// Finds the point that lies a given amount of working time after or before a start.
namespace walk {

// The point `value` units after `start` (before it when negative), in day-clock seconds. `start` itself for
// value 0, a value that is not finite and an unknown unit. Always ends. Where dates with hours of their own
// leave no point with that working time, the nearest: the end of a date (its beginning, backward).
quint32 byUnits(const worktime::WorkCalendar &calendar, quint32 start, double value, unsigned int unit);
// The point that a fraction of the working time from start to finish reaches.
quint32 partOf(const worktime::WorkCalendar &calendar, quint32 start, quint32 finish, unsigned int unit,
               double fraction);
}
