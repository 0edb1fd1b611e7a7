#pragma once
#include "chart/plan.h"
#include <QString>
#include <vector>

// The units of the time axis between two positions, and what the head says about them.
namespace chart {

struct UnitSpan
{
    double x1 = 0;
    double x2 = 0;
    QString text; // the longest form that fits; empty: none does
    bool isOff = false;
};

// The left edges of the axis's minor units within x0..x1, of coarser ones where they would stand nearer than
// `least` pixels; a minor unit is where a sheet may end.
std::vector<double> unitEdges(const Axis &axis, double x0, double x1, double least);
// The last edge of a minor unit at or before x, and the first one behind it; the axis's ends beyond it.
double unitEdgeBefore(const Axis &axis, double x);
double unitEdgeAfter(const Axis &axis, double x);
// The units and the forms of their texts that the head's two lines show: the finest that have room for a
// text.
struct Head
{
    int unit = Day;
    int unitForm = 0;
    int period = Week;
    int periodForm = 0;
};
Head headOf(const Plan &plan);
// The head's lines within x0..x1: longer periods above, units below. Spans are cut to x0..x1.
std::vector<UnitSpan> headPeriods(const Plan &plan, const Head &head, double x0, double x1);
std::vector<UnitSpan> headUnits(const Plan &plan, const Head &head, double x0, double x1);
// The days off, neighbours as one, where a day is at least `least` pixels wide.
std::vector<UnitSpan> daysOff(const Axis &axis, double x0, double x1, double least);
// A date without its year, and with it, as short as people write them: "5 Jan", "5 Jan 2026".
QString shortDate(const QLocale &locale, const QDate &date, bool withYear);
}
