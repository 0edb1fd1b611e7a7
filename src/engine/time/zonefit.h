#pragma once
#include "engine/time/worktime.h"
#include <QByteArray>
#include <QList>
#include <functional>
#include <vector>

// Whether the moments of a plan fall on its working hours in a time zone, and in which zones they do.
//
// Plans begin and end their tasks when work does, mostly, or at some quarter of an hour, and on working days.
// In a zone that is not the plan's the same moments lie in the middle of the day, between the quarters, and
// the first and last ones of a week on days off.
namespace zonefit {

// What is judged: some bars of the plan, spread over it, and moments that are some date's first.
struct Moments
{
    struct Bar
    {
        quint32 start = 0; // stored moments; start < finish
        quint32 finish = 0;
        quint32 lengthSecs = 0; // as stored beside them, see duration::secs; 0: not known
        unsigned int unit = 4;
    };
    std::vector<Bar> bars;
    std::vector<quint32> midnights;

    // From `bars` as many as are looked at, evenly.
    static std::vector<Bar> sample(const std::vector<Bar> &bars);
    bool areEnough() const { return bars.size() * 2 + midnights.size() >= 4; }
};

// A zone as the rule sees it: seconds ahead of UTC at a moment.
struct Zone
{
    QByteArray name;
    std::function<int(quint32 secs)> offset;
};

// From 0, no moment falls on working hours, to 1, all are beginnings or ends of working days and all lengths
// as they are stored. The calendar's own zone is not looked at. 1 for no moments.
double share(const Moments &moments, const worktime::WorkCalendar &calendar, const Zone &zone);

// Nothing else can be so much better as to be told.
constexpr double surelyRight = 0.7;
// How much better another zone must be than the present one.
constexpr double clearlyBetter = 0.2;

// The zones in which the moments fall on working hours best, clearly better than `present` does: those of the
// candidates that share the best result, in their order. Empty when the present one is as good, or there are
// too few moments to tell.
QList<QByteArray> better(const Moments &moments, const worktime::WorkCalendar &calendar, const Zone &present,
                         const std::vector<Zone> &candidates);
}
