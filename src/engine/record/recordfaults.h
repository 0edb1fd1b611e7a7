#pragma once
#include "engine/record/resource.h"
#include "engine/record/resourceentry.h"
#include "engine/record/taskrecord.h"
#include <QVector>

// Values of one record that cannot be meant so, whoever wrote them. What one record says of another is not
// looked at here.
namespace recordfaults {

enum Fault {
    PercentOutside,      // not within 0..1
    NoStart,             // a finish without a start
    NoFinish,            // a start without a finish
    FinishFirst,         // the finish lies before the start
    LongMilestone,       // a milestone with time between its start and its finish
    UnknownUnit,         // of the duration
    RepeatedPredecessor, // `other`: its ID
    RepeatedSuccessor,   // `other`: its ID
    NothingInIt,         // saving leaves such a task out
    UnknownRate,         // a cost unit that is none
    NegativeUnits,       // of an assignment or an entry
    NoName               // of an assignment or an entry
};

struct Found
{
    Fault fault;
    quint32 other = 0;
};

QVector<Found> of(const TaskRecord &task);
QVector<Found> of(const Resource &assignment);
QVector<Found> of(const ResourceEntry &entry);
}
