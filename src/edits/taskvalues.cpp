#include "edits/taskvalues.h"
#include "editing/kwhyperlink.h"
#include "edits/oneedit.h"
#include "engine/network/moves.h"
#include "engine/network/rollup.h"
#include "engine/time/dayoff.h"
#include "engine/time/duration.h"
#include "engine/time/walk.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
#include <cmath>
#include <limits>

namespace taskvalues {

namespace {

constexpr double tallestRow = 10000; // pixels
constexpr qint64 longestSecs = 100LL * 366 * LocalClock::secsPerDay;
// A year before the last moment that there is: what starts here still has a finish.
constexpr quint32 lastStart = std::numeric_limits<quint32>::max() - 366u * LocalClock::secsPerDay;

// Seconds of a duration for one unit.
double secsPerUnit(const worktime::WorkCalendar &calendar, unsigned int unit)
{
    return 1 / duration::value(calendar, 1, unit);
}

bool isHourScale(const KWDocument &document)
{
    return document.getMinorUnit() >= duration::Hour;
}

bool refuse(OneEdit &edit, EditRefusal refusal, const QStringList &arguments = {})
{
    edit.refuse(refusal, arguments);
    return false;
}

bool judgeLength(OneEdit &edit, const QString &name, const TaskLength &length)
{
    if (length.unit >= duration::unitCount)
        return refuse(edit, EditRefusal::BadUnit);
    const double secs = length.value * secsPerUnit(edit.document().workCalendar(), length.unit);
    return (std::isfinite(length.value) && length.value >= 0 && secs <= double(longestSecs)) ||
           refuse(edit, EditRefusal::BadLength, {name});
}

bool judgeDates(OneEdit &edit, const KWTaskInfo *task, const QString &name, const TaskValues &values)
{
    if (values.start && *values.start > lastStart)
        return refuse(edit, EditRefusal::BadMoment, {name});
    if (!values.finish)
        return true;
    quint32 start = task ? task->Start : 0;
    if (values.start)
        start = *values.start == 0 ? 0
                                   : dayoff::startForward(edit.document().workCalendar(), *values.start,
                                                          isHourScale(edit.document()));
    else if (!task)
        return true; // it takes a start from the task beside it
    if (start == 0)
        return refuse(edit, EditRefusal::NoStart, {name});
    return *values.finish > start || refuse(edit, EditRefusal::FinishBeforeStart, {name});
}

bool judgeBaseline(OneEdit &edit, const KWTaskInfo *task, const QString &name, const TaskValues &values)
{
    bool isNumber = true;
    if (values.baseCost && !values.baseCost->isEmpty()) {
        const double cost = values.baseCost->toDouble(&isNumber);
        isNumber = isNumber && std::isfinite(cost);
    }
    if (!isNumber)
        return refuse(edit, EditRefusal::BadAmount, {*values.baseCost});
    const quint32 start = values.baseStart.value_or(task ? task->BaseStart : 0);
    const quint32 finish = values.baseFinish.value_or(task ? task->BaseFinish : 0);
    const bool isSet = (values.baseStart && start != 0) || (values.baseFinish && finish != 0);
    return !isSet || start == 0 || finish == 0 || start <= finish ||
           refuse(edit, EditRefusal::FinishBeforeStart, {name});
}
}

bool judge(OneEdit &edit, const KWTaskInfo *task, const TaskValues &values)
{
    const QString name = task ? edit.nameOf(*task) : values.name.value_or(QString());
    const bool isOfLeaves = values.length || values.finish || values.isMilestone || values.percent ||
                            values.baseStart || values.baseFinish || values.baseCost ||
                            (values.start && *values.start == 0);
    if (task && task->isParent() && isOfLeaves)
        return refuse(edit, EditRefusal::OfSummary, {name});
    if (values.length && !judgeLength(edit, name, *values.length))
        return false;
    if (values.unit && *values.unit >= duration::unitCount)
        return refuse(edit, EditRefusal::BadUnit);
    if (values.percent && !(*values.percent >= 0 && *values.percent <= 1))
        return refuse(edit, EditRefusal::BadPercent);
    if (values.rowHeight && !(*values.rowHeight > 0 && *values.rowHeight <= tallestRow))
        return refuse(edit, EditRefusal::BadHeight);
    return judgeDates(edit, task, name, values) && judgeBaseline(edit, task, name, values);
}

bool movesTasks(const TaskValues &values)
{
    return values.start || values.length || values.unit || values.finish || values.isMilestone;
}

void keep(OneEdit &edit, KWTaskInfo &task, const TaskValues &values)
{
    edit.keepValues(task);
    if (movesTasks(values))
        edit.keepReach(task);
}

// ---- Setting ---------------------------------------------------------------------------------------------

double lengthOf(const KWDocument &document, const KWTaskInfo &task)
{
    const worktime::WorkCalendar &calendar = document.workCalendar();
    if (task.Milestone)
        return 0;
    if (rollup::isDated(task))
        return duration::ofTask(calendar, task.Start, task.Finish, task.DurationUnits);
    return task.DurationSecs > 0 ? duration::value(calendar, task.DurationSecs, task.DurationUnits)
                                 : LocalClock::secsPerDay / secsPerUnit(calendar, task.DurationUnits);
}

void setLength(const KWDocument &document, KWTaskInfo &task, double value)
{
    const worktime::WorkCalendar &calendar = document.workCalendar();
    const quint32 least = worktime::clampSecs(qint64(task.Start) + duration::milestoneSecs);
    task.Finish = task.Milestone || value == 0
                      ? least
                      : std::max(walk::byUnits(calendar, task.Start, value, task.DurationUnits), least);
    task.DurationSecs = duration::secs(calendar, task.Start, task.Finish, task.DurationUnits);
}

namespace {

void setStart(OneEdit &edit, KWTaskInfo &task, quint32 start)
{
    const KWDocument &document = edit.document();
    const worktime::WorkCalendar &calendar = document.workCalendar();
    const quint32 oldStart = task.Start;
    if (start == 0) {
        task.Start = task.Finish = 0;
    } else if (!task.isParent() && !rollup::isDated(task)) {
        const double length = lengthOf(document, task);
        task.Start = dayoff::startForward(calendar, start, isHourScale(document));
        setLength(document, task, length);
    } else if (!moves::startTo(calendar, task, start, isHourScale(document))) {
        return;
    } else if (task.isParent()) {
        moves::content(calendar, edit.tasks(), task, oldStart);
    } else if (task.Milestone) {
        setLength(document, task, 0);
    } else {
        moves::keepDuration(calendar, task, oldStart);
    }
}

void setLengthIn(const KWDocument &document, KWTaskInfo &task, const TaskLength &length)
{
    task.DurationUnits = length.unit;
    task.Milestone = length.value == 0;
    if (rollup::isDated(task)) {
        setLength(document, task, length.value);
        return;
    }
    const double secs = length.value * secsPerUnit(document.workCalendar(), length.unit);
    task.DurationSecs = worktime::clampSecs(qRound64(secs));
}

void applyDates(OneEdit &edit, KWTaskInfo &task, const TaskValues &values)
{
    const KWDocument &document = edit.document();
    if (values.start)
        setStart(edit, task, *values.start);
    if (values.length)
        setLengthIn(document, task, *values.length);
    if (values.unit)
        task.DurationUnits = *values.unit;
    if (values.finish) {
        task.Finish = std::max(*values.finish, task.Start + duration::milestoneSecs);
        task.Milestone = false;
    }
    if (values.isMilestone && *values.isMilestone != task.Milestone)
        setLengthIn(document, task,
                    *values.isMilestone ? TaskLength{0, task.DurationUnits} : TaskLength{1, duration::Day});
    edit.changes.what |= settling::Dates | settling::Length;
}

void setHyperlinks(KWTaskInfo &task, const QVector<KWHyperlink> &links)
{
    QVector<KWHyperlink> copies = links;
    task.hyperlinks.assignFrom(copies);
}
}

void apply(OneEdit &edit, KWTaskInfo &task, const TaskValues &values)
{
    if (values.name)
        task.Name = *values.name;
    if (movesTasks(values))
        applyDates(edit, task, values);
    if (values.percent) {
        task.setPercent(*values.percent);
        task.Progress = KWTaskInfo::indexFromPercent(task.Percent);
        edit.changes.what |= settling::Progress;
    }
    if (values.priority)
        task.Priority = *values.priority;
    if (values.notes)
        task.Notes = *values.notes;
    if (values.baseStart)
        task.BaseStart = *values.baseStart;
    if (values.baseFinish)
        task.BaseFinish = *values.baseFinish;
    if (values.baseCost)
        task.BaselineCost = *values.baseCost;
    if (values.baseStart || values.baseFinish || values.baseCost)
        edit.changes.what |= settling::Baseline;
    if (values.rowHeight)
        edit.document().rowColumnData()->replaceRowHeight(edit.document().getPosByID(task.ID),
                                                          *values.rowHeight);
    if (values.hyperlinks)
        setHyperlinks(task, *values.hyperlinks);
    edit.changed(task);
}
}
