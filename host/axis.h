#pragma once
#include "plan.h"
#include <QDate>
#include <QString>
#include <utility>
#include <vector>

// The time axis above the bars, in terminal columns.
namespace axis {

enum Unit { Hour, Day, Week, Month, Quarter, Year };

// One terminal column: a piece of the day clock, in seconds of local time since the first Julian day.
struct Slot
{
    qint64 from = 0;
    qint64 to = 0;
    bool off = false; // a day off, or a break of the working day
};

struct Axis
{
    Unit unit = Day;
    std::vector<Slot> slots;
    int startHour = 0; // of the working day, on an axis of hours
    int hoursPerDay = 0;
    bool cutOff = false; // the last dates found no room

    bool isEmpty() const { return slots.empty(); }
    // The columns that a range touches, the second one exclusive; an empty range touches the one that it
    // stands in. What lies outside the axis counts to its ends.
    std::pair<int, int> columnsOf(qint64 from, qint64 to) const;
};

// Dates and moments of the day clock on the axis's own count.
qint64 secsOf(const QDate &date);
qint64 secsOf(const LocalClock &clock, quint32 secs);

// An axis from one date to another, both inclusive. `wanted` is "auto" or a unit's name; the finest that fits
// into `columns`, and the coarsest, cut off, when none does.
Axis make(const Plan &plan, const QDate &first, const QDate &last, const QString &wanted, int columns);
// Two lines above the bars: dates, and weekdays or hours where there is room for them.
QString heading(const Axis &axis, int line);
}
