#pragma once
#include "exchange/stagedplan.h"

// Which dates a task gets from what its file says: start, finish, length and whether it is a milestone.
//
//   start and finish           those; a length that contradicts them is told
//   start, or finish, and a length    the other end by working time
//   a length alone             from the project's start
//   length 0, the milestone column, or one moment typed twice with its time: a milestone
//   an end alone, nothing, or a finish before the start: one day
namespace taskdates {

enum class Remark {
    None,
    StartAlone,
    FinishAlone,
    Nothing,
    Backwards,           // the finish lies before the start
    LengthContradicts,   // the dates were taken
    FinishContradicts,   // the length was taken
    ZeroLength,          // there is time between start and finish: the dates were taken
    MilestoneWithLength, // there is time between start and finish: the start was taken
};

struct Dates
{
    quint32 start = 0;
    quint32 finish = 0;
    bool isMilestone = false;
    bool isEvening = false; // a milestone that the file puts at the end of a working day
    Remark remark = Remark::None;
};

Dates of(const worktime::WorkCalendar &calendar, const staged::Task &task, quint32 projectStart,
         planimport::LengthRule lengthRule);
// The moment that a field of the task stores; 0 for one that is not given.
quint32 stored(const worktime::WorkCalendar &calendar, const staged::Task &task, staged::MomentField field);
}
