#pragma once
#include "engine/record/calendarrecord.h"
#include <QVector>

// What is wrong with the working intervals of a day.
namespace dayhours {

enum Fault {
    PastMidnight, // ends or begins after 24:00: counts as far as that
    Reversed,     // ends before it begins: counts as nothing
    Empty,        // ends when it begins
    Overlapping,  // begins before one ahead of it ends: what both cover counts twice
    OutOfOrder,   // lies wholly before one ahead of it
    PartHour      // begins or ends within an hour: the rules count whole hours
};

struct Found
{
    Fault fault;
    int index; // of the interval
};

// At most one for each interval, in list order.
QVector<Found> faults(const QList<KWDayTime *> &intervals);
// "08:30-12:00", and several with blanks between. Seconds are left out.
QString text(const KWDayTime &interval);
QString text(const QList<KWDayTime *> &intervals);
// Whole hours of work, as the rules count them.
int wholeHours(const QList<KWDayTime *> &intervals);
}
