#include "shown.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"

namespace shown {

namespace {

constexpr int secsPerDay = 86400;
constexpr int secsPerHour = 3600;
constexpr int nobody = -1;

// The predecessor whose end is the milestone's moment; a task rather than another milestone.
int driverOf(const Plan &plan, const KWTaskInfo &milestone)
{
    int driver = nobody;
    for (const quint32 id : milestone.Predecessors) {
        const int pos = plan.posOf(id);
        if (pos < 0 || plan::workingMinutes(plan, plan.task(pos)->Finish, milestone.Start) != 0)
            continue;
        if (driver == nobody || !plan.task(pos)->Milestone)
            driver = pos;
    }
    return driver;
}

// Whether the file puts the task at the end of a working day and it still stands there.
bool standsAtDayEnd(const Plan &plan, int pos)
{
    const planrows::Row &row = plan.rows.rows[std::size_t(pos)];
    const datetext::Moment &given = row.start.when.isValid() ? row.start : row.finish;
    if (!given.when.isValid() || !given.hasTime)
        return false;
    const int finishHour = int(KWTaskInfo::startOrFinishHour(plan.document.get(), false));
    const QDateTime typed = KWTaskInfo::editTimeTransDayTime(plan.document.get(), given.when, true);
    const quint32 moment = KWTaskCollection::moveForwarstartOnDayOff(
        plan.document.get(), quint32(typed.toSecsSinceEpoch()), false);
    return given.when.time().hour() >= finishHour && moment == plan.task(pos)->Start;
}

// A milestone that no other task places.
Clock ownMoment(const Plan &plan, int pos)
{
    const quint32 secs = plan.task(pos)->Start;
    if (standsAtDayEnd(plan, pos))
        return finishOf(plan, KWTaskCollection::reduceFinishOnDayOff(plan.document.get(), secs, false));
    const QDateTime when = KWTaskInfo::showDateTime(plan.document.get(), secs, true);
    return {when.date(), when.time().msecsSinceStartOfDay() / 1000};
}
}

QString Clock::iso() const
{
    return date.toString(Qt::ISODate) + QLatin1Char('T') + datetext::timeText(secs);
}

QString Clock::text() const
{
    return datetext::dateText(date, datetext::TwoDigitDay | datetext::Year) + QLatin1Char(' ') +
           datetext::timeText(secs);
}

Clock startOf(const Plan &plan, quint32 secs)
{
    KWDocument *document = plan.document.get();
    const QDateTime given = KWTaskInfo::showDateTime(document, secs, true);
    // Nothing that works begins on a day off or when work ends: what is stored there was put there.
    const int finishSecs = int(KWTaskInfo::startOrFinishHour(document, false)) * secsPerHour;
    const bool isEvening = given.time().msecsSinceStartOfDay() / 1000 == finishSecs;
    const bool stays =
        isEvening || (KWTaskInfo::isHaveWorkDay(document) && !KWTaskInfo::isWorkday(document, given));
    if (stays)
        return {given.date(), given.time().msecsSinceStartOfDay() / 1000};
    const quint32 working = KWTaskCollection::moveForwarstartOnDayOff(document, secs, true);
    const QDateTime when = KWTaskInfo::showDateTime(document, working, true);
    return {when.date(), when.time().msecsSinceStartOfDay() / 1000};
}

Clock finishOf(const Plan &plan, quint32 secs)
{
    const QDateTime when = KWTaskInfo::showDateTime(plan.document.get(), secs, false);
    const int secsOfDay = when.time().msecsSinceStartOfDay() / 1000;
    // The library writes the end of a day that ends at midnight as that day's 00:00.
    const bool dayEndsAtMidnight = KWTaskInfo::startOrFinishHour(plan.document.get(), false) == 24;
    return {when.date(), secsOfDay == 0 && dayEndsAtMidnight ? secsPerDay : secsOfDay};
}

Clock endOf(const Plan &plan, quint32 secs)
{
    // A project that ends with a milestone ends one second into the next day.
    const quint32 wholeMinutes = secs / 60 * 60;
    return finishOf(plan, KWTaskCollection::reduceFinishOnDayOff(plan.document.get(), wholeMinutes, true));
}

Times::Times(const Plan &plan)
    : m_plan(plan)
    , m_starts(std::size_t(plan.taskCount()))
    , m_finishes(m_starts.size())
{
    std::vector<bool> known(m_starts.size(), false);
    std::vector<int> chain;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo *task = plan.task(pos);
        if (!task->Milestone || task->isParent()) {
            m_starts[std::size_t(pos)] = startOf(plan, task->Start);
            // A summary may end with a milestone.
            const Clock finish = task->isParent() ? endOf(plan, task->Finish) : finishOf(plan, task->Finish);
            m_finishes[std::size_t(pos)] =
                finish < m_starts[std::size_t(pos)] ? m_starts[std::size_t(pos)] : finish;
            known[std::size_t(pos)] = true;
        }
    }
    // Milestones behind milestones stand where the first of them does.
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        chain.clear();
        int at = pos;
        while (at != nobody && !known[std::size_t(at)]) {
            known[std::size_t(at)] = true;
            chain.push_back(at);
            at = driverOf(plan, *plan.task(at));
        }
        for (auto link = chain.rbegin(); link != chain.rend(); ++link) {
            const Clock when = at != nobody ? m_finishes[std::size_t(at)] : ownMoment(plan, *link);
            m_starts[std::size_t(*link)] = m_finishes[std::size_t(*link)] = when;
            at = *link;
        }
    }
    showSummaries();
}

// A summary begins and ends as its subtasks are shown to, which stand below it.
void Times::showSummaries()
{
    std::vector<bool> hasSubtask(m_starts.size(), false);
    for (int pos = m_plan.taskCount() - 1; pos >= 0; --pos) {
        const KWTaskInfo *task = m_plan.task(pos);
        const int parent = task->ParentID != 0 ? m_plan.posOf(task->ParentID) : nobody;
        if (parent < 0 || parent >= pos)
            continue;
        const std::size_t at = std::size_t(pos);
        const std::size_t above = std::size_t(parent);
        if (!hasSubtask[above] || m_starts[at] < m_starts[above])
            m_starts[above] = m_starts[at];
        if (!hasSubtask[above] || m_finishes[above] < m_finishes[at])
            m_finishes[above] = m_finishes[at];
        hasSubtask[above] = true;
    }
}

Clock Times::lateStart(int pos) const
{
    const KWTaskInfo *task = m_plan.task(pos);
    if (plan::workingMinutes(m_plan, task->Start, task->LateStart) == 0)
        return start(pos);
    return task->Milestone && !task->isParent() ? lateFinish(pos) : startOf(m_plan, task->LateStart);
}

Clock Times::lateFinish(int pos) const
{
    const KWTaskInfo *task = m_plan.task(pos);
    if (plan::workingMinutes(m_plan, task->Finish, task->LateFinish) == 0)
        return finish(pos);
    return endOf(m_plan, task->LateFinish);
}
}
