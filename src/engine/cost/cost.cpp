#include "engine/cost/cost.h"
#include "engine/record/resource.h"
#include "engine/record/taskrecord.h"
#include "engine/time/duration.h"
#include <cmath>

namespace cost {
namespace {

using duration::Day;
using duration::Hour;
using duration::Minute;
using duration::Month;
using duration::Quarter;
using duration::Week;
using duration::Year;

// A step from an amount of work to the number of cost units. The order matters to the last bits.
enum Step : quint8 { Done, TimesHours, OverHours, Times60, OverWeekDays, Over22, Times3, Times12 };

// Units up to the month count elapsed time, so their work is measured in the working days that it spans;
// a code of its own beside the duration units.
constexpr unsigned int SpannedDays = duration::unitCount;

// How the work of one assignment becomes cost units: measured in `amount`, then two steps.
struct Rate
{
    unsigned int amount;
    Step steps[2];
};

constexpr Rate spannedDays{SpannedDays, {Done, Done}};
constexpr Rate spannedHours{SpannedDays, {TimesHours, Done}};
constexpr Rate spannedMinutes{SpannedDays, {TimesHours, Times60}};
constexpr Rate spannedWeeks{SpannedDays, {OverWeekDays, Done}};

// By cost unit (minute, hour, day, week, month), then by the task's unit (year .. minute).
constexpr Rate rates[rateUnitCount][duration::unitCount] = {
    {spannedMinutes,
     spannedMinutes,
     spannedMinutes,
     {Day, {TimesHours, Times60}},
     {Day, {TimesHours, Times60}},
     {Minute, {}},
     {Minute, {}}},
    {spannedHours,
     spannedHours,
     spannedHours,
     {Day, {TimesHours}},
     {Day, {TimesHours}},
     {Hour, {}},
     {Hour, {}}},
    {spannedDays, spannedDays, spannedDays, {Day, {}}, {Day, {}}, {Hour, {OverHours}}, {Hour, {OverHours}}},
    {spannedWeeks,
     spannedWeeks,
     spannedWeeks,
     {Day, {OverWeekDays}},
     {Day, {OverWeekDays}},
     {Hour, {OverHours, OverWeekDays}},
     {Hour, {OverHours, OverWeekDays}}},
    {{Year, {Times12}},
     {Quarter, {Times3}},
     {Month, {}},
     {Day, {Over22}},
     {Day, {Over22}},
     {Hour, {OverHours, Over22}},
     {Hour, {OverHours, Over22}}},
};

double applied(const Measures &measures, Step step, double amount)
{
    switch (step) {
    case Done:
        return amount;
    case TimesHours:
        return amount * measures.hoursPerDay;
    case OverHours:
        return measures.hoursPerDay == 0 ? 0 : amount / measures.hoursPerDay;
    case Times60:
        return amount * 60;
    case OverWeekDays:
        return amount / measures.daysPerWeek;
    case Over22:
        return amount / workdaysPerMonth;
    case Times3:
        return amount * 3;
    case Times12:
        return amount * 12;
    }
    return 0;
}

double amountOf(const Measures &measures, const TaskRecord &task, quint32 workSecs, unsigned int unit)
{
    if (unit != SpannedDays)
        return duration::value(measures.calendar, workSecs, unit);
    // Elapsed time is counted by the wall clock, so it is added by it too.
    const LocalClock &clock = measures.calendar.clock();
    const LocalClock::Wall start = clock.wall(task.Start);
    const quint32 finish = worktime::clampSecs(clock.moment(start.day, qint64(start.secs) + workSecs));
    return duration::value(measures.calendar, duration::secs(measures.calendar, task.Start, finish, Day),
                           Day);
}

double timePart(const Measures &measures, const TaskRecord &task, const Resource &resource)
{
    if (resource.costUnit < 0 || resource.costUnit >= int(std::size(rates)) ||
        task.DurationUnits >= duration::unitCount)
        return 0;
    const Rate &rate = rates[resource.costUnit][task.DurationUnits];
    double amount = amountOf(measures, task, resource.workSecs, rate.amount);
    for (const Step step : rate.steps)
        amount = applied(measures, step, amount);
    return amount * resource.cost;
}

// Toward zero, inside the range of 32 bits; 0 for what is no number.
quint32 truncatedSecs(double secs)
{
    return secs >= 4294967295.0 ? 4294967295u : secs > 0 ? quint32(secs) : 0;
}
}

Measures measuresOf(const worktime::WorkCalendar &calendar)
{
    return {calendar, double(calendar.hoursPerDay()), double(duration::daysPerWeek(calendar))};
}

double toHours(const Measures &measures, double work, unsigned int unit)
{
    if (work == 0)
        return work;
    switch (unit) {
    case Year:
        return work * (12 * workdaysPerMonth) * measures.hoursPerDay;
    case Quarter:
        return work * (3 * workdaysPerMonth) * measures.hoursPerDay;
    case Month:
        return work * workdaysPerMonth * measures.hoursPerDay;
    case Week:
        return measures.daysPerWeek * work * measures.hoursPerDay;
    case Day:
        return work * measures.hoursPerDay;
    case Hour:
        return work;
    case Minute:
        return work / 60;
    default:
        return 0;
    }
}

quint32 secsOfHours(const Measures &measures, double hours, unsigned int unit)
{
    Measures counted = measures;
    if (counted.hoursPerDay == 0)
        counted.hoursPerDay = measures.calendar.finishHour() - measures.calendar.startHour();
    const double hoursOfUnit = toHours(counted, 1, unit);
    // A year of work has fewer hours than a year of the clock, so both sizes of the unit count.
    constexpr qint64 secsPerYear = qint64(365) * 86400;
    const double unitsPerYear = duration::value(measures.calendar, secsPerYear, unit);
    if (hoursOfUnit == 0 || unitsPerYear == 0)
        return 0;
    return truncatedSecs(std::floor(hours / hoursOfUnit * (double(secsPerYear) / unitsPerYear) + 0.5));
}

quint32 workSecs(const TaskRecord &task, const Resource &resource)
{
    return resourcetypes::isWork(resource.type) ? truncatedSecs(task.DurationSecs * resource.percent) : 0;
}

void updateWorkSecs(TaskRecord &task)
{
    for (Resource *resource : qAsConst(task.resourceList))
        resource->workSecs = workSecs(task, *resource);
}

double work(const Measures &measures, const TaskRecord &task, const Resource &resource)
{
    return duration::value(measures.calendar, resource.workSecs, task.DurationUnits);
}

double ofAssignment(const Measures &measures, const TaskRecord &task, const Resource &resource)
{
    if (!resourcetypes::isWork(resource.type))
        return resource.cost * resource.percent + resource.costPer;
    return resource.percent * resource.costPer + timePart(measures, task, resource);
}

double fixedPart(const Resource &resource)
{
    return resourcetypes::isWork(resource.type) ? resource.percent * resource.costPer : resource.costPer;
}

Total ofAssignments(const Measures &measures, const TaskRecord &task)
{
    Total total;
    for (const Resource *resource : task.resourceList) {
        total.work += work(measures, task, *resource);
        total.cost += ofAssignment(measures, task, *resource);
    }
    return total;
}

double remaining(const TaskRecord &task)
{
    const double open = 1 - task.Percent;
    double left = task.Cost * open;
    if (task.Percent > 0) {
        for (const Resource *resource : task.resourceList)
            left -= fixedPart(*resource) * open;
    }
    return left;
}

Total ofLeaves(const Measures &measures, const std::vector<TaskRecord *> &tasks)
{
    Total total;
    for (const TaskRecord *task : tasks) {
        if (task->isParent())
            continue;
        total.cost += task->Cost;
        total.work += toHours(measures, task->Work, task->DurationUnits);
    }
    return total;
}

double remainingOfLeaves(const std::vector<TaskRecord *> &tasks)
{
    double sum = 0;
    for (const TaskRecord *task : tasks) {
        if (!task->isParent() && !task->resourceList.isEmpty())
            sum += task->RemainingCost;
    }
    return sum;
}

double baselineOfLeaves(const std::vector<TaskRecord *> &tasks)
{
    double sum = 0;
    for (const TaskRecord *task : tasks) {
        if (!task->isParent())
            sum += baselineValue(task->BaselineCost);
    }
    return sum;
}

double baselineValue(const QString &text)
{
    const double value = text.isEmpty() ? 0 : text.toDouble();
    return std::isfinite(value) ? value : 0;
}

QString baselineText(double value)
{
    return QString::number(value, 'g', 6);
}
}
