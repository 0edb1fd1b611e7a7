#pragma once
#include "engine/time/duration.h"
#include <QString>

// The numbers that the project XML format writes for kinds of things, and what they mean here.
namespace mspdi {

// ---- Links and constraints --------------------------------------------------------------------------------

enum LinkType { FinishToFinish = 0, FinishToStart, StartToFinish, StartToStart };
const char *linkTypeText(int type); // "FF", "FS", "SF", "SS"; "?" for another number

enum Constraint {
    AsSoonAsPossible = 0,
    AsLateAsPossible,
    MustStartOn,
    MustFinishOn,
    StartNoEarlier,
    StartNoLater,
    FinishNoEarlier,
    FinishNoLater
};
// Whether dates that are kept say all that the constraint does, since nothing here is ever pulled earlier.
bool isHeldByDates(int constraint);
const char *constraintText(int constraint);

// ---- Formats of durations ---------------------------------------------------------------------------------

constexpr int formatMinutes = 3;
constexpr int formatHours = 5;
constexpr int formatDays = 7;
constexpr int formatWeeks = 9;

// How a duration is shown. The amount itself is always written as hours, minutes and seconds.
struct DurationFormat
{
    duration::Unit unit = duration::Day;
    bool isElapsed = false; // of the clock on the wall, nights and days off included
    bool isPercent = false; // of another duration
    bool isKnown = false;
};
DurationFormat durationFormat(int code);
// The format of one of our units; those of calendar days, year to month, are written as days.
int formatOfUnit(unsigned int unit);
// Behind a number: "d", "eh", "mo".
QString formatSuffix(int code);

// ---- Rates ------------------------------------------------------------------------------------------------

// Rates are written per hour, whatever their format says. The time of a working day in the file's own terms.
struct WorkTerms
{
    double minutesPerDay = 480;
    double minutesPerWeek = 2400;
    double daysPerMonth = 20;
};
struct Rate
{
    double money = 0;
    int costUnit = 1; // see ResourceInfo
    bool isApproximate = false;
};
// The rate as its format shows it. A year is shown as a month.
Rate rateOf(double perHour, int format, const WorkTerms &terms);
// The other way.
double perHour(double money, int costUnit, const WorkTerms &terms);
int formatOfRate(int costUnit);
constexpr int formatMaterialRate = 8;

// ---- Others -----------------------------------------------------------------------------------------------

constexpr qint64 noResource = -65535;    // an assignment to nobody
constexpr qint64 noResourceOld = -65536; // the same, by older writers
constexpr qint64 uidLimit = 2097151;     // UIDs that the planner takes lie below it
constexpr int normalPriority = 500;
constexpr int maxPriority = 1000;
}
