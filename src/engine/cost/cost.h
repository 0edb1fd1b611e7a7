#pragma once
#include "engine/time/worktime.h"

struct TaskRecord;
class Resource;

// What assignments cost, and how much work they are.
namespace cost {

// The working time that money is counted by.
struct Measures
{
    const worktime::WorkCalendar &calendar;
    double hoursPerDay = 0; // 0 without working hours
    double daysPerWeek = 7;
};

// Working dates all have the same hours, so it does not matter which day it is.
Measures measuresOf(const worktime::WorkCalendar &calendar);

constexpr int workdaysPerMonth = 22;

struct Total
{
    double cost = 0;
    double work = 0;
};

// Work in the unit of time as hours; 0 for an unknown unit.
double toHours(const Measures &measures, double work, unsigned int unit);
// The other way, as the seconds of a duration in that unit, rounded; the span of a day counts where it has no
// working hours.
quint32 secsOfHours(const Measures &measures, double hours, unsigned int unit);
// The seconds of work that an assignment has by the length of its task; none for a material.
quint32 workSecs(const TaskRecord &task, const Resource &resource);
// The same for each of the task's assignments, stored.
void updateWorkSecs(TaskRecord &task);
// The work in units of the task's duration.
double work(const Measures &measures, const TaskRecord &task, const Resource &resource);
// Rate and cost per use of one assignment. Working time that would have to be divided by no hours costs
// nothing.
double ofAssignment(const Measures &measures, const TaskRecord &task, const Resource &resource);
// The part that is spent as soon as work begins.
double fixedPart(const Resource &resource);
// Cost and work (in its own unit) of a task's own assignments.
Total ofAssignments(const Measures &measures, const TaskRecord &task);
// What is left to pay of a task without children: its cost, less what its progress has used up.
double remaining(const TaskRecord &task);

// Sums over the leaves among the tasks, one by one in their order: any other order gives other last bits.
Total ofLeaves(const Measures &measures, const std::vector<TaskRecord *> &tasks); // work in hours
double remainingOfLeaves(const std::vector<TaskRecord *> &tasks);                 // those with assignments
double baselineOfLeaves(const std::vector<TaskRecord *> &tasks);

// A baseline cost is kept as a text; what is no number counts as 0.
double baselineValue(const QString &text);
QString baselineText(double value);
}
