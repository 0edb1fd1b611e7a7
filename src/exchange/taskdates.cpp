#include "exchange/taskdates.h"
#include "engine/time/duration.h"
#include "engine/time/walk.h"
#include <cmath>

using planimport::LengthRule;
using shownmoment::DaysOff;
using staged::Moment;
using worktime::WorkCalendar;

namespace taskdates {
namespace {

constexpr quint32 milestoneSecs = 1; // as long as can be told apart from no time at all
constexpr double oneDay = 1;
// Lengths are shown with one decimal, and starts and finishes to the minute.
double shownLength(unsigned int unit)
{
    return unit == duration::Minute ? 2 : unit == duration::Hour ? 0.08 : 0.06;
}

bool isMoment(const Moment &start, const Moment &finish)
{
    if (start.kind != finish.kind)
        return false;
    return start.kind == Moment::Stored
               ? finish.secs == start.secs || finish.secs == start.secs + milestoneSecs
               : start.shown() == finish.shown();
}

bool hasTime(const Moment &moment)
{
    return moment.kind == Moment::Stored || moment.hasTime;
}

// A finish without a time is the end of its date.
Moment endOf(const WorkCalendar &calendar, Moment finish)
{
    if (finish.kind == Moment::Shown && !finish.hasTime)
        finish = shownmoment::Moment{finish.day, calendar.finishHour() * worktime::secsPerHour, true};
    return finish;
}

quint32 asStart(const WorkCalendar &calendar, const Moment &moment)
{
    return moment.kind == Moment::Stored ? moment.secs : shownmoment::start(calendar, moment.shown());
}

bool isEvening(const WorkCalendar &calendar, const Moment &moment)
{
    return moment.kind == Moment::Shown && moment.hasTime && calendar.finishHour() > 0 &&
           int(moment.secs) >= calendar.finishHour() * worktime::secsPerHour;
}

quint32 after(const WorkCalendar &calendar, quint32 start, double value, unsigned int unit)
{
    return std::max(walk::byUnits(calendar, start, value, unit),
                    worktime::clampSecs(qint64(start) + milestoneSecs));
}

// A finish is shown cut to the minute and a length rounded to it: where the work ends on half a minute, as
// behind a clock change, they lie a minute apart and stand for the half between them. 0 where they do not.
quint32 halfMinuteOn(const WorkCalendar &calendar, quint32 start, const Moment &finish,
                     const staged::Task &task)
{
    constexpr int halfMinute = 30;
    constexpr double lengthDigits = 1e-4;
    if (finish.kind != Moment::Shown || !finish.hasTime || finish.secs % (2 * halfMinute) != 0)
        return 0;
    const shownmoment::Moment half{finish.day, int(finish.secs) + halfMinute, true};
    const quint32 found = shownmoment::finish(calendar, half, DaysOff::StayOn);
    const shownmoment::Moment shown = shownmoment::ofFinish(calendar, found);
    const double length = duration::ofTask(calendar, start, found, task.task->DurationUnits);
    const bool isBoth = shown.day == finish.day &&
                        shown.secs / (2 * halfMinute) * (2 * halfMinute) == int(finish.secs) &&
                        std::fabs(length - task.length->value) < lengthDigits;
    return isBoth ? found : 0;
}

Dates milestoneAt(const WorkCalendar &calendar, const Moment &moment, quint32 projectStart)
{
    Dates dates;
    dates.isMilestone = true;
    dates.isEvening = isEvening(calendar, moment);
    dates.start = moment.isGiven() ? asStart(calendar, moment) : projectStart;
    dates.finish = worktime::clampSecs(qint64(dates.start) + milestoneSecs);
    return dates;
}
}

quint32 stored(const WorkCalendar &calendar, const staged::Task &task, staged::MomentField field)
{
    const Moment &moment = task.moments[field];
    if (moment.kind != Moment::Shown)
        return moment.secs;
    // Years, quarters and months are counted in all days, and so may end on one off.
    const bool isElapsed = duration::calendarDays(task.task->DurationUnits) > 0;
    switch (field) {
    case staged::Finish:
        return shownmoment::finish(calendar, moment.shown(), isElapsed ? DaysOff::StayOn : DaysOff::MoveOn);
    case staged::LateFinish:
        return shownmoment::finish(calendar, moment.shown());
    case staged::BaseStart:
        return shownmoment::start(calendar, moment.shown(), DaysOff::StayOn);
    default:
        return shownmoment::start(calendar, moment.shown());
    }
}

Dates of(const WorkCalendar &calendar, const staged::Task &task, quint32 projectStart, LengthRule lengthRule)
{
    const Moment &start = task.moments[staged::Start];
    const Moment &finish = task.moments[staged::Finish];
    const unsigned int unit = task.task->DurationUnits;
    const bool hasLength = task.length && task.length->value > 0;
    const bool isZero = task.length && task.length->value <= 0;
    const bool hasBoth = start.isGiven() && finish.isGiven();

    Dates dates;
    if (start.isGiven())
        dates.start = stored(calendar, task, staged::Start);
    if (finish.isGiven())
        dates.finish = stored(calendar, task, staged::Finish);
    const bool isOneMoment =
        hasBoth && (isMoment(start, finish) || (dates.finish <= dates.start &&
                                                shownmoment::isSame(calendar, dates.start, dates.finish)));
    const bool isTimed = hasBoth && hasTime(start) && hasTime(finish);
    const bool takesTime = hasBoth && !isOneMoment && dates.finish > dates.start;
    if (task.isMilestone || (isZero && !takesTime) || (!task.length && isOneMoment && isTimed)) {
        Dates milestone =
            milestoneAt(calendar, start.isGiven() ? start : endOf(calendar, finish), projectStart);
        if (takesTime)
            milestone.remark = Remark::MilestoneWithLength;
        return milestone;
    }
    const auto byLength = [&] { return after(calendar, dates.start, task.length->value, unit); };
    const auto oneDayOn = [&] { return after(calendar, dates.start, oneDay, duration::Day); };
    if (hasBoth && dates.finish > dates.start) {
        const double length = duration::ofTask(calendar, dates.start, dates.finish, unit);
        if (isZero && length > shownLength(unit))
            dates.remark = Remark::ZeroLength;
        if (!hasLength)
            return dates;
        const quint32 walked = byLength();
        if (shownmoment::isSame(calendar, walked, dates.finish))
            return dates;
        // A date alone does not say when on that date.
        if (lengthRule != LengthRule::Measured && !hasTime(finish) &&
            shownmoment::ofFinish(calendar, walked).day == finish.day) {
            dates.finish = walked;
            return dates;
        }
        if (lengthRule == LengthRule::Decides) {
            const quint32 half = halfMinuteOn(calendar, dates.start, finish, task);
            dates.finish = half > 0 ? half : walked;
            dates.remark = half > 0 ? Remark::None : Remark::FinishContradicts;
        } else if (std::fabs(length - task.length->value) > shownLength(unit)) {
            dates.remark = Remark::LengthContradicts;
        }
        return dates;
    }
    if (hasBoth) {
        dates.finish = hasLength ? byLength() : oneDayOn();
        dates.remark = hasLength && isOneMoment ? Remark::FinishContradicts : Remark::Backwards;
        return dates;
    }
    if (finish.isGiven()) {
        dates.start = hasLength ? walk::byUnits(calendar, dates.finish, -task.length->value, unit)
                                : walk::byUnits(calendar, dates.finish, -oneDay, duration::Day);
        // 0 is no start.
        dates.start = std::max(dates.start, milestoneSecs);
        if (dates.start >= dates.finish)
            dates.start = dates.finish - std::min(dates.finish, milestoneSecs);
        dates.remark = hasLength ? Remark::None : Remark::FinishAlone;
        return dates;
    }
    if (!start.isGiven())
        dates.start = projectStart;
    dates.finish = hasLength ? byLength() : oneDayOn();
    if (!hasLength)
        dates.remark = start.isGiven() ? Remark::StartAlone : Remark::Nothing;
    return dates;
}
}
