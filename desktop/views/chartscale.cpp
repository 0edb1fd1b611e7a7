#include "views/chartscale.h"
#include <algorithm>
#include <cmath>

namespace chartscale {

namespace {

constexpr quint32 hour = 5;
// Days of each unit from the year to the day.
constexpr double daysOf[] = {365.25, 91.3125, 30.4375, 7, 1};
constexpr int narrowest = 4; // pixels of a unit; the head shows coarser ones where they have no room
}

double pixelsOfDay(quint32 minor, int unitWidth, int workHoursOfDay)
{
    constexpr double minutesOfHour = 60;
    if (minor < hour)
        return unitWidth / daysOf[minor];
    return unitWidth * double(std::max(1, workHoursOfDay)) * (minor == hour ? 1 : minutesOfHour);
}

Units unitsFor(double pixels, int workHoursOfDay)
{
    const double wanted = std::clamp(pixels, least, most);
    const int hours = std::max(1, workHoursOfDay);
    constexpr int narrowestHour = 24;
    if (wanted >= narrowestHour * hours)
        return {hour, int(std::lround(wanted / hours))};
    quint32 minor = hour - 1;
    while (minor > 0 && wanted * daysOf[minor] < narrowest)
        --minor;
    return {minor, std::max(1, int(std::lround(wanted * daysOf[minor])))};
}
}
