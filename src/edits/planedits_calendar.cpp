// Changing the working time.
#include "edits/oneedit.h"
#include "edits/planedits.h"
#include "edits/taskvalues.h"
#include "engine/network/rollup.h"
#include "engine/time/dayoff.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwcalendar.h"
#include <algorithm>

namespace {

constexpr quint32 secsPerHour = 3600;

bool areInOrder(const QVector<DayHours> &hours)
{
    quint32 last = 0;
    for (const DayHours &interval : hours) {
        if (interval.start < last || interval.finish <= interval.start ||
            interval.finish > LocalClock::secsPerDay)
            return false;
        last = interval.finish;
    }
    return true;
}

// Whole hours of a day, as working time is counted.
quint32 wholeHours(const QVector<DayHours> &hours)
{
    quint32 total = 0;
    for (const DayHours &interval : hours)
        total += interval.finish / secsPerHour - interval.start / secsPerHour;
    return total;
}

QList<KWDayTime *> intervals(const QVector<DayHours> &hours)
{
    QList<KWDayTime *> list;
    for (const DayHours &interval : hours)
        list.append(new KWDayTime(interval.start, interval.finish));
    return list;
}

// Tasks keep their length in working time and move off the days off.
template <typename Change>
EditAnswer changeCalendar(OneEdit &edit, Change change)
{
    KWDocument &document = edit.document();
    edit.begin(OneEdit::AllTasks | OneEdit::Options);
    std::vector<double> lengths;
    for (const KWTaskInfo *task : document.taskList())
        lengths.push_back(taskvalues::lengthOf(document, *task));
    change();
    constexpr bool hourClock = false;
    const worktime::WorkCalendar &calendar = document.workCalendar();
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        KWTaskInfo *task = document.getTaskInfoAt(pos);
        if (task->isParent() || !rollup::isDated(*task))
            continue;
        task->Start = dayoff::startForward(calendar, task->Start, hourClock);
        taskvalues::setLength(document, *task, lengths[std::size_t(pos)]);
        edit.changed(*task);
    }
    edit.changes.what |= settling::Calendar;
    return edit.finish();
}
}

EditAnswer PlanEdits::setWorkDays(const std::array<bool, 7> &week)
{
    OneEdit edit(step());
    if (std::find(week.begin(), week.end(), true) == week.end())
        return edit.refuse(EditRefusal::NoWorkingTime);
    return changeCalendar(edit, [&] { std::copy(week.begin(), week.end(), edit.document().WorkDay); });
}

EditAnswer PlanEdits::setWorkHours(const QVector<DayHours> &hours)
{
    OneEdit edit(step());
    if (!areInOrder(hours))
        return edit.refuse(EditRefusal::BadHours);
    if (wholeHours(hours) == 0)
        return edit.refuse(EditRefusal::NoWorkingTime);
    return changeCalendar(edit, [&] {
        QList<KWDayTime *> &old = edit.document().workTimes;
        qDeleteAll(old);
        old = intervals(hours);
    });
}

EditAnswer PlanEdits::addException(const DateException &exception)
{
    OneEdit edit(step());
    if (!exception.from.isValid() || !exception.to.isValid() || exception.to < exception.from)
        return edit.refuse(EditRefusal::BadDates);
    if (!areInOrder(exception.hours))
        return edit.refuse(EditRefusal::BadHours);
    return changeCalendar(edit, [&] {
        auto *calendar = new KWCalendar;
        calendar->name = exception.name;
        calendar->startDate = exception.from;
        calendar->finishDate = exception.to;
        calendar->isException = true;
        calendar->isWork = exception.works;
        calendar->dayTimes = intervals(exception.hours);
        edit.document().calendars.prepend(calendar); // the first one that covers a date decides
    });
}

EditAnswer PlanEdits::removeException(const QDate &date)
{
    OneEdit edit(step());
    QList<KWCalendar *> &calendars = edit.document().calendars;
    const auto found = std::find_if(calendars.begin(), calendars.end(), [&date](const KWCalendar *calendar) {
        return calendar->isException && calendar->startDate <= date && date <= calendar->finishDate;
    });
    if (!date.isValid() || found == calendars.end())
        return edit.refuse(EditRefusal::NoException, {date.toString(Qt::ISODate)});
    const int place = int(found - calendars.begin());
    return changeCalendar(edit, [&] { delete calendars.takeAt(place); });
}
