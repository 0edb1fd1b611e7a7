#pragma once
#include <QtGlobal>

// Which units a chart takes at a zoom.
namespace chartscale {

struct Units
{
    quint32 minor = 4;  // 0 year .. 5 hour
    int unitWidth = 60; // pixels
};

constexpr double least = 0.02; // pixels for a day: a century on a screen
constexpr double most = 1600;

// The finest units that have room at so many pixels for a day (seven of which are a week).
Units unitsFor(double pixelsOfDay, int workHoursOfDay);
// What units of a document mean: pixels for a day.
double pixelsOfDay(quint32 minor, int unitWidth, int workHoursOfDay);
}
